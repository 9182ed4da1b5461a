#include "shellprocess.h"

#include "xscreen.h"

#include <QTest>

#include <csignal>

namespace {

constexpr int START_LIMIT = 10000; // ms
const QColor TOP_BAR(181, 199, 239);

} // namespace

CShellProcess::CShellProcess(const QStringList& environment, const Preparation& preparation)
{
    m_process.m_preparation = preparation;
    QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
    for (const QString& entry : environment)
        all.insert(entry.section(QLatin1Char('='), 0, 0), entry.section(QLatin1Char('='), 1));
    m_process.setProcessEnvironment(all);
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.start(QStringLiteral(MAINFRAME_PROGRAM), QStringList());
    m_process.waitForStarted();
}

CShellProcess::~CShellProcess()
{
    if (isRunning()) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

QString CShellProcess::log()
{
    m_log += m_process.readAll();
    return QString::fromUtf8(m_log);
}

bool CShellProcess::waitForLog(const QString& text)
{
    QElapsedTimer clock;
    clock.start();
    while (!log().contains(text)) {
        if (clock.elapsed() > START_LIMIT || (!isRunning() && !m_process.bytesAvailable()))
            return log().contains(text);
        m_process.waitForReadyRead(50);
    }
    return true;
}

bool CShellProcess::waitForHome()
{
    // What an earlier program left on the screen does not count.
    return waitForLog(QStringLiteral("### XGetWindowProperty")) && waitForHomeUnlogged();
}

bool CShellProcess::waitForHomeUnlogged()
{
    const CXScreen screen;
    return QTest::qWaitFor(
        [&] {
            return screen.findShellWindow().id && screen.pixel({560, 2}) == TOP_BAR
                && screen.pixel({400, 60}) == QColor(Qt::white);
        },
        START_LIMIT);
}

bool CShellProcess::waitForEnd(int milliseconds)
{
    return m_process.state() == QProcess::NotRunning || m_process.waitForFinished(milliseconds);
}

void CShellProcess::sendSignal(int sig) const
{
    ::kill(pid_t(m_process.processId()), sig);
}

int CShellProcess::exitCode() const
{
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}
