#include "childreaper.h"
#include "commandlines.h"
#include "testfiles.h"

#include <QThread>

#include <cerrno>
#include <cstring>
#include <fcntl.h>

using Lines = QStringList;
Q_DECLARE_METATYPE(ReadResult)

static QStringList shell(const char* script)
{
    return {"sh"_s, "-c"_s, QString::fromUtf8(script)};
}

static Lines linesOf(const QStringList& argv, int timeoutMs = 20000)
{
    Lines lines;
    const ReadResult result = readCommandLines(argv, timeoutMs, [&lines](const QString& line) {
        lines << line;
        return true;
    });
    if (result == ReadResult::NotStarted)
        return {"not started"_s};
    return lines;
}

static bool isGroupGone(pid_t group)
{
    return ::kill(-group, 0) != 0 && errno == ESRCH;
}

class tst_DetachedCommand : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { REQUIRE_INSTRUMENT(); }
    void cleanup();
    void lines_data();
    void lines();
    void startFailures_data();
    void startFailures();
    void environmentOfTheCommand();
    void endsWhatIsNotWanted_data();
    void endsWhatIsNotWanted();
    void leavesWhatHasEnded();
    void manyThreadsBesideTheReaper();
    void keepsNoDescriptors();
    void asynchronousLines();
    void stop_data();
    void stop();
    void receiverMayDestroy();
    void destructorKills();
};

void tst_DetachedCommand::cleanup()
{
    QCOMPARE(::waitpid(-1, nullptr, WNOHANG), -1); // no child, ended or not, was left behind
    QCOMPARE(errno, ECHILD);
}

void tst_DetachedCommand::lines_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<Lines>("expected");
    const int limit = CLineSplitter::MaxLineLength;
    QTest::newRow("nothing") << QByteArray() << Lines();
    QTest::newRow("two lines") << QByteArray("a b\nc\n") << Lines{"a b"_s, "c"_s};
    QTest::newRow("no line end at the end") << QByteArray("a\nb") << Lines{"a"_s, "b"_s};
    QTest::newRow("empty lines") << QByteArray("\n\n") << Lines{""_s, ""_s};
    QTest::newRow("carriage returns") << QByteArray("a\r\nb\rc\r\n") << Lines{"a"_s, "b\rc"_s};
    QTest::newRow("text") << QByteArray("Gr\xc3\xb6\xc3\x9f"
                                        "e\n")
                          << Lines{QStringLiteral(u"Gr\u00F6\u00DFe")};
    QTest::newRow("garbage") << QByteArray("\xff\x01\0z\n", 5) << Lines{QStringLiteral(u"\uFFFD\u0001\0z")};
    QTest::newRow("a full line") << QByteArray(limit, 'x') + "\ny"
                                 << Lines{QString(limit, QLatin1Char('x')), "y"_s};
    QTest::newRow("longer than a line") << QByteArray(3 * limit + 7, 'x') + "\ny\n"
                                        << Lines{QString(limit, QLatin1Char('x')), "y"_s};
    QTest::newRow("many") << QByteArray("line\n").repeated(20000)
                          << Lines(QVector<QString>(20000, "line"_s).toList());
}

void tst_DetachedCommand::lines()
{
    QFETCH(QByteArray, output);
    QFETCH(Lines, expected);
    const QString path = "/tmp/output"_s;
    writeFile(path, output);
    QCOMPARE(linesOf({"cat"_s, path}), expected);
}

void tst_DetachedCommand::startFailures_data()
{
    writeFile("/tmp/plain"_s, "text");
    writeFile("/tmp/noexec"_s, "text");
    QFile::setPermissions("/tmp/noexec"_s, QFile::ReadOwner | QFile::ExeOwner);
    QTest::addColumn<QStringList>("argv");
    QTest::addColumn<int>("error");
    QTest::newRow("empty list") << QStringList() << ENOENT;
    QTest::newRow("empty name") << QStringList{""_s} << ENOENT;
    QTest::newRow("not in PATH") << QStringList{"no-such-program"_s} << ENOENT;
    QTest::newRow("no such file") << QStringList{"/tmp/no-such-program"_s} << ENOENT;
    QTest::newRow("directory") << QStringList{"/tmp"_s} << EACCES;
    QTest::newRow("no program") << QStringList{"/tmp/plain"_s} << EACCES;
    QTest::newRow("no format") << QStringList{"/tmp/noexec"_s} << ENOEXEC;
    QTest::newRow("too long") << QStringList{"true"_s, QString(3000000, QLatin1Char('x'))} << E2BIG;
}

void tst_DetachedCommand::startFailures()
{
    QFETCH(QStringList, argv);
    QFETCH(int, error);
    const int before = openDescriptors();
    CDetachedCommand command;
    QVERIFY(!command.start(argv));
    QVERIFY2(command.errorText().endsWith(QString::fromLocal8Bit(std::strerror(error))),
        qPrintable(command.errorText()));
    QCOMPARE(command.pid(), -1);
    QCOMPARE(command.fd(), -1);
    QCOMPARE(readCommandLines(argv, 1000, [](const QString&) { return true; }), ReadResult::NotStarted);
    QCOMPARE(openDescriptors(), before);
}

void tst_DetachedCommand::environmentOfTheCommand()
{
    // What this process has must not reach the command.
    const CFileDescriptor inherited(::open("/dev/zero", O_RDONLY));
    const CFileDescriptor high(::fcntl(inherited.get(), F_DUPFD, 700));
    QVERIFY(high.isValid());
    sigset_t blocked, before;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGUSR1);
    pthread_sigmask(SIG_BLOCK, &blocked, &before);
    const auto pipeBefore = std::signal(SIGPIPE, SIG_IGN);
    const Lines lines = linesOf(shell("cat; ls -m /proc/$$/fd; readlink /proc/$$/fd/0;"
                                      "grep -E 'Sig(Blk|Ign)' /proc/self/status; echo error >&2;"
                                      "test $$ = $(ps -o pgid= -p $$) && echo own group"));
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    std::signal(SIGPIPE, pipeBefore);
    QCOMPARE(lines,
        (Lines{"0, 1, 2"_s, "/dev/null"_s, "SigBlk:\t0000000000000000"_s, "SigIgn:\t0000000000000000"_s,
            "error"_s, "own group"_s}));
}

void tst_DetachedCommand::endsWhatIsNotWanted_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("timeoutMs");
    QTest::addColumn<ReadResult>("expected");
    QTest::newRow("no more lines wanted") << QByteArray("echo $$; exec yes") << -1 << ReadResult::Stopped;
    QTest::newRow("time-out") << QByteArray("echo $$; exec sleep 60") << 300 << ReadResult::TimedOut;
    QTest::newRow("whole group") << QByteArray("echo $$; sleep 60 & sleep 61") << 300 << ReadResult::TimedOut;
    QTest::newRow("deaf to SIGTERM") << QByteArray("trap '' TERM; echo $$; sleep 60; sleep 60") << 300
                                     << ReadResult::TimedOut;
    QTest::newRow("closes its output and stays")
        << QByteArray("echo $$; exec 1>&- 2>&-; exec sleep 60") << -1 << ReadResult::Ended;
}

void tst_DetachedCommand::endsWhatIsNotWanted()
{
    QFETCH(QByteArray, script);
    QFETCH(int, timeoutMs);
    pid_t group = -1;
    const ReadResult result
        = readCommandLines(shell(script.constData()), timeoutMs, [&group](const QString& line) {
              if (group < 0)
                  group = line.toInt();
              return line != QLatin1String("y");
          });
    QTEST(result, "expected");
    QVERIFY(group > 0);
    QTRY_VERIFY(isGroupGone(group));
}

// The number of what has ended may be somebody else's by now: no signal goes there.
void tst_DetachedCommand::leavesWhatHasEnded()
{
    // What outlives the command here is still in its group.
    const Lines lines
        = linesOf(shell("(trap 'echo TERM >>/tmp/signals' TERM; trap 'echo ours >>/tmp/signals' WINCH;"
                        "echo ready >/tmp/signals; while :; do sleep 0.05; done) >/dev/null 2>&1 &"
                        "echo $!"));
    QCOMPARE(lines.size(), 1);
    const pid_t other = lines.first().toInt();
    QVERIFY(other > 0);
    QTRY_VERIFY(readFile("/tmp/signals"_s).startsWith("ready"));
    QCOMPARE(::kill(other, SIGWINCH), 0);
    QTRY_VERIFY(readFile("/tmp/signals"_s).contains("ours")); // a lower number would have come before
    QCOMPARE(::kill(other, SIGKILL), 0);
    QCOMPARE(readFile("/tmp/signals"_s), QByteArray("ready\nours\n"));
}

void tst_DetachedCommand::manyThreadsBesideTheReaper()
{
    const ChildReaper reaper;
    CDetachedCommand longLived; // would stop the reaper for a minute if it were a child
    QVERIFY(longLived.start({"sleep"_s, "60"_s}));

    std::atomic<int> good{0};
    std::vector<std::unique_ptr<QThread>> threads;
    for (int index = 0; index < 4; ++index) {
        threads.emplace_back(QThread::create([&good] {
            for (int round = 0; round < 15; ++round) {
                if (linesOf({"echo"_s, "hello"_s}) == Lines{"hello"_s}
                    && linesOf({"no-such-program"_s}) == Lines{"not started"_s})
                    ++good;
            }
        }));
        threads.back()->start();
    }
    for (const auto& thread : threads)
        QVERIFY(thread->wait(60000));
    QCOMPARE(good.load(), 60);
    longLived.terminate();
    QTRY_VERIFY(isGroupGone(longLived.pid()));
}

void tst_DetachedCommand::keepsNoDescriptors()
{
    linesOf(shell("echo warm"));
    const int before = openDescriptors();
    for (int round = 0; round < 20; ++round) {
        QCOMPARE(linesOf(shell("echo x; echo y")).size(), 2);
        readCommandLines({"yes"_s}, -1, [](const QString&) { return false; });
    }
    QCOMPARE(openDescriptors(), before);
}

void tst_DetachedCommand::asynchronousLines()
{
    const ChildReaper reaper;
    CCommandLines lines;
    QSignalSpy read(&lines, &CCommandLines::lineRead);
    QSignalSpy finished(&lines, &CCommandLines::finished);
    QVERIFY(!lines.start({"no-such-program"_s}));
    QVERIFY(!lines.errorText().isEmpty());
    QVERIFY(!lines.isRunning());
    lines.stop(); // nothing runs: nothing happens

    for (int round = 1; round <= 2; ++round) {
        QVERIFY(lines.start(shell("echo one; echo two >&2; printf three")));
        QVERIFY(lines.isRunning());
        QTRY_COMPARE(finished.count(), round);
        QVERIFY(!lines.isRunning());
        QCOMPARE(read.count(), 3 * round);
    }
    QCOMPARE(read.at(5).at(0).toString(), "three"_s);
}

void tst_DetachedCommand::stop_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("last");
    QTest::newRow("summary") << QByteArray("trap 'echo summary; exit' INT; echo up; while :; do :; done")
                             << "summary"_s;
    QTest::newRow("deaf") << QByteArray("trap '' INT; echo up; sleep 60; sleep 60") << "up"_s;
    QTest::newRow("flood") << QByteArray("trap '' INT; exec yes") << "y"_s;
}

void tst_DetachedCommand::stop()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, last);
    CCommandLines lines;
    QSignalSpy finished(&lines, &CCommandLines::finished);
    QString latest;
    connect(&lines, &CCommandLines::lineRead, this, [&latest](const QString& line) { latest = line; });
    QVERIFY(lines.start(shell(script.constData())));
    QTRY_VERIFY(!latest.isEmpty());
    lines.stop(SIGINT);
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(latest, last);
    QTRY_VERIFY(isGroupGone(lines.pid()));
}

void tst_DetachedCommand::receiverMayDestroy()
{
    const int before = openDescriptors();
    auto* lines = new CCommandLines;
    QPointer<CCommandLines> guard(lines);
    int count = 0;
    connect(lines, &CCommandLines::lineRead, this, [&count, lines] {
        ++count;
        delete lines;
    });
    QVERIFY(lines->start(shell("echo a; echo b; sleep 60")));
    const pid_t group = lines->pid();
    QTRY_VERIFY(!guard);
    QCOMPARE(count, 1);
    QTRY_VERIFY(isGroupGone(group));
    QCOMPARE(openDescriptors(), before);
}

void tst_DetachedCommand::destructorKills()
{
    pid_t group = -1;
    {
        CCommandLines lines;
        QVERIFY(lines.start(shell("trap '' TERM; sleep 60; sleep 60")));
        group = lines.pid();
    }
    QTRY_VERIFY(isGroupGone(group));
}

QTEST_GUILESS_MAIN(tst_DetachedCommand)
#include "tst_detachedcommand.moc"
