#include "shellprocess.h"

#include "filedescriptor.h"
#include "fixtureplugins.h"
#include "testfiles.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString RESIDENT = QStringLiteral("libIPtool.so"); // loaded at the start, asked to end
const QString HANGS = QStringLiteral("/tmp/fixture-hangs"); // from here on it does
const QString LOCK_FILE = QStringLiteral("/run/mainframe.lock");
const QString LOCK_MARK = QStringLiteral("/tmp/screen-locked.mark");
constexpr int END_LIMIT = 30000; // ms; far more than the 5 s after which the shell ends by force

void remove(const QString& path)
{
    if (!QFile::remove(path))
        QDir(path).removeRecursively();
}

bool hasOpen(qint64 process, const QString& path)
{
    const QDir descriptors(QStringLiteral("/proc/%1/fd").arg(process));
    const QStringList names = descriptors.entryList(QDir::System | QDir::Files);
    return std::any_of(names.begin(), names.end(),
        [&](const QString& name) { return QFile::symLinkTarget(descriptors.filePath(name)) == path; });
}

/** The process that the fixture left behind; 0 when it has not yet. */
pid_t leftChild()
{
    return readFile(QStringLiteral("/tmp/fixture-left")).trimmed().toInt();
}

struct Ends
{
    CFileDescriptor reader;
    CFileDescriptor writer;
};

Ends makePipe()
{
    int ends[2] = {-1, -1};
    return ::pipe2(ends, O_CLOEXEC) == 0 ? Ends{CFileDescriptor(ends[0]), CFileDescriptor(ends[1])} : Ends();
}

/** Fills what is between the ends, so that the next byte would wait. */
void fill(const Ends& ends)
{
    const int flags = ::fcntl(ends.writer.get(), F_GETFL);
    ::fcntl(ends.writer.get(), F_SETFL, flags | O_NONBLOCK);
    const QByteArray block(4096, '.');
    for (int size = block.size(); size > 0; size /= 2) {
        while (::write(ends.writer.get(), block.constData(), size_t(size)) > 0) { }
    }
    ::fcntl(ends.writer.get(), F_SETFL, flags);
}

} // namespace

/** What becomes of the shell when the process around it is not as it should be, or a plug-in in it. */
class TestProcess : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void closedStreams_data();
    void closedStreams();
    void readerGone();
    void readerStandsStill();

    void throwingPlugin_data();
    void throwingPlugin();
    void hangingPlugin_data();
    void hangingPlugin();

    void modesOfWhatItMakes_data();
    void modesOfWhatItMakes();
    void secondShell();
    void secondShellWaitsForTheFirst();
    void lockIsNotLeftToChildren();
    void noLockFile_data();
    void noLockFile();
};

void TestProcess::initTestCase()
{
    QVERIFY(QFile::exists(PLUGIN_DIR + RESIDENT));
}

void TestProcess::init()
{
    installFixture("libfixture_recorder.so", RESIDENT);
    clearPluginCalls();
    remove(QStringLiteral("/tmp/fixture-trouble"));
    remove(HANGS);
    remove(QStringLiteral("/home/root/.zentra"));
}

void TestProcess::closedStreams_data()
{
    QTest::addColumn<QVector<int>>("closed");
    QTest::newRow("input") << QVector<int>{0};
    QTest::newRow("error") << QVector<int>{2};
    QTest::newRow("all") << QVector<int>{0, 1, 2};
}

void TestProcess::closedStreams()
{
    QFETCH(QVector<int>, closed);
    CShellProcess shell({}, [&closed] {
        for (const int fd : qAsConst(closed))
            ::close(fd);
    });
    QVERIFY(CShellProcess::waitForHomeUnlogged());
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("bkgRun")));
    for (const int fd : qAsConst(closed))
        QCOMPARE(QFile::symLinkTarget(QStringLiteral("/proc/%1/fd/%2").arg(shell.pid()).arg(fd)),
            QStringLiteral("/dev/null"));
    shell.sendSignal(SIGTERM);
    QVERIFY(shell.waitForEnd());
    QCOMPARE(shell.exitCode(), 0);
}

void TestProcess::readerGone()
{
    Ends ends = makePipe();
    CShellProcess shell({}, [&ends] {
        ::dup2(ends.writer.get(), STDOUT_FILENO);
        ::dup2(ends.writer.get(), STDERR_FILENO);
    });
    ends.writer.reset();
    QVERIFY(CShellProcess::waitForHomeUnlogged());
    ends.reader.reset();
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("bkgRun")));
    QFile status(QStringLiteral("/proc/%1/status").arg(shell.pid()));
    QVERIFY(status.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) { // what is ignored, and only that, stays so in every child
        if (line.startsWith("SigIgn:"))
            QCOMPARE(line.mid(7).trimmed().toULongLong(nullptr, 16) & (1ULL << (SIGPIPE - 1)), 0ULL);
    }
    shell.sendSignal(SIGTERM); // some lines are due
    QVERIFY(shell.waitForEnd());
    QCOMPARE(shell.exitCode(), 0);
}

void TestProcess::readerStandsStill()
{
    Ends ends = makePipe();
    QVERIFY(ends.writer.isValid());
    fill(ends);
    CShellProcess shell({}, [&ends] {
        ::dup2(ends.writer.get(), STDOUT_FILENO);
        ::dup2(ends.writer.get(), STDERR_FILENO);
    });
    QVERIFY(CShellProcess::waitForHomeUnlogged());
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("bkgRun")));
    shell.sendSignal(SIGTERM); // the handler has something to say, too
    QVERIFY(shell.waitForEnd());
    QCOMPARE(shell.exitCode(), 0);
}

void TestProcess::throwingPlugin_data()
{
    QTest::addColumn<QByteArray>("trouble");
    QTest::addColumn<QString>("line");
    const QString named = QStringLiteral("Exception out of plug-in libIPtool.so: trouble in %1");
    QTest::newRow("root object") << QByteArray("constructor throw")
                                 << named.arg(QStringLiteral("constructor"));
    QTest::newRow("background run") << QByteArray("bkgRun throw") << named.arg(QStringLiteral("bkgRun"));
    QTest::newRow("event") << QByteArray("event throw") << named.arg(QStringLiteral("event"));
    QTest::newRow("no exception object")
        << QByteArray("event throw-number") << QStringLiteral("plug-in libIPtool.so: of no standard type");
    QTest::newRow("event of an object of Qt's")
        << QByteArray("timer throw") << QStringLiteral("plug-in libIPtool.so in front: trouble in timer");
    QTest::newRow("end") << QByteArray("terminate throw") << named.arg(QStringLiteral("terminate"));
}

void TestProcess::throwingPlugin()
{
    QFETCH(QByteArray, trouble);
    QFETCH(QString, line);
    installFixture("libfixture_trouble.so", RESIDENT);
    writeFile(QStringLiteral("/tmp/fixture-trouble"), trouble);
    CShellProcess shell;
    QVERIFY2(shell.waitForHome(), qPrintable(shell.log()));
    const bool isAtTheEnd = trouble.startsWith("terminate");
    QVERIFY2(isAtTheEnd || shell.waitForLog(line), qPrintable(shell.log()));
    shell.sendSignal(SIGTERM);
    QVERIFY(shell.waitForEnd());
    QVERIFY2(shell.log().contains(line), qPrintable(shell.log()));
    QCOMPARE(shell.exitCode(), 0);
}

void TestProcess::hangingPlugin_data()
{
    QTest::addColumn<QByteArray>("call");
    QTest::newRow("as it is asked to end") << QByteArray("terminate");
    QTest::newRow("with the event loop") << QByteArray("bkgRun");
}

void TestProcess::hangingPlugin()
{
    QFETCH(QByteArray, call);
    installFixture("libfixture_trouble.so", RESIDENT);
    writeFile(QStringLiteral("/tmp/fixture-trouble"), call + " hang");
    CShellProcess shell;
    QVERIFY2(shell.waitForHome(), qPrintable(shell.log()));
    if (call == "bkgRun") // a signal that comes before ends the shell without it
        QTRY_VERIFY(QFile::exists(HANGS));
    shell.sendSignal(SIGTERM);
    QVERIFY(shell.waitForLog(QStringLiteral("Terminate is comming!")));
    shell.sendSignal(SIGTERM); // does not begin the time again, nor end it
    QVERIFY(shell.waitForEnd(END_LIMIT));
    QCOMPARE(shell.exitCode(), 1);
    QVERIFY2(shell.log().contains(QStringLiteral("no end within 5 s, in a call of libIPtool.so")),
        qPrintable(shell.log()));
}

void TestProcess::modesOfWhatItMakes_data()
{
    QTest::addColumn<int>("inherited");
    QTest::newRow("closed") << 077;
    QTest::newRow("open") << 0;
}

void TestProcess::modesOfWhatItMakes()
{
    QFETCH(int, inherited);
    remove(QStringLiteral("/home/root/.resultmanager"));
    remove(QStringLiteral("/home/root/.config"));
    CShellProcess shell({}, [inherited] { ::umask(mode_t(inherited)); });
    QVERIFY2(shell.waitForHome(), qPrintable(shell.log()));
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("bkgRun")));
    shell.sendSignal(SIGTERM);
    QVERIFY(shell.waitForEnd());
    int seen = 0;
    QDirIterator made(QStringLiteral("/home/root"), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
        QDirIterator::Subdirectories);
    while (made.hasNext()) {
        struct stat status = {};
        QCOMPARE(::lstat(QFile::encodeName(made.next()).constData(), &status), 0);
        const mode_t expected = S_ISDIR(status.st_mode) ? 0755 : 0644;
        QVERIFY2((status.st_mode & 07777) == expected, qPrintable(made.filePath()));
        ++seen;
    }
    QVERIFY(seen > 5); // four configuration files in two directories
}

void TestProcess::secondShell()
{
    CShellProcess first;
    QVERIFY2(first.waitForHome(), qPrintable(first.log()));
    writeFile(LOCK_MARK, QByteArray());
    CShellProcess second;
    QVERIFY(second.waitForEnd());
    QCOMPARE(second.exitCode(), 3);
    QCOMPARE(second.log(),
        QStringLiteral("Another shell runs on this instrument (it holds /run/mainframe.lock)\n"));
    QVERIFY(QFile::exists(LOCK_MARK));
    QVERIFY(first.isRunning());
    first.sendSignal(SIGTERM);
    QVERIFY(first.waitForEnd());
    QCOMPARE(first.exitCode(), 0);
    QFile::remove(LOCK_MARK);
}

void TestProcess::secondShellWaitsForTheFirst()
{
    CShellProcess first;
    QVERIFY2(first.waitForHome(), qPrintable(first.log()));
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("bkgRun")));
    first.sendSignal(SIGSTOP); // holds it for as long as the second needs to come to the lock
    CShellProcess second;
    QTRY_VERIFY(hasOpen(second.pid(), LOCK_FILE));
    first.sendSignal(SIGKILL);
    QVERIFY2(second.waitForHome(), qPrintable(second.log()));
}

void TestProcess::lockIsNotLeftToChildren()
{
    installFixture("libfixture_trouble.so", RESIDENT);
    writeFile(QStringLiteral("/tmp/fixture-trouble"), "bkgRun leave");
    {
        CShellProcess shell;
        QVERIFY2(shell.waitForHome(), qPrintable(shell.log()));
        QTRY_COMPARE(
            QProcess::execute(QStringLiteral("pgrep"), {QStringLiteral("-x"), QStringLiteral("sleep")}), 0);
    } // killed
    CShellProcess next;
    QVERIFY2(next.waitForHome(), qPrintable(next.log()));
    QCOMPARE(::kill(leftChild(), SIGKILL), 0);
}

void TestProcess::noLockFile_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("link") << 0;
    QTest::newRow("pipe") << 1;
    QTest::newRow("directory") << 2;
}

void TestProcess::noLockFile()
{
    QFETCH(int, kind);
    remove(LOCK_FILE);
    const QString elsewhere = QStringLiteral("/tmp/elsewhere");
    if (kind == 0)
        QVERIFY(QFile::link(elsewhere, LOCK_FILE));
    else if (kind == 1)
        QCOMPARE(::mkfifo(qPrintable(LOCK_FILE), 0644), 0);
    else
        QVERIFY(QDir().mkdir(LOCK_FILE));
    CShellProcess shell;
    QVERIFY2(shell.waitForHome(), qPrintable(shell.log()));
    QVERIFY(shell.log().contains(QStringLiteral("Can not lock /run/mainframe.lock")));
    QVERIFY(!QFile::exists(elsewhere));
    remove(LOCK_FILE);
}

QTEST_GUILESS_MAIN(TestProcess)
#include "tst_process.moc"
