#include "shellprocess.h"

#include "fixtureplugins.h"
#include "globalsetting.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <csignal>
#include <cstring>
#include <sys/ipc.h>
#include <sys/shm.h>

namespace {

const QString CONF_DIR = QStringLiteral("/home/root/.zentra");
constexpr const char KEY_FILE[] = "/usr/local/arvo/share/res/keys/global";
constexpr int KEY_PROJECT = 86;

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly | QIODevice::Truncate), qPrintable(path));
    file.write(content);
}

QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

int segment(size_t size, int flags)
{
    return ::shmget(::ftok(KEY_FILE, KEY_PROJECT), size, flags);
}

} // namespace

/** The real program in a whole instrument: how it starts, what it survives, how it ends. */
class TestShell : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void endsInOrder_data();
    void endsInOrder();
    void signalDuringStart_data();
    void signalDuringStart();
    void xServerGoesAway();

    void badConfigurationIsRecovered_data();
    void badConfigurationIsRecovered();
    void readOnlyConfigurationDirectory();
    void languageFileIsFollowed();
    void sharedSegmentTrouble_data();
    void sharedSegmentTrouble();
    void withoutBus();
};

void TestShell::init()
{
    if (QFileInfo(CONF_DIR).isSymLink())
        QFile::remove(CONF_DIR); // not what it leads to
    else
        QDir(CONF_DIR).removeRecursively();
    clearPluginCalls();
}

void TestShell::endsInOrder_data()
{
    QTest::addColumn<int>("sig");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void TestShell::endsInOrder()
{
    QFETCH(int, sig);
    const QString resident = PLUGIN_DIR + QStringLiteral("libIPtool.so");
    const QString kept = PLUGIN_DIR + QStringLiteral("kept");
    QVERIFY(QFile::rename(resident, kept));
    installFixture("libfixture_recorder.so", QStringLiteral("libIPtool.so"));

    CShellProcess shell;
    QVERIFY2(shell.waitForHome(), qPrintable(shell.log()));
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("bkgRun"))); // an earlier signal ends the shell before
    shell.sendSignal(sig);
    QVERIFY(shell.waitForLog(QStringLiteral("###Signal %1 Terminate is comming!").arg(sig)));
    shell.sendSignal(sig); // nothing more for a second one
    QVERIFY(shell.waitForEnd());
    QCOMPARE(shell.exitCode(), 0);
    const QStringList calls = pluginCalls();
    QCOMPARE(calls.count(QStringLiteral("bkgRun")), 1);
    QCOMPARE(calls.count(QStringLiteral("terminate")), 1);
    QCOMPARE(shell.log().count(QStringLiteral("handleSignal ready to save profile")), 1);

    QFile::remove(resident);
    QVERIFY(QFile::rename(kept, resident));
}

void TestShell::signalDuringStart_data()
{
    QTest::addColumn<QString>("moment");
    QTest::newRow("before the window") << QStringLiteral("Current System Language");
    QTest::newRow("while the window is made") << QStringLiteral("CMainWindow::signalInit()");
    QTest::newRow("while it is shown") << QStringLiteral("### XGetWindowProperty");
}

void TestShell::signalDuringStart()
{
    QFETCH(QString, moment);
    CShellProcess shell;
    QVERIFY2(shell.waitForLog(moment), qPrintable(shell.log()));
    shell.sendSignal(SIGTERM);
    QVERIFY2(shell.waitForEnd(), qPrintable(shell.log()));
    QCOMPARE(shell.exitCode(), 0);
}

void TestShell::xServerGoesAway()
{
    QProcess server;
    server.setProcessChannelMode(QProcess::SeparateChannels);
    server.start(QStringLiteral("Xvfb"),
        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
            QStringLiteral("800x480x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    QTRY_VERIFY_WITH_TIMEOUT(
        server.canReadLine() || (server.waitForReadyRead(100) && server.canReadLine()), 30000);
    const QString display = QStringLiteral(":") + QString::fromLatin1(server.readLine()).trimmed();
    CShellProcess shell({QStringLiteral("DISPLAY=") + display});
    QVERIFY(shell.waitForLog(QStringLiteral("### XGetWindowProperty")));
    server.kill();
    server.waitForFinished();
    QVERIFY(shell.waitForEnd());
    QCOMPARE(shell.exitCode(), 1);
    QVERIFY2(shell.log().contains(QStringLiteral("X11 connection broke")), qPrintable(shell.log()));
}

void TestShell::badConfigurationIsRecovered_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("truncated") << QByteArray("<TAVO><language type=\"ge\"");
    QTest::newRow("binary") << QByteArray("\0\1\2\377\376<TAVO/>", 12);
    QTest::newRow("50 MB") << QByteArray("<TAVO>") + QByteArray(50 << 20, 'x') + QByteArray("</TAVO>");
}

void TestShell::badConfigurationIsRecovered()
{
    QFETCH(QByteArray, content);
    QDir().mkpath(CONF_DIR);
    const QString settings = CONF_DIR + QStringLiteral("/zentra-settings.xml");
    const QString style = CONF_DIR + QStringLiteral("/widget-style.xml");
    write(settings, content);
    write(style, content);
    CShellProcess shell;
    QVERIFY2(shell.waitForHome(), qPrintable(shell.log()));
    QVERIFY(read(settings).contains("<language type=\"en\""));
    QVERIFY(read(style).size() > 100);
    QVERIFY(content.isEmpty() || read(settings + QStringLiteral(".rejected")) == content);
}

void TestShell::readOnlyConfigurationDirectory()
{
    QVERIFY(QFile::link(QStringLiteral("/proc"), CONF_DIR)); // nothing can be made there
    CShellProcess shell;
    QVERIFY2(shell.waitForHome(), qPrintable(shell.log()));
    QVERIFY(shell.log().contains(QStringLiteral("zentra-settings.xml]: Can not recover configuration")));
}

void TestShell::languageFileIsFollowed()
{
    QDir().mkpath(CONF_DIR);
    write(CONF_DIR + QStringLiteral("/zentra-settings.xml"), "<TAVO><language type=\"hu\"/></TAVO>");
    CShellProcess shell;
    QVERIFY2(shell.waitForHome(), qPrintable(shell.log()));
    QVERIFY(shell.log().contains(QStringLiteral("Current System Language: Hungarian")));
    // The platform's language service got the number it counts Hungarian by.
    QTRY_COMPARE(read(QStringLiteral("/tmp/var/sim/language")).trimmed(), QByteArray("9"));
}

void TestShell::sharedSegmentTrouble_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("no segment") << 0;
    QTest::newRow("smaller than the block") << 1000;
}

void TestShell::sharedSegmentTrouble()
{
    QFETCH(int, size);
    const int old = segment(0, 0);
    if (old >= 0)
        ::shmctl(old, IPC_RMID, nullptr);
    char* memory = nullptr;
    if (size > 0) {
        memory = static_cast<char*>(::shmat(segment(size_t(size), IPC_CREAT | 0600), nullptr, 0));
        std::memset(memory, 0x5a, size_t(size));
    }
    {
        CShellProcess shell;
        QVERIFY2(shell.waitForHome(), qPrintable(shell.log()));
        QVERIFY(shell.log().contains(QStringLiteral("Get Global Setting share memory error!")));
    }
    if (memory) {
        QCOMPARE(QByteArray(memory, size), QByteArray(size, 0x5a));
        ::shmdt(memory);
        ::shmctl(segment(0, 0), IPC_RMID, nullptr);
    }
    QVERIFY(segment(sizeof(stArvo_global_setting), IPC_CREAT | 0600) >= 0);
}

void TestShell::withoutBus()
{
    QCOMPARE(QProcess::execute(QStringLiteral("simctl"), {QStringLiteral("bus"), QStringLiteral("stop")}), 0);
    CShellProcess shell;
    QVERIFY2(shell.waitForHome(), qPrintable(shell.log()));
    QVERIFY2(shell.waitForLog(QStringLiteral("### ERROR: FILE:")), qPrintable(shell.log()));
    shell.sendSignal(SIGTERM);
    QVERIFY(shell.waitForEnd());
    QCOMPARE(shell.exitCode(), 0);
    QCOMPARE(
        QProcess::execute(QStringLiteral("simctl"), {QStringLiteral("bus"), QStringLiteral("start")}), 0);
}

QTEST_GUILESS_MAIN(TestShell)
#include "tst_shell.moc"
