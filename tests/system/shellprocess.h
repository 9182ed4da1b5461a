#pragma once

#include <QProcess>
#include <QString>

#include <functional>

/** The real program, started as a process of its own, with everything it prints. Ended with the object. */
class CShellProcess
{
public:
    /** What the new process does before it becomes the program; only async-signal-safe calls. */
    using Preparation = std::function<void()>;

    /** @param environment additions "NAME=value" to the test's own environment */
    explicit CShellProcess(const QStringList& environment = {}, const Preparation& preparation = {});
    ~CShellProcess();

    /** Waits until the log holds `text`. @return false after 10 s, or when the program ended without it */
    bool waitForLog(const QString& text);
    /** Waits until the home screen is on the display of the test. */
    bool waitForHome();
    /** The same for a shell whose log goes elsewhere. */
    static bool waitForHomeUnlogged();
    /** Waits until the program has ended. */
    bool waitForEnd(int milliseconds = 10000);

    void sendSignal(int sig) const;
    qint64 pid() const { return m_process.processId(); }
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    /** The exit code; -1 when a signal ended it. Only after it ended. */
    int exitCode() const;
    QString log();

private:
    class CPreparedProcess : public QProcess
    {
    public:
        Preparation m_preparation;

    protected:
        void setupChildProcess() override
        {
            if (m_preparation)
                m_preparation();
        }
    };

    CPreparedProcess m_process;
    QByteArray m_log;
};
