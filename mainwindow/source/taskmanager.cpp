#include "taskmanager.h"

#include "commutils.h"
#include "files/plainfile.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QTimer>

#include <sys/stat.h>

namespace {

constexpr unsigned long START_DELAY = 100; // ms
constexpr unsigned long NOTIFY_DELAY = 1000; // ms
constexpr int COUNT_LINE = 32; // bytes; far more than a session count takes

/** The number on the file's first line, 0 if there is none; `none` if the file is not to be opened. */
int readSessionCount(int none)
{
    QFile file(CUICommUtils::getVNCSessionMarkFileName());
    return openPlainFile(file) ? QString::fromLatin1(file.readLine(COUNT_LINE)).trimmed().toInt() : none;
}

/** The directory and those that it is in, from the outermost below the root. */
QStringList pathTo(const QString& directory)
{
    const QString parent = QFileInfo(directory).path();
    return directory == parent ? QStringList() : pathTo(parent) << directory;
}

/** Which directories stand there, 0 for none. */
QVector<quint64> identities(const QStringList& directories)
{
    QVector<quint64> numbers;
    for (const QString& directory : directories) {
        struct stat state = {};
        numbers << (::stat(QFile::encodeName(directory).constData(), &state) == 0 ? quint64(state.st_ino)
                                                                                  : 0);
    }
    return numbers;
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
    // The remote viewer makes the directory with its first session; till then it is there for who looks.
    if (!QDir().mkpath(directory))
        qWarning().noquote() << "Can not create" << directory;
    watchSessions();
    connect(m_pFSWatcher, &QFileSystemWatcher::directoryChanged, this, &CTaskManager::dirChanged);
    connect(
        m_pFSWatcher, &QFileSystemWatcher::directoryChanged, this, [this, directory](const QString& path) {
            if (path == directory)
                return;
            watchSessions(); // one further in may be another one now
            if (readSessionCount(0) != m_vncSessionCount)
                dirChanged(directory);
        });
}

// Every directory on the way, as each of them may go and come again. The outer ones first: what is made after
// the look at an inner one is then told.
void CTaskManager::watchSessions()
{
    const QStringList directories = pathTo(CUICommUtils::getVNCSessionMarkFileDirPath());
    // Mostly something else has changed: the outer directories are everybody's.
    const QVector<quint64> present = identities(directories);
    if (present == m_watched)
        return;
    m_watched = present;
    const QStringList watched = m_pFSWatcher->directories();
    if (!watched.isEmpty())
        m_pFSWatcher->removePaths(watched); // of one that was moved away the old place would still be watched
    for (const QString& directory : directories) {
        if (QFileInfo(directory).isDir() && !m_pFSWatcher->addPath(directory))
            qWarning().noquote() << "Can not watch" << directory << "- remote viewers may not be counted";
    }
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
    const bool exists = QFile::exists(CUICommUtils::getVNCSessionMarkFileName());
    m_vncSessionCount = exists ? readSessionCount(m_vncSessionCount) : 0;
    return m_vncSessionCount >= 1;
}

void CTaskManager::dirChanged(const QString& path)
{
    if (path != CUICommUtils::getVNCSessionMarkFileDirPath())
        return;
    m_vncSessionCount = readSessionCount(0);
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
