#include "orloclock.h"
#include "pagehand.h"

#include <QDir>

#include <cerrno>
#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>

namespace {

const QString TOOL = QStringLiteral("/usr/local/arvo/bin/orlo-clocksrc");
const QString CALLS = QStringLiteral("/tmp/var/sim/clock-calls");

stOrlo_ClockSrc_cmd command(int board, const QVector<int>& sources)
{
    stOrlo_ClockSrc_cmd cmd = {board, {}};
    std::copy(sources.begin(), sources.end(), cmd.clock_source);
    return cmd;
}

QVector<int> values(const stOrlo_ClockSrc_ret& ret)
{
    QVector<int> all{ret.board_index};
    for (const int source : ret.clock_source)
        all << source;
    return all;
}

/** A tool in place of the instrument's, until the test ends. */
class CToolInPlace
{
public:
    explicit CToolInPlace(const QByteArray& script)
    {
        QVERIFY(QFile::rename(TOOL, TOOL + QStringLiteral(".kept")));
        QFile file(TOOL);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n" + script);
        file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }
    ~CToolInPlace()
    {
        QFile::remove(TOOL);
        QFile::rename(TOOL + QStringLiteral(".kept"), TOOL);
    }
    Q_DISABLE_COPY(CToolInPlace)
};

QByteArray content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/** The clock tools: which are called with what, and in what kind of process. */
class TestOrloClock : public QObject
{
    Q_OBJECT

private slots:
    void init() { QFile::remove(CALLS); }
    void toolsAndWords_data();
    void toolsAndWords();
    void nobodyWaitsForTheTool();
    void toolStartsFresh();
    void missingTool();
};

void TestOrloClock::toolsAndWords_data()
{
    QTest::addColumn<QString>("board");
    QTest::addColumn<int>("slot");
    QTest::addColumn<QVector<int>>("sources");
    QTest::addColumn<QString>("calls"); // without the tool's name
    QTest::addColumn<QVector<int>>("told");
    const auto row = [](const char* name, const char* board, int slot, const QVector<int>& sources,
                         const char* calls, const QVector<int>& told) {
        QTest::newRow(name) << QString::fromLatin1(board) << slot << sources << QString::fromLatin1(calls)
                            << told;
    };
    const QVector<int> mixed{2, 3, 4, 1, 2, 3};
    row("gps", "D", -1, {2, 3, 3, 3, 3, 3}, "--set gps", {-1, 2, 2, 2, 2, 2, 2});
    row("atomic", "A", 4, {3, 2, 2, 2, 2, 2}, "--set atomic", {-1, 3, 3, 3, 3, 3, 3});
    row("10 MHz without slots", "D", -1, {4, 4, 4, 4, 4, 4}, "--set tcxo", {-1, 4, 4, 4, 4, 4, 4});
    row("every slot", "E", -1, mixed, "LA 3|RA 2|LB 1|RB 3|LC 3|RC 2", {-1, 2, 3, 4, 1, 2, 3});
    row("one slot", "E", 2, mixed, "LB 1", {2, 2, 3, 4, 1, 2, 3});
    row("no such slot", "E", 6, mixed, "", {6, 2, 3, 4, 1, 2, 3});
}

void TestOrloClock::toolsAndWords()
{
    QFETCH(QString, board);
    QFETCH(int, slot);
    QFETCH(QVector<int>, sources);
    QFETCH(QString, calls);
    QVERIFY(simctl(QStringLiteral("board ") + board));
    QStringList expected;
    for (const QString& words : calls.split(QLatin1Char('|'), Qt::SkipEmptyParts))
        expected << (board == QLatin1String("E") ? QStringLiteral("peldasetclk ")
                                                 : QStringLiteral("orlo-clocksrc "))
                + words;

    stOrlo_ClockSrc_cmd cmd = command(slot, sources);
    stOrlo_ClockSrc_ret ret;
    QCOMPARE(orlo_modconf_clocksrc(-1, &cmd, &ret), 0);
    QCOMPARE(clockCalls(), expected); // it has waited
    QTEST(values(ret), "told");
    QCOMPARE(orlo_modconf_clocksrc(0, &cmd, nullptr), 0);

    QFile::remove(CALLS);
    setOrloclock(&cmd);
    cmd = command(-1, {0, 0, 0, 0, 0, 0}); // the caller's own again
    QTRY_COMPARE(clockCalls(), expected);
}

void TestOrloClock::nobodyWaitsForTheTool()
{
    QVERIFY(simctl(QStringLiteral("board D")));
    QCOMPARE(::mkfifo("/tmp/tool-gate", 0600), 0);
    const CToolInPlace tool("echo >/tmp/tool-runs; read -r _ </tmp/tool-gate; echo >/tmp/tool-ended\n");
    stOrlo_ClockSrc_cmd cmd = command(-1, {3, 3, 3, 3, 3, 3});
    setOrloclock(&cmd);
    QTRY_VERIFY(QFile::exists(QStringLiteral("/tmp/tool-runs")));
    // No child is left of it: the shell's handler waits for all there are.
    QCOMPARE(::waitpid(-1, nullptr, WNOHANG), -1);
    QCOMPARE(errno, ECHILD);
    QVERIFY(!QFile::exists(QStringLiteral("/tmp/tool-ended")));
    QFile gate(QStringLiteral("/tmp/tool-gate"));
    QVERIFY(gate.open(QIODevice::WriteOnly));
    gate.write("\n");
    gate.close();
    QTRY_VERIFY(QFile::exists(QStringLiteral("/tmp/tool-ended")));
}

void TestOrloClock::toolStartsFresh()
{
    // Built-in commands only: the shell blocks all signals for a moment when it starts another.
    const CToolInPlace tool("{ while read -r line; do case $line in Sig*) echo \"$line\" ;; esac; done\n"
                            "for file in /proc/$$/fd/*; do echo \"${file##*/}\"; done; } \\\n"
                            "</proc/$$/status >/tmp/tool-state.new\n"
                            "mv /tmp/tool-state.new /tmp/tool-state\n");
    QFile open(QStringLiteral("/tmp/open-in-the-shell"));
    QVERIFY(open.open(QIODevice::ReadWrite));
    const int inherited = ::dup(open.handle()); // without the close-on-exec mark
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGCHLD, [](int) {});
    sigset_t blocked;
    sigset_t before;
    ::sigemptyset(&blocked);
    ::sigaddset(&blocked, SIGTERM);
    ::pthread_sigmask(SIG_BLOCK, &blocked, &before);
    stOrlo_ClockSrc_cmd cmd = command(-1, {3, 3, 3, 3, 3, 3});
    setOrloclock(&cmd);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    std::signal(SIGPIPE, SIG_DFL);
    std::signal(SIGCHLD, SIG_DFL);
    QTRY_VERIFY(QFile::exists(QStringLiteral("/tmp/tool-state")));
    const QByteArray state = content(QStringLiteral("/tmp/tool-state"));
    QVERIFY2(
        state.contains("SigBlk:\t0000000000000000") && state.contains("SigIgn:\t0000000000000000"), state);
    QVERIFY2(!state.contains('\n' + QByteArray::number(inherited) + '\n'), state);
    ::close(inherited);
}

void TestOrloClock::missingTool()
{
    QVERIFY(simctl(QStringLiteral("board D")));
    const CToolInPlace tool("exit 0\n");
    QVERIFY(QFile::remove(TOOL));
    stOrlo_ClockSrc_cmd cmd = command(-1, {3, 3, 3, 3, 3, 3});
    stOrlo_ClockSrc_ret ret;
    QCOMPARE(orlo_modconf_clocksrc(-1, &cmd, &ret), 0);
    QCOMPARE(values(ret), QVector<int>({-1, 3, 3, 3, 3, 3, 3}));
}

QTEST_GUILESS_MAIN(TestOrloClock)
#include "tst_orloclock.moc"
