#include "standardstreams.h"

#include "filedescriptor.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <mutex>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace standardstreams {

namespace {

constexpr int KEPT_LIMIT = 64 * 1024; // bytes a stream
constexpr int DRAIN_LIMIT = 1000; // ms

struct Stream
{
    int fd;
    QByteArray kept; // not taken yet
    std::atomic<int> lost; // texts
};

std::mutex mutex; // for what is kept
bool isOneStream = false; // both lead to the same place, and keep their order there

// Never destroyed: the very last lines come from the destructors of others.
Stream* const streams = new Stream[2]{{STDOUT_FILENO, {}, {0}}, {STDERR_FILENO, {}, {0}}};

Stream& streamOf(int fd)
{
    return streams[fd == STDERR_FILENO || isOneStream ? 1 : 0];
}

bool hasRoom(int fd, int ms)
{
    pollfd entry = {fd, POLLOUT, 0};
    int ready = 0;
    while ((ready = ::poll(&entry, 1, ms)) < 0 && errno == EINTR) { }
    return ready > 0; // also for one whose reader has gone: writing then says so
}

/**
 * How much of the text is done with, without waiting: 0 when there is no room, all of it when nobody will
 * ever read it. Only async-signal-safe calls.
 */
int take(int fd, const char* text, int size)
{
    for (;;) {
        ssize_t count = ::send(fd, text, size_t(size), MSG_DONTWAIT | MSG_NOSIGNAL);
        if (count < 0 && errno == ENOTSOCK) {
            if (!hasRoom(fd, 0))
                return 0;
            count = ::write(fd, text, size_t(std::min(size, PIPE_BUF)));
        }
        if (count >= 0)
            return int(count);
        if (errno == EAGAIN || errno == ENOSPC || errno == EDQUOT)
            return 0;
        if (errno != EINTR)
            return size;
    }
}

/** @return false when nothing went out although something is kept */
bool push(Stream& stream)
{
    const int before = stream.kept.size();
    int done = 0;
    while (done < before) {
        const int count = take(stream.fd, stream.kept.constData() + done, before - done);
        if (count == 0)
            break;
        done += count;
    }
    stream.kept.remove(0, done);
    return done > 0 || before == 0;
}

/** Says what is missing, once there is room again. */
void reportLost(Stream& stream)
{
    if (!stream.kept.isEmpty())
        return;
    if (const int lost = stream.lost.exchange(0)) {
        stream.kept = QByteArray::number(lost) + " log lines lost\n";
        push(stream);
    }
}

/** A description of the same pipe or terminal that is this process's alone, and does not block. */
void unshare(int fd)
{
    struct stat status = {};
    if (::fstat(fd, &status) != 0 || (!S_ISFIFO(status.st_mode) && ::isatty(fd) == 0))
        return; // files do not block, and keep their common position; a socket is told with each text
    const QByteArray path = "/proc/self/fd/" + QByteArray::number(fd);
    const CFileDescriptor own(::open(path.constData(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (own.isValid())
        ::dup2(own.get(), fd); // for the commands too that inherit it
}

bool isSamePlace(int one, int other)
{
    struct stat first = {};
    struct stat second = {};
    return ::fstat(one, &first) == 0 && ::fstat(other, &second) == 0 && first.st_dev == second.st_dev
        && first.st_ino == second.st_ino;
}

} // namespace

void prepare()
{
    // The lowest free number is taken, so that this ends with the first beyond the three.
    int fd = 0;
    while (fd >= 0 && fd <= STDERR_FILENO)
        fd = ::open("/dev/null", O_RDWR);
    if (fd > STDERR_FILENO)
        ::close(fd);
    unshare(STDOUT_FILENO);
    unshare(STDERR_FILENO);
    isOneStream = isSamePlace(STDOUT_FILENO, STDERR_FILENO);
    std::atexit(drain);
}

void write(int fd, const QByteArray& text)
{
    const std::lock_guard<std::mutex> lock(mutex);
    Stream& stream = streamOf(fd);
    push(stream);
    reportLost(stream);
    const bool isFull = !stream.kept.isEmpty() && stream.kept.size() + text.size() > KEPT_LIMIT;
    if (stream.lost > 0 || isFull) { // after a loss nothing, until the loss is told
        ++stream.lost;
        return;
    }
    stream.kept += text;
    push(stream);
}

void writeInSignal(int fd, const char* text, std::size_t size)
{
    Stream& stream = streamOf(fd);
    if (take(stream.fd, text, int(size)) < int(size))
        ++stream.lost;
}

void drain()
{
    const QDeadlineTimer deadline(DRAIN_LIMIT);
    const std::lock_guard<std::mutex> lock(mutex);
    for (const int fd : {STDOUT_FILENO, STDERR_FILENO}) {
        Stream& stream = streamOf(fd);
        while (!stream.kept.isEmpty() && hasRoom(fd, int(deadline.remainingTime()))) {
            if (!push(stream))
                break; // room that a text does not find: a disk that is full
        }
        reportLost(stream);
    }
}

} // namespace standardstreams
