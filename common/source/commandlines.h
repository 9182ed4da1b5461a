#pragma once

#include "detachedcommand.h"
#include "linesplitter.h"

#include <QObject>
#include <QTimer>

#include <functional>

class QSocketNotifier;

/**
 * Runs a command detached and delivers its output (standard output and standard error) line by line, as it
 * comes.
 *
 * A line is decoded as UTF-8 (invalid bytes become replacement characters) and comes without its line end;
 * bytes beyond CLineSplitter::MaxLineLength are dropped; a last line without a line end counts. Destroying
 * the object kills a command that still runs, and no signal follows. Use it in the thread that it lives in,
 * which needs an event loop.
 */
class CCommandLines : public QObject
{
    Q_OBJECT

public:
    explicit CCommandLines(QObject* parent = nullptr);
    ~CCommandLines() override;

    /** Starts argv; a command still running is killed first, without finished(). False: see errorText(). */
    bool start(const QStringList& argv);

    /**
     * Asks the command's process group to end (SIGINT lets a tool print its summary). Output is delivered
     * until it ends; a group that is still there after half a second is killed. finished() follows in every
     * case. Without a running command nothing happens.
     */
    void stop(int signalNumber = SIGTERM);

    /** True from a successful start until finished(). */
    bool isRunning() const { return m_pNotifier != nullptr; }

    /** Process id of the command, -1 before the first start. */
    pid_t pid() const { return m_command.pid(); }

    /** Why the last start failed. */
    QString errorText() const { return m_command.errorText(); }

signals:
    void lineRead(const QString& line);
    /** The output has ended, once per successful start. */
    void finished();

private:
    void readOutput();
    bool deliver(const QStringList& lines);
    void killCommand();
    void closeOutput();
    void finish();

    CDetachedCommand m_command;
    CLineSplitter m_splitter;
    QSocketNotifier* m_pNotifier = nullptr;
    QTimer m_killTimer;
};

/** How readCommandLines() came to its end. */
enum class ReadResult {
    NotStarted, ///< there is no such command, or no room for one more
    Ended, ///< the output has ended: onLine got all of it
    TimedOut,
    Stopped ///< onLine had enough
};

/**
 * Runs argv detached and calls onLine for every line of its output (see CCommandLines for what a line is), in
 * the calling thread, which blocks. Ends when the output ends, after timeoutMs milliseconds (negative: no
 * limit) or when onLine returns false; in the two latter cases the command's process group is asked to end
 * and killed if it does not within 200 ms, and a line still incomplete is dropped. A command that goes on
 * running for 200 ms after its output has ended is asked to end, too. Meant for worker threads.
 */
ReadResult readCommandLines(
    const QStringList& argv, int timeoutMs, const std::function<bool(const QString& line)>& onLine);
