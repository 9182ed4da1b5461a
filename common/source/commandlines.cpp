#include "commandlines.h"

#include <QDeadlineTimer>
#include <QPointer>
#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <poll.h>

namespace {

constexpr int KillDelayMs = 500;
constexpr int EndGraceMs = 200;
constexpr int ReadSize = 16384;

enum class ReadState { Data, Again, End };

// One non-blocking read; interrupted ones are retried. A read error ends the output like its end.
ReadState readSome(int fd, char (&buffer)[ReadSize], int& size)
{
    ssize_t count;
    do {
        count = ::read(fd, buffer, ReadSize);
    } while (count < 0 && errno == EINTR);
    size = static_cast<int>(count);
    if (count > 0)
        return ReadState::Data;
    return count < 0 && errno == EAGAIN ? ReadState::Again : ReadState::End;
}

// Waits until there is something to read or the output has ended; false when the time is over.
bool waitForOutput(int fd, const QDeadlineTimer& deadline)
{
    pollfd entry = {fd, POLLIN, 0};
    for (;;) {
        const int ready = ::poll(&entry, 1, static_cast<int>(deadline.remainingTime()));
        if (ready > 0)
            return true;
        if (ready == 0 || errno != EINTR)
            return false;
    }
}

// Asks the process group to end, and ends it if its output is still open after a short grace.
void endCommand(CDetachedCommand& command)
{
    command.terminate();
    const QDeadlineTimer grace(EndGraceMs);
    char buffer[ReadSize];
    int size = 0;
    while (waitForOutput(command.fd(), grace)) {
        if (readSome(command.fd(), buffer, size) == ReadState::End)
            return;
        if (grace.hasExpired())
            break;
    }
    command.terminate(SIGKILL);
}

} // namespace

CCommandLines::CCommandLines(QObject* parent)
    : QObject(parent)
{
    m_killTimer.setSingleShot(true);
    m_killTimer.setInterval(KillDelayMs);
    connect(&m_killTimer, &QTimer::timeout, this, [this] {
        m_command.terminate(SIGKILL);
        finish();
    });
}

CCommandLines::~CCommandLines()
{
    killCommand();
}

bool CCommandLines::start(const QStringList& argv)
{
    killCommand();
    if (!m_command.start(argv))
        return false;
    m_pNotifier = new QSocketNotifier(m_command.fd(), QSocketNotifier::Read, this);
    connect(m_pNotifier, &QSocketNotifier::activated, this, [this] { readOutput(); });
    return true;
}

void CCommandLines::stop(int signalNumber)
{
    if (!isRunning())
        return;
    m_command.terminate(signalNumber);
    if (!m_killTimer.isActive())
        m_killTimer.start();
}

void CCommandLines::readOutput()
{
    // One block per turn of the event loop, so that a command that never pauses cannot hold it up.
    char buffer[ReadSize];
    int size = 0;
    switch (readSome(m_command.fd(), buffer, size)) {
    case ReadState::Data:
        deliver(m_splitter.feed(buffer, size));
        break;
    case ReadState::Again:
        break;
    case ReadState::End:
        finish();
        break;
    }
}

// Hands out lines. A receiver may destroy this object or start another command: then the rest is nobody's,
// and the result is false.
bool CCommandLines::deliver(const QStringList& lines)
{
    const QPointer<QSocketNotifier> run(m_pNotifier);
    for (const QString& line : lines) {
        emit lineRead(line);
        if (!run || run != m_pNotifier)
            return false;
    }
    return true;
}

void CCommandLines::finish()
{
    m_killTimer.stop();
    m_pNotifier->setEnabled(false);
    if (!deliver(m_splitter.finish()))
        return;
    closeOutput();
    emit finished();
}

void CCommandLines::killCommand()
{
    if (!isRunning())
        return;
    m_command.terminate(SIGKILL);
    closeOutput();
}

void CCommandLines::closeOutput()
{
    m_killTimer.stop();
    m_splitter.finish();
    m_pNotifier->setEnabled(false);
    m_pNotifier->deleteLater(); // it may be the one that called
    m_pNotifier = nullptr;
    m_command.closeOutput();
}

ReadResult readCommandLines(
    const QStringList& argv, int timeoutMs, const std::function<bool(const QString& line)>& onLine)
{
    CDetachedCommand command;
    if (!command.start(argv))
        return ReadResult::NotStarted;

    const QDeadlineTimer deadline
        = timeoutMs < 0 ? QDeadlineTimer(QDeadlineTimer::Forever) : QDeadlineTimer(timeoutMs);
    CLineSplitter splitter;
    char buffer[ReadSize];
    int size = 0;
    const auto wanted
        = [&onLine](const QStringList& lines) { return std::all_of(lines.begin(), lines.end(), onLine); };
    // The time is looked at after every block too: a command that never pauses never lets poll() time out.
    while (waitForOutput(command.fd(), deadline)) {
        const ReadState state = readSome(command.fd(), buffer, size);
        if (state == ReadState::End) {
            wanted(splitter.finish());
            if (command.isRunningAfter(EndGraceMs)) // one that only closed its output would stay for ever
                command.terminate();
            return ReadResult::Ended;
        }
        if (state == ReadState::Data && !wanted(splitter.feed(buffer, size))) {
            endCommand(command);
            return ReadResult::Stopped;
        }
        if (deadline.hasExpired())
            break;
    }
    endCommand(command);
    return ReadResult::TimedOut;
}
