#include "taskmanager.h"

#include "commutils.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileSystemWatcher>
#include <QTimer>

namespace {

constexpr unsigned long START_DELAY = 100; // ms
constexpr unsigned long NOTIFY_DELAY = 1000; // ms
constexpr int COUNT_LINE = 32; // bytes; far more than a session count takes

int readSessionCount(QFile& file)
{
    return QString::fromLatin1(file.readLine(COUNT_LINE)).trimmed().toInt();
}

} // namespace

CTaskManager::CTaskManager(QObject* parent)
    : QThread(parent)
{
    initFSWatcher();
    connect(this, &QThread::finished, this, &CTaskManager::finishTask);
}

CTaskManager::~CTaskManager()
{
    wait();
}

void CTaskManager::initFSWatcher()
{
    m_pFSWatcher = new QFileSystemWatcher(this);
    const QString directory = CUICommUtils::getVNCSessionMarkFileDirPath();
    // The remote viewer makes the directory with its first session; there must be something to watch before.
    if (!QDir().mkpath(directory))
        qWarning().noquote() << "Can not create" << directory << "- remote viewer sessions are not counted";
    else
        m_pFSWatcher->addPath(directory);
    connect(m_pFSWatcher, &QFileSystemWatcher::directoryChanged, this, &CTaskManager::dirChanged);
}

void CTaskManager::startUtil(int id)
{
    m_utilID = id;
    m_operCode = StartUtility;
    start(QThread::InheritPriority);
    // No room for one more thread, which QThread has logged: the event loop does the waiting.
    if (!isRunning() && !isFinished())
        QTimer::singleShot(int(START_DELAY), this, &CTaskManager::startWithoutThread);
}

void CTaskManager::startWithoutThread()
{
    const int id = m_utilID.exchange(-1);
    if (id >= 0) // else a request of the same time has been served
        emit utilStarted(id);
    finishTask();
}

void CTaskManager::run()
{
    switch (m_operCode) {
    case UIManagerNotify:
        msleep(NOTIFY_DELAY);
        emit notifyClientWndState(m_clientWndState);
        break;
    case StartUtility:
        msleep(START_DELAY);
        emit utilStarted(m_utilID.exchange(-1));
        break;
    default:
        break;
    }
    m_operCode = NoCtrl;
}

void CTaskManager::finishTask()
{
    qDebug().noquote() << QStringLiteral("Operation %1 completed.").arg(m_operCode);
    m_operCode = NoCtrl;
    // A request that came between the last signal and the end of the thread found it still running.
    const int waiting = m_utilID;
    if (waiting >= 0)
        startUtil(waiting);
}

bool CTaskManager::isVNCClientAttached()
{
    QFile file(CUICommUtils::getVNCSessionMarkFileName());
    if (!file.exists())
        m_vncSessionCount = 0;
    else if (file.open(QIODevice::ReadOnly))
        m_vncSessionCount = readSessionCount(file);
    return m_vncSessionCount >= 1;
}

void CTaskManager::dirChanged(const QString& path)
{
    if (path != CUICommUtils::getVNCSessionMarkFileDirPath())
        return;
    m_vncSessionCount = 0;
    QFile file(CUICommUtils::getVNCSessionMarkFileName());
    if (file.open(QIODevice::ReadOnly))
        m_vncSessionCount = readSessionCount(file);
    emit vncSessionChanged(m_vncSessionCount);
}

void CTaskManager::setRTCTimeToSystem()
{
    const std::tm time{};
    applyToDatetime(false, &time, 0);
}

bool CTaskManager::applyToDatetime(bool utc, const std::tm* time, int n)
{
    Q_UNUSED(n)
    std::tm copy = *time; // both conversions normalise their argument
    const timespec clock{utc ? timegm(&copy) : mktime(&copy), 0};
    return clock_settime(CLOCK_REALTIME, &clock) == 0;
}
