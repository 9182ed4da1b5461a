#include "filedescriptor.h"
#include "standardstreams.h"
#include "testfiles.h"

#include <QTest>

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <termios.h>

namespace {

struct Link
{
    CFileDescriptor reader;
    CFileDescriptor writer;
};

Link makePipe()
{
    int ends[2] = {-1, -1};
    return ::pipe2(ends, O_CLOEXEC) == 0 ? Link{CFileDescriptor(ends[0]), CFileDescriptor(ends[1])} : Link();
}

Link makeSocket()
{
    int ends[2] = {-1, -1};
    return ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) == 0
        ? Link{CFileDescriptor(ends[0]), CFileDescriptor(ends[1])}
        : Link();
}

Link makeTerminal()
{
    Link link;
    link.reader.reset(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC));
    if (::grantpt(link.reader.get()) != 0 || ::unlockpt(link.reader.get()) != 0)
        return {};
    link.writer.reset(::open(::ptsname(link.reader.get()), O_RDWR | O_NOCTTY | O_CLOEXEC));
    termios mode = {};
    ::tcgetattr(link.writer.get(), &mode);
    ::cfmakeraw(&mode);
    ::tcsetattr(link.writer.get(), TCSANOW, &mode);
    return link;
}

/** A process whose two standard streams lead into the link. */
pid_t forkInto(const Link& link, const std::function<void()>& work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(link.writer.get(), STDOUT_FILENO);
        ::dup2(link.writer.get(), STDERR_FILENO);
        ::signal(SIGPIPE, SIG_IGN);
        standardstreams::prepare();
        work();
        standardstreams::drain();
        ::_exit(0);
    }
    return child;
}

/** One byte; false when none comes in 20 s. */
bool take(int fd)
{
    pollfd entry = {fd, POLLIN, 0};
    char byte = 0;
    return ::poll(&entry, 1, 20000) == 1 && ::read(fd, &byte, 1) == 1;
}

void give(int fd)
{
    if (::write(fd, "", 1) != 1)
        ::abort();
}

QByteArray readToEnd(Link& link)
{
    link.writer.reset();
    QByteArray all;
    char buffer[4096];
    for (;;) {
        const ssize_t count = ::read(link.reader.get(), buffer, sizeof buffer);
        if (count <= 0) // a terminal ends with an error
            return all;
        all.append(buffer, int(count));
    }
}

} // namespace

/** What a process logs while the reader of its standard streams stands still, goes, or was never there. */
class TestStandardStreams : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { REQUIRE_INSTRUMENT(); }

    void readerStandsStill_data();
    void readerStandsStill();
    void readerGoes();
    void fullDisk();
    void closedStreams();
};

void TestStandardStreams::readerStandsStill_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("lines");
    QTest::addColumn<bool>("isAllKept");
    QTest::newRow("pipe, as much as is kept") << 0 << 8000 << true;
    QTest::newRow("pipe") << 0 << 40000 << false;
    QTest::newRow("terminal") << 1 << 40000 << false;
    QTest::newRow("socket") << 2 << 90000 << false;
}

void TestStandardStreams::readerStandsStill()
{
    QFETCH(int, kind);
    QFETCH(int, lines);
    QFETCH(bool, isAllKept);
    Link (*const makers[])() = {makePipe, makeTerminal, makeSocket};
    Link link = makers[kind]();
    QVERIFY(link.writer.isValid());
    const Link written = makePipe();
    const Link read = makePipe();
    const pid_t child = forkInto(link, [&] {
        for (int i = 0; i < lines; ++i)
            standardstreams::write(
                i % 2 ? STDOUT_FILENO : STDERR_FILENO, "line " + QByteArray::number(i) + '\n');
        standardstreams::writeInSignal(STDERR_FILENO, "signal\n", 7);
        give(written.writer.get());
        take(read.reader.get());
        standardstreams::drain();
        standardstreams::write(STDERR_FILENO, "last\n");
    });
    QVERIFY2(take(written.reader.get()), "it waits for the reader");
    // The description that others may share is as it was.
    QVERIFY((::fcntl(link.writer.get(), F_GETFL) & O_NONBLOCK) == 0);
    give(read.writer.get());
    QList<QByteArray> found = readToEnd(link).split('\n');
    QCOMPARE(::waitpid(child, nullptr, 0), child);

    QCOMPARE(found.takeLast(), QByteArray());
    QCOMPARE(found.takeLast(), QByteArray("last"));
    const QByteArray lost = found.takeLast();
    for (int i = 0; i < found.size(); ++i)
        QCOMPARE(found.at(i), "line " + QByteArray::number(i)); // whole, in order, none missing between
    QCOMPARE(lost, QByteArray::number(lines + 1 - found.size()) + " log lines lost");
    QCOMPARE(found.size() == lines, isAllKept); // but for the one in signal context
}

void TestStandardStreams::readerGoes()
{
    Link link = makePipe();
    link.reader.reset();
    const pid_t child = forkInto(link, [] {
        for (int i = 0; i < 40000; ++i)
            standardstreams::write(STDERR_FILENO, "line\n");
    });
    int status = -1;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QCOMPARE(status, 0);
}

void TestStandardStreams::fullDisk()
{
    Link link;
    link.writer.reset(::open("/dev/full", O_WRONLY | O_CLOEXEC));
    const pid_t child = forkInto(link, [] {
        for (int i = 0; i < 40000; ++i)
            standardstreams::write(STDERR_FILENO, "line\n");
    });
    int status = -1;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QCOMPARE(status, 0);
}

void TestStandardStreams::closedStreams()
{
    const pid_t child = ::fork();
    if (child == 0) {
        for (int fd : {0, 1, 2})
            ::close(fd);
        standardstreams::prepare();
        const CFileDescriptor next(::open("/dev/zero", O_RDONLY));
        standardstreams::write(STDOUT_FILENO, "nobody sees this\n");
        ::_exit(next.get() > STDERR_FILENO ? 0 : 1);
    }
    int status = -1;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QCOMPARE(status, 0);
}

QTEST_GUILESS_MAIN(TestStandardStreams)
#include "tst_standardstreams.moc"
