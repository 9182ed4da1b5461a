#include "mainwindow.h"
#include "shellservice.h"
#include "sigtransfer.h"

#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "backend.h"
#include "withdialog.h"

namespace {

/** A command at work beside the event loop. */
class CCommand
{
public:
    explicit CCommand(const QString& line)
    {
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(QStringLiteral("sh"), {QStringLiteral("-c"), line});
    }

    /** Runs the event loop until the command has ended. @return its exit status, -1 when it does not end */
    int wait()
    {
        const bool hasEnded
            = QTest::qWaitFor([this] { return m_process.state() == QProcess::NotRunning; }, 30000);
        return hasEnded ? m_process.exitCode() : -1;
    }
    QByteArray output() { return m_output += m_process.readAll(); }

private:
    QProcess m_process;
    QByteArray m_output;
};

int bus(const char* action)
{
    return CCommand(QStringLiteral("simctl bus ") + QLatin1String(action)).wait();
}

} // namespace

/** Other processes ask the shell for pages on the real bus, and the bus comes and goes. */
class TestShellService : public QObject
{
    Q_OBJECT

private slots:
    void opensInformationPages_data();
    void opensInformationPages();
    void asksTheRelay_data();
    void asksTheRelay();
    void tellsWhatIsWrong_data();
    void tellsWhatIsWrong();
    void floodLeavesRoom();
    void busComesAndGoes_data();
    void busComesAndGoes();
};

void TestShellService::opensInformationPages_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("other");
    QTest::newRow("power") << QStringLiteral("power") << QStringLiteral("storage");
    QTest::newRow("storage") << QStringLiteral("storage") << QStringLiteral("power");
}

void TestShellService::opensInformationPages()
{
    QFETCH(QString, page);
    QFETCH(QString, other);
    CMainWindow window(nullptr);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    CCommand first(QStringLiteral("simctl show ") + page);
    QString shown;
    CWithDialog modal([&](CDialog* dialog) {
        shown = QString::fromLatin1(dialog->metaObject()->className());
        // Answered although the page is open, and so is the next call.
        QCOMPARE(first.wait(), 0);
        CCommand again(QStringLiteral("simctl show ") + page);
        QCOMPARE(again.wait(), 0);
        QCOMPARE(window.findChildren<CDialog*>().size(), 1);
        dialog->close();
    });
    QTRY_VERIFY_WITH_TIMEOUT(modal.isDone(), 10000);
    QVERIFY2(shown.contains(page, Qt::CaseInsensitive), qPrintable(shown));
    QVERIFY(!shown.contains(other, Qt::CaseInsensitive));
}

void TestShellService::asksTheRelay_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<int>("utility");
    QTest::newRow("help") << QStringLiteral("help") << int(UTILITY_ID_HELP);
    QTest::newRow("disk") << QStringLiteral("disk") << int(UTILITY_ID_DISK_MANAGE);
}

void TestShellService::asksTheRelay()
{
    QFETCH(QString, page);
    QFETCH(int, utility);
    CSigTransfer relay;
    g_pSigTransfer = &relay;
    QSignalSpy asked(&relay, &CSigTransfer::currentUtilChanged);
    const CShellService service(nullptr);
    CCommand command(QStringLiteral("simctl show ") + page);
    QCOMPARE(command.wait(), 0);
    QTRY_COMPARE(asked.count(), 1);
    QCOMPARE(asked.first().first().toInt(), utility);
}

void TestShellService::tellsWhatIsWrong_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("answer");
    const QString call = QStringLiteral("dbus-send --bus=unix:path=/run/dbus/system_bus_socket --print-reply "
                                        "--dest=org.zentra.Shell /org/zentra/Shell ");
    QTest::newRow("unknown page")
        << QStringLiteral("simctl show kitchen") << 2
        << QByteArray("simctl: there is no page 'kitchen'; use one of: power, storage, help, disk");
    QTest::newRow("its error has a name") << call + QStringLiteral("org.zentra.Shell.Show string:") << 1
                                          << QByteArray("org.zentra.Shell.Error.UnknownPage");
    QTest::newRow("no page") << QStringLiteral("simctl show") << 2 << QByteArray("the name of one page");
    QTest::newRow("a number") << call + QStringLiteral("org.zentra.Shell.Show int32:1") << 1
                              << QByteArray("InvalidArgs");
    QTest::newRow("introspection") << call + QStringLiteral("org.freedesktop.DBus.Introspectable.Introspect")
                                   << 0 << QByteArray("<arg type=\"s\" name=\"page\" direction=\"in\"/>");
}

void TestShellService::tellsWhatIsWrong()
{
    QFETCH(QString, line);
    QFETCH(int, status);
    QFETCH(QByteArray, answer);
    CSigTransfer relay;
    g_pSigTransfer = &relay;
    QSignalSpy asked(&relay, &CSigTransfer::queryPowerInfo);
    const CShellService service(nullptr);
    CCommand up(QStringLiteral("simctl show power")); // the name is there
    QCOMPARE(up.wait(), 0);
    CCommand command(line);
    QCOMPARE(command.wait(), status);
    QVERIFY2(command.output().contains(answer), command.output().constData());
    QCOMPARE(asked.count(), 1);
}

void TestShellService::floodLeavesRoom()
{
    CSigTransfer relay;
    g_pSigTransfer = &relay;
    QSignalSpy asked(&relay, &CSigTransfer::queryPowerInfo);
    const CShellService service(nullptr);
    CCommand up(QStringLiteral("simctl show power"));
    QCOMPARE(up.wait(), 0);
    // Nothing is taken while the loop stands still here; then all of it is there at once.
    QCOMPARE(
        QProcess::execute(QStringLiteral("sh"),
            {QStringLiteral("-c"),
                QStringLiteral("for n in 1 2 3 4 5 6 7 8 9 10; do "
                               "dbus-send --type=method_call --bus=unix:path=/run/dbus/system_bus_socket "
                               "--dest=org.zentra.Shell /org/zentra/Shell org.zentra.Shell.Show "
                               "string:power; done")}),
        0);
    QTimer turn;
    int turns = 0;
    connect(&turn, &QTimer::timeout, this, [&turns] { ++turns; });
    turn.start(0);
    QSet<int> turnsThatAsked;
    connect(&relay, &CSigTransfer::queryPowerInfo, &turn, [&] { turnsThatAsked.insert(turns); });
    QTRY_COMPARE(asked.count(), 11);
    QVERIFY(turnsThatAsked.size() > 1);
}

void TestShellService::busComesAndGoes_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<bool>("isLost");
    QTest::newRow("missing at the start") << QByteArray("stop") << QByteArray("start") << true;
    QTest::newRow("frozen at the start") << QByteArray("freeze") << QByteArray("thaw") << false;
}

void TestShellService::busComesAndGoes()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(bool, isLost);
    if (!isLost)
        SKIP_UNDER_PROOT("no process can be held still");
    CSigTransfer relay;
    g_pSigTransfer = &relay;
    QSignalSpy asked(&relay, &CSigTransfer::queryPowerInfo);
    const QRegularExpression trouble(QStringLiteral("^Shell service: .*again"));
    // Twice: a bus that is away at the start, and one that goes from a service that is connected.
    std::unique_ptr<CShellService> service;
    for (int answered = 1; answered <= 2; ++answered) {
        if (isLost)
            QTest::ignoreMessage(QtWarningMsg, trouble);
        QCOMPARE(bus(before), 0);
        if (!service)
            service = std::make_unique<CShellService>(nullptr); // returns, or the bus stays as it is
        QCOMPARE(bus(after), 0);
        // A call is patient for as long as the service between two tries.
        CCommand command(QStringLiteral("simctl show power || simctl show power"));
        QCOMPARE(command.wait(), 0);
        QTRY_COMPARE(asked.count(), answered);
    }
}

QTEST_MAIN(TestShellService)
#include "tst_shellservice.moc"
