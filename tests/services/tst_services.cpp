#include "services/buslink.h"
#include "services/langswitchserv.h"
#include "services/processutils.h"
#include "services/sysfailureserv.h"
#include "testfiles.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QtTest>
#include <atomic>
#include <csignal>
#include <memory>
#include <pthread.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "backend.h"

using serv::CBusLink;

namespace {

const char Bus[] = "unix:path=/run/dbus/system_bus_socket";

// How often a caller waited in vain, told by the link's own log line.
std::atomic<int> s_waits{0};
QtMessageHandler s_next = nullptr;

void countWaits(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (text.contains(QStringLiteral("no answer in")))
        ++s_waits;
    s_next(type, context, text);
}

bool ask(CBusLink& link, QString* text = nullptr)
{
    QString answer;
    return link.call(
        "org.arvo.Platform.SysFailure", "QueryLatestSysFailure", std::nullopt, text ? text : &answer);
}

} // namespace

class TestServices : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { s_next = qInstallMessageHandler(countWaits); }
    void init();

    void languageIsAnnounced();
    void latestFailure_data();
    void latestFailure();
    void refusalsCostNoWait_data();
    void refusalsCostNoWait();
    void silenceCostsOneWait_data();
    void silenceCostsOneWait();
    void silentFromTheStart();
    void lateAnswerIsDropped();
    void endsWhileTheBusIsSilent();
    void callersOnManyThreads();
    void noRoomForAThread();
    void processExists();
    void endedProcessDoesNotExist();
};

// Everything up and fresh, whatever the test before left.
void TestServices::init()
{
    simctl(QStringLiteral("bus stop")); // the daemon ends with it, unless it is frozen
    QProcess::execute(
        QStringLiteral("sh"), {QStringLiteral("-c"), QStringLiteral("simctl daemon stop 2>/dev/null")});
    QVERIFY(simctl(QStringLiteral("bus start")));
    QVERIFY(simctl(QStringLiteral("daemon start")));
    QVERIFY(simctl(QStringLiteral("fail clear")));
    s_waits = 0;
}

void TestServices::languageIsAnnounced()
{
    for (const int language : {9, 0}) {
        QVERIFY(serv::CLangSwitchServ().SwitchLanguage(language));
        QFile file(QStringLiteral("/tmp/var/sim/language"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll().trimmed().toInt(), language);
    }
}

void TestServices::latestFailure_data()
{
    QTest::addColumn<QString>("knob");
    QTest::addColumn<QString>("expected");
    QTest::newRow("none") << "fail clear" << QString();
    QTest::newRow("battery") << "fail 9"
                             << "9 (battery)";
    QTest::newRow("two digits") << "fail 11"
                                << "11 (USB port 1)";
}

void TestServices::latestFailure()
{
    QFETCH(QString, knob);
    QFETCH(QString, expected);
    QVERIFY(simctl(knob));
    QString text = QStringLiteral("what was there before");
    QVERIFY(serv::CSysFailureServ().QueryLatestSysFailure(text));
    QCOMPARE(text, expected);
    QCOMPARE(QFile::exists(QStringLiteral("/tmp/.sysfail_indicator")), !expected.isEmpty());
}

// What is not there says so at once, and is used again as soon as it is back.
void TestServices::refusalsCostNoWait_data()
{
    QTest::addColumn<QStringList>("gone");
    QTest::addColumn<QStringList>("back");
    const QStringList daemon{QStringLiteral("daemon start")};
    const QStringList both{QStringLiteral("bus start"), QStringLiteral("daemon start")};
    QTest::newRow("daemon ended") << QStringList{QStringLiteral("daemon stop")} << daemon;
    QTest::newRow("bus ended") << QStringList{QStringLiteral("bus stop")} << both;
}

void TestServices::refusalsCostNoWait()
{
    QFETCH(QStringList, gone);
    QFETCH(QStringList, back);
    const auto newLink = std::make_unique<CBusLink>(Bus);
    const auto usedLink = std::make_unique<CBusLink>(Bus);
    const auto idleLink = std::make_unique<CBusLink>(Bus); // used before and after only
    QVERIFY(ask(*usedLink));
    QVERIFY(ask(*idleLink));
    for (const QString& line : gone)
        QVERIFY(simctl(line));
    for (int i = 0; i < 3; ++i) {
        QVERIFY(!ask(*newLink));
        QVERIFY(!ask(*usedLink));
    }
    QCOMPARE(s_waits.load(), 0);
    for (const QString& line : back)
        QVERIFY(simctl(line));
    QVERIFY(ask(*newLink));
    QVERIFY(ask(*usedLink));
    QVERIFY(ask(*idleLink));
}

// What hangs is waited for once; then nobody waits until it is heard of again, by answering or by its end.
void TestServices::silenceCostsOneWait_data()
{
    QTest::addColumn<QString>("silence");
    QTest::addColumn<QStringList>("end");
    QTest::newRow("daemon goes on") << "daemon freeze" << QStringList{QStringLiteral("daemon thaw")};
    QTest::newRow("daemon restarts") << "daemon freeze"
                                     << QStringList{
                                            QStringLiteral("daemon stop"), QStringLiteral("daemon start")};
    QTest::newRow("bus goes on") << "bus freeze" << QStringList{QStringLiteral("bus thaw")};
    QTest::newRow("bus restarts") << "bus freeze"
                                  << QStringList{QStringLiteral("bus stop"), QStringLiteral("bus start"),
                                         QStringLiteral("daemon start")};
}

void TestServices::silenceCostsOneWait()
{
    SKIP_UNDER_PROOT("no process can be held still");
    QFETCH(QString, silence);
    QFETCH(QStringList, end);
    CBusLink link(Bus);
    QVERIFY(ask(link));
    QVERIFY(simctl(silence));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!ask(link));
    QVERIFY(timer.elapsed() >= CBusLink::AnswerLimit);
    QVERIFY(link.isAway());
    for (int i = 0; i < 20; ++i)
        QVERIFY(!ask(link));
    QCOMPARE(s_waits.load(), 1);
    QVERIFY(link.isAway());
    for (const QString& line : end)
        QVERIFY(simctl(line));
    QTRY_VERIFY_WITH_TIMEOUT(!link.isAway(), 20000);
    QTRY_VERIFY_WITH_TIMEOUT(ask(link), 20000);
    QCOMPARE(s_waits.load(), 1);
}

// The worst start: a bus that takes the connection and never says a word.
void TestServices::silentFromTheStart()
{
    sockaddr_un place{};
    place.sun_family = AF_UNIX;
    qstrcpy(place.sun_path, "/tmp/silent-bus");
    const int server = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    QVERIFY(bind(server, reinterpret_cast<const sockaddr*>(&place), sizeof place) == 0);
    QVERIFY(listen(server, 4) == 0);
    CBusLink link("unix:path=/tmp/silent-bus");
    for (int i = 0; i < 20; ++i)
        QVERIFY(!ask(link));
    QCOMPARE(s_waits.load(), 1);
    QVERIFY(link.isAway());
    QVERIFY(close(server) == 0);
    QTRY_VERIFY_WITH_TIMEOUT(!link.isAway(), 20000);
    QVERIFY(!ask(link)); // nobody listens any more: no wait
    QCOMPARE(s_waits.load(), 1);
}

void TestServices::lateAnswerIsDropped()
{
    SKIP_UNDER_PROOT("no process can be held still");
    CBusLink link(Bus);
    QVERIFY(ask(link));
    QVERIFY(simctl(QStringLiteral("fail 9")));
    QVERIFY(simctl(QStringLiteral("daemon freeze")));
    QString text = QStringLiteral("untouched");
    QVERIFY(!ask(link, &text));
    QVERIFY(simctl(QStringLiteral("daemon thaw")));
    QTRY_VERIFY_WITH_TIMEOUT(!link.isAway(), 20000);
    QCOMPARE(text, QStringLiteral("untouched"));
    QVERIFY(simctl(QStringLiteral("fail 3")));
    QVERIFY(ask(link, &text));
    QCOMPARE(text, QStringLiteral("3 (mouse)"));
}

void TestServices::endsWhileTheBusIsSilent()
{
    SKIP_UNDER_PROOT("no process can be held still");
    auto link = std::make_unique<CBusLink>(Bus);
    QVERIFY(simctl(QStringLiteral("bus freeze")));
    QVERIFY(!ask(*link));
    QElapsedTimer timer;
    timer.start();
    link.reset();
    QVERIFY2(timer.elapsed() < 5000, "the library's own limit is 25 s");
}

void TestServices::callersOnManyThreads()
{
    CBusLink link(Bus);
    std::atomic<int> answers{0};
    std::vector<std::thread> callers;
    callers.reserve(8);
    for (int i = 0; i < 8; ++i)
        callers.emplace_back([&link, &answers] {
            for (int call = 0; call < 25; ++call)
                answers += ask(link) ? 1 : 0;
        });
    for (std::thread& caller : callers)
        caller.join();
    QCOMPARE(answers.load(), 200);
}

void TestServices::noRoomForAThread()
{
    CBusLink link(Bus);
    pthread_attr_t before;
    pthread_attr_t hugeStack; // more than there are addresses: no thread can be made
    QCOMPARE(pthread_getattr_default_np(&before), 0);
    QCOMPARE(pthread_getattr_default_np(&hugeStack), 0);
    QCOMPARE(pthread_attr_setstacksize(&hugeStack, size_t(1) << 60), 0);
    QCOMPARE(pthread_setattr_default_np(&hugeStack), 0);
    const bool isAnswered = ask(link);
    QCOMPARE(pthread_setattr_default_np(&before), 0);
    QVERIFY(!isAnswered);
    QCOMPARE(s_waits.load(), 0);
    sigset_t blocked;
    QCOMPARE(pthread_sigmask(SIG_SETMASK, nullptr, &blocked), 0);
    QCOMPARE(sigismember(&blocked, SIGTERM), 0); // held back for the thread only
    QVERIFY(ask(link)); // as soon as there is room
}

void TestServices::processExists()
{
    const QString program = QStringLiteral("/tmp/fscapture");
    QVERIFY(QFile::copy(QStringLiteral("/usr/bin/sleep"), program));
    const QString name = QStringLiteral("fscapture");
    QVERIFY(!miscutils::CCommUtils::IsProcessExist(name));
    QProcess process;
    process.start(program, {QStringLiteral("1000")});
    QVERIFY(process.waitForStarted());
    QVERIFY(miscutils::CCommUtils::IsProcessExist(name));
    QVERIFY(!miscutils::CCommUtils::IsProcessExist(QStringLiteral("fscap")));
    QVERIFY(!miscutils::CCommUtils::IsProcessExist(QStringLiteral("1000")));
    QVERIFY(!miscutils::CCommUtils::IsProcessExist(QString()));
    process.kill();
    QVERIFY(process.waitForFinished());
    QVERIFY(!miscutils::CCommUtils::IsProcessExist(name));
}

// Its parent has not looked at it yet, so it has its name in the process table.
void TestServices::endedProcessDoesNotExist()
{
    const QByteArray program = "/tmp/wsa) Z"; // a name that looks like a part of the table
    QVERIFY(QFile::copy(QStringLiteral("/usr/bin/sleep"), QString::fromLatin1(program)));
    const QString name = QString::fromLatin1(program.mid(5));
    const pid_t child = fork();
    if (child == 0) {
        execl(program.constData(), program.constData(), "1000", nullptr);
        _exit(1);
    }
    QTRY_VERIFY(miscutils::CCommUtils::IsProcessExist(name));
    QCOMPARE(kill(child, SIGKILL), 0);
    siginfo_t end = {};
    QCOMPARE(waitid(P_PID, id_t(child), &end, WEXITED | WNOWAIT), 0);
    QFile comm(QStringLiteral("/proc/%1/comm").arg(child));
    QVERIFY(comm.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromLatin1(comm.readAll().trimmed()), name); // still there
    QVERIFY(!miscutils::CCommUtils::IsProcessExist(name));
    QCOMPARE(waitpid(child, nullptr, 0), child);
}

QTEST_GUILESS_MAIN(TestServices)
#include "tst_services.moc"
