#pragma once

#include <QProcess>
#include <QString>

/** The real program, started as a process of its own, with everything it prints. Ended with the object. */
class CShellProcess
{
public:
    /** @param environment additions "NAME=value" to the test's own environment */
    explicit CShellProcess(const QStringList& environment = {});
    ~CShellProcess();

    /** Waits until the log holds `text`. @return false after 10 s, or when the program ended without it */
    bool waitForLog(const QString& text);
    /** Waits until the home screen is on the display of the test. */
    bool waitForHome();
    /** Waits until the program has ended. */
    bool waitForEnd(int milliseconds = 10000);

    void sendSignal(int sig) const;
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    /** The exit code; -1 when a signal ended it. Only after it ended. */
    int exitCode() const;
    QString log();

private:
    QProcess m_process;
    QByteArray m_log;
};
