#include "shellprocess.h"

#include "fixtureplugins.h"
#include "testfiles.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <csignal>

namespace {

const QString CONF_DIR = QStringLiteral("/home/root/.zentra");

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

    void badConfigurationIsRecovered();
    void readOnlyConfigurationDirectory();
    void languageFileIsFollowed();
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

void TestShell::badConfigurationIsRecovered()
{
    const QByteArray content("\0\1\2\377\376<TAVO/>", 12);
    const QString settings = CONF_DIR + QStringLiteral("/zentra-settings.xml");
    const QString style = CONF_DIR + QStringLiteral("/widget-style.xml");
    writeFile(settings, content);
    writeFile(style, content);
    CShellProcess shell;
    QVERIFY2(shell.waitForHome(), qPrintable(shell.log()));
    QVERIFY(readFile(settings).contains("<language type=\"en\""));
    QVERIFY(readFile(style).size() > 100);
    QVERIFY(readFile(settings + QStringLiteral(".rejected")) == content);
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
    writeFile(CONF_DIR + QStringLiteral("/zentra-settings.xml"), "<TAVO><language type=\"hu\"/></TAVO>");
    CShellProcess shell;
    QVERIFY2(shell.waitForHome(), qPrintable(shell.log()));
    QVERIFY(shell.log().contains(QStringLiteral("Current System Language: Hungarian")));
    // The platform's language service got the number it counts Hungarian by.
    QTRY_COMPARE(readFile(QStringLiteral("/tmp/var/sim/language")).trimmed(), QByteArray("9"));
}

void TestShell::withoutBus()
{
    QVERIFY(simctl("bus stop"_s));
    CShellProcess shell;
    QVERIFY2(shell.waitForHome(), qPrintable(shell.log()));
    QVERIFY2(shell.waitForLog(QStringLiteral("### ERROR: FILE:")), qPrintable(shell.log()));
    shell.sendSignal(SIGTERM);
    QVERIFY(shell.waitForEnd());
    QCOMPARE(shell.exitCode(), 0);
    QVERIFY(simctl("bus start"_s));
}

QTEST_GUILESS_MAIN(TestShell)
#include "tst_shell.moc"
