#pragma once

#include "filedescriptor.h"

#include <QString>
#include <QStringList>

#include <csignal>
#include <sys/types.h>

/**
 * Starts a command that is not a child of this process. This is the one place that starts commands.
 *
 * The shell's SIGCHLD handler waits, in signal context, until no child is left, so a child that lives for
 * more than a moment would stop the shell. The command is therefore started by a child that exits at once,
 * and belongs to the init process, which also collects its exit status; there is none to be had here. To read
 * its output line by line use CCommandLines or readCommandLines() (commandlines.h).
 *
 * The command runs by argument list, without a shell. It gets /dev/null as standard input, the default signal
 * mask and dispositions, a process group of its own, this process's environment (see keepEnvironment()) and
 * working directory, and no other descriptor of this process.
 *
 * The destructor closes the reading end and leaves the command running. One thread at a time; any thread.
 */
class CDetachedCommand
{
public:
    /** Where the command's standard output and standard error go. */
    enum class Output {
        Pipe, ///< both into one pipe, read at fd()
        Discard ///< /dev/null, for a command that outlives the interest in it
    };

    CDetachedCommand() = default;
    CDetachedCommand(CDetachedCommand&&) = default;
    CDetachedCommand& operator=(CDetachedCommand&&) = default;

    /**
     * Starts argv[0] with the given arguments. A name without "/" is looked up in PATH and then in the
     * system's own program directories. Returns when the program is running (exec has succeeded) or has
     * failed to start: then the result is false and errorText() says why. May be called again; what ran
     * before goes on running.
     */
    bool start(const QStringList& argv, Output output = Output::Pipe);

    /**
     * Commands started from now on get this process's environment as it is now, whatever is set in it later;
     * without this call, as it is when they start. Before there is a second thread.
     */
    static void keepEnvironment();

    /** The environment that commands get, for an execve() of one's own. */
    static char* const* environment();

    /**
     * Runs `work(data)` in a process of its own, for a caller that starts several commands one after the
     * other there. As a command it belongs to the init process and has the default signal mask and
     * dispositions, a process group of its own and no descriptor but the standard ones, but standard output
     * and error stay this process's. It ends with status 0 when `work` returns.
     *
     * `work` may only make async-signal-safe calls, and read what was there before.
     * @return false, with a log line, when there can be no process
     */
    static bool runApart(void (*work)(const void* data), const void* data);

    /** Process id and process group of the command; -1 before a successful start. */
    pid_t pid() const { return m_pid; }

    /** Non-blocking reading end of the command's output; end of file when all its writers are gone. -1 if
     * none. */
    int fd() const { return m_output.get(); }

    /** Lets go of the command and closes the reading end. The command gets SIGPIPE if it writes on. */
    void closeOutput()
    {
        m_output.reset();
        m_process.reset();
    }

    /**
     * Sends a signal to the command's whole process group: SIGTERM asks, SIGINT asks as the user would,
     * SIGKILL ends it. True if somebody was there to get it. Call it only while the output has not ended or
     * the command is known to run: afterwards the number may belong to somebody else.
     */
    bool terminate(int signalNumber = SIGTERM);

    /**
     * Waits for the end of the command itself, not of what it has started.
     * @return true when it still runs after that time, false when it has ended, or when that cannot be told
     * (after closeOutput(), and by kernels before 5.3)
     */
    bool isRunningAfter(int ms) const;

    /** Why the last start failed, as the system words it; empty after a success. */
    QString errorText() const { return m_errorText; }

private:
    bool fail(const QString& program, int error);

    CFileDescriptor m_output;
    CFileDescriptor m_process; // pidfd
    pid_t m_pid = -1;
    QString m_errorText;
};
