#include "hostaddress.h"
#include "outputview.h"
#include "utilinterface.h"

#include "widgets/checkbox/checkbox.h"
#include "widgets/label/label.h"
#include "widgets/parmlineedit/parmlineedit.h"
#include "widgets/pushbutton/pushbutton.h"

#include <QDir>
#include <QFile>
#include <QPluginLoader>
#include <QProcess>
#include <QTest>
#include <QWidget>

#include "boxanswer.h"
#include "testfiles.h"

namespace {

/** Command lines of the processes now running whose program is `name`. */
QByteArrayList running(const char* name)
{
    QByteArrayList found;
    for (const QString& entry : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        QFile file(QStringLiteral("/proc/%1/cmdline").arg(entry));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray line = file.readAll();
        if (line.split('\0').first().endsWith(name))
            found << line;
    }
    return found;
}

const QString LIBRARY = QStringLiteral("/usr/local/arvo/plugins/libIPtool.so");

/** Why ping does not run here, for a user who may not open its sockets; empty when it does. */
QString pingRefusal()
{
    QProcess ping;
    ping.setProcessChannelMode(QProcess::MergedChannels);
    ping.start(
        QStringLiteral("ping"), {QStringLiteral("-n"), QStringLiteral("-c1"), QStringLiteral("127.0.0.1")});
    const bool isEnded = ping.waitForFinished();
    return isEnded && ping.exitCode() == 0
        ? QString()
        : QStringLiteral("ping is refused: ") + QString::fromUtf8(ping.readAll()).simplified();
}

} // namespace

#define NEEDS_PING()                                                                                         \
    do {                                                                                                     \
        if (const QString refusal = pingRefusal(); !refusal.isEmpty())                                       \
            QSKIP(qPrintable(refusal));                                                                      \
    } while (false)

/** The IP Tools plug-in, against the loopback interface. */
class TestIpTools : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void address_data();
    void address();
    void badAddressIsRefused();
    void pingIsLiveAndStops();
    void traceEndsByItself();
    void leavingThePageEndsTheRun();
    void backgroundRunOutlivesThePage();
    void windowMayGoFirst();
    void nothingIsLeftWhenTheShellDies();
    void longLinesGoOnInTheNextRow();
    void whatIsReadStaysInView_data();
    void whatIsReadStaysInView();
    void pagesAreTurned();

private:
    template <typename T> T* part(const char* name) { return m_host.findChild<T*>(QLatin1String(name)); }
    void enter(const char* address) { part<CParmLineEdit>("address")->setText(QLatin1String(address)); }
    bool isRunning() { return part<CPushButton>("stop")->isEnabled(); }

    QWidget m_host;
    QPluginLoader m_loader;
    UtilInterface* m_plugin = nullptr;
};

void TestIpTools::initTestCase()
{
    m_host.resize(800, 460);
    m_host.show();
    m_loader.setFileName(LIBRARY);
    m_plugin = qobject_cast<UtilInterface*>(m_loader.instance());
    QVERIFY2(m_plugin, qPrintable(m_loader.errorString()));
    QVERIFY(m_plugin->bkgRun(&m_host));
    QVERIFY(running("ping").isEmpty());
}

void TestIpTools::cleanup()
{
    m_plugin->terminate();
    m_plugin->stop();
    QTRY_VERIFY(running("ping").isEmpty());
}

void TestIpTools::address_data()
{
    QTest::addColumn<bool>("isValid");
    const struct
    {
        const char* text;
        bool isValid;
    } rows[] = {
        {"127.0.0.1", true},
        {"::1", true},
        {"fe80::1%eth0", true},
        {"localhost", true},
        {"unit-7.lab_2.example.org", true},
        {"3com.example", true},
        {"", false},
        {"-f", false},
        {"-c1 127.0.0.1", false},
        {"256.1.1.1", false},
        {"1.2.3", false},
        {"a..b", false},
        {"a.-b", false},
        {"host;reboot", false},
        {"host name", false},
        {"fe80::1%-x", false},
        {"::g", false},
        {"\xc3\xa4.example", false},
    };
    for (const auto& row : rows)
        QTest::newRow(row.text) << row.isValid;
}

void TestIpTools::address()
{
    QFETCH(bool, isValid);
    QCOMPARE(isHostAddress(QString::fromUtf8(QTest::currentDataTag())), isValid);
}

void TestIpTools::badAddressIsRefused()
{
    QVERIFY(m_plugin->start(&m_host));
    enter("-f");
    CBoxAnswer box("ok");
    part<CPushButton>("ping")->click();
    QVERIFY(box.isAnswered());
    QVERIFY(!box.text().isEmpty());
    QVERIFY(!isRunning());
    QVERIFY(running("ping").isEmpty());
}

void TestIpTools::pingIsLiveAndStops()
{
    NEEDS_PING();
    QVERIFY(m_plugin->start(&m_host));
    enter("127.0.0.1");
    auto* output = part<QWidget>("output");
    const QImage empty = output->grab().toImage();
    part<CPushButton>("ping")->click();
    QVERIFY(isRunning());
    QVERIFY(!part<CPushButton>("ping")->isEnabled());
    QVERIFY(part<CLabel>("state")->text().contains(QStringLiteral("127.0.0.1")));
    QTRY_VERIFY(output->grab().toImage() != empty);
    QCOMPARE(running("ping").size(), 1);
    part<CPushButton>("stop")->click();
    QTRY_VERIFY(!isRunning());
    QTRY_VERIFY(running("ping").isEmpty());
    QVERIFY(m_plugin->stop());
    QVERIFY(!m_plugin->bIsStarted);
}

void TestIpTools::traceEndsByItself()
{
    QVERIFY(m_plugin->start(&m_host));
    enter("127.0.0.1");
    part<CPushButton>("trace")->click();
    QTRY_VERIFY_WITH_TIMEOUT(!isRunning(), 20000);
    QVERIFY(part<CPushButton>("trace")->isEnabled());
}

void TestIpTools::leavingThePageEndsTheRun()
{
    NEEDS_PING();
    QVERIFY(m_plugin->start(&m_host));
    part<CCheckBox>("background")->setChecked(false);
    enter("127.0.0.1");
    part<CPushButton>("ping")->click();
    QTRY_COMPARE(running("ping").size(), 1);
    QVERIFY(m_plugin->stop());
    QTRY_VERIFY(running("ping").isEmpty());
}

void TestIpTools::backgroundRunOutlivesThePage()
{
    NEEDS_PING();
    const int before = openDescriptors();
    QVERIFY(m_plugin->start(&m_host));
    part<CCheckBox>("background")->setChecked(true);
    enter("127.0.0.1");
    part<CPushButton>("ping")->click();
    QTRY_COMPARE(running("ping").size(), 1);
    QVERIFY(m_plugin->stop());
    QVERIFY(!part<QWidget>("ipToolsPage"));
    QCOMPARE(running("ping").size(), 1);

    QVERIFY(m_plugin->start(&m_host)); // shows the run that went on
    QVERIFY(isRunning());
    QVERIFY(part<CCheckBox>("background")->isChecked());
    QCOMPARE(part<CParmLineEdit>("address")->text(), QStringLiteral("127.0.0.1"));
    QVERIFY(m_plugin->stop());

    m_plugin->terminate();
    QTRY_VERIFY(running("ping").isEmpty());
    QTRY_COMPARE(openDescriptors(), before);
}

void TestIpTools::windowMayGoFirst()
{
    {
        QWidget window;
        QVERIFY(m_plugin->start(&window));
    }
    m_plugin->update();
    QVERIFY(!m_plugin->stop());
}

void TestIpTools::nothingIsLeftWhenTheShellDies()
{
    NEEDS_PING();
    QProcess shell;
    shell.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--ping")});
    QTRY_COMPARE(running("ping").size(), 1);
    shell.kill(); // nobody gets to end the ping
    QVERIFY(shell.waitForFinished());
    QTRY_VERIFY(running("ping").isEmpty());
}

void TestIpTools::longLinesGoOnInTheNextRow()
{
    COutputView view(nullptr);
    view.resize(400, 200);
    view.show();
    const auto look = [&view](const QStringList& lines) {
        view.setLines(lines, lines.size());
        return view.grab().toImage();
    };
    const QString begin = QStringLiteral("From 192.0.2.1 ").repeated(8), end = QStringLiteral("unreachable");
    QVERIFY(look({begin + end}) != look({begin}));
    QVERIFY(look({begin + end, end}) != look({begin + end}));
    view.setLines(QStringList(begin + end), 1);
    QVERIFY(!view.canScrollBack());
    view.resize(60, 200); // a word a row: too high now
    QVERIFY(view.canScrollBack());
}

void TestIpTools::whatIsReadStaysInView_data()
{
    QTest::addColumn<int>("repeats");
    QTest::newRow("short lines") << 1;
    QTest::newRow("long lines") << 20;
}

void TestIpTools::whatIsReadStaysInView()
{
    QFETCH(int, repeats);
    constexpr int limit = 500;
    COutputView view(nullptr);
    view.resize(400, 200);
    QStringList lines;
    int total = 0;
    const auto add = [&] {
        lines << QStringLiteral("line %1 ").arg(++total).repeated(repeats);
        if (lines.size() > limit)
            lines.removeFirst();
        view.setLines(lines, total);
    };
    for (int i = 0; i < limit; ++i)
        add();
    QVERIFY(!view.canScrollOn()); // follows
    view.scrollPages(-2);
    const QImage reading = view.grab().toImage();
    add(); // the oldest line is dropped, which must not move what is read
    QCOMPARE(view.grab().toImage(), reading);
    view.scrollPages(2 + limit);
    const QImage end = view.grab().toImage();
    add();
    QVERIFY(view.grab().toImage() != end);

    view.scrollPages(-1000);
    QVERIFY(!view.canScrollBack());
    const QImage top = view.grab().toImage();
    QTest::mousePress(&view, Qt::LeftButton, {}, {100, 150});
    QMouseEvent drag(QEvent::MouseMove, QPointF(100, 50), Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&view, &drag);
    QVERIFY(view.canScrollBack()); // dragged up: later lines come into view
    QVERIFY(view.grab().toImage() != top);

    view.setLines({QStringLiteral("a new run")}, 1);
    QVERIFY(!view.canScrollBack() && !view.canScrollOn());
}

void TestIpTools::pagesAreTurned()
{
    QVERIFY(m_plugin->start(&m_host));
    auto* up = part<CPushButton>("pageUp");
    auto* down = part<CPushButton>("pageDown");
    QVERIFY(!up->isEnabled() && !down->isEnabled());
    QStringList lines;
    for (int i = 0; i < 100; ++i)
        lines << QString::number(i);
    static_cast<COutputView*>(part<QWidget>("output"))->setLines(lines, 100);
    QVERIFY(up->isEnabled() && !down->isEnabled());
    up->click();
    QVERIFY(up->isEnabled() && down->isEnabled());
    down->click();
    QVERIFY(up->isEnabled() && !down->isEnabled());
}

/** Stands in for the shell: pings until it is killed. */
int pingForEver()
{
    QWidget window;
    QPluginLoader loader(LIBRARY);
    auto* plugin = qobject_cast<UtilInterface*>(loader.instance());
    if (!plugin || !plugin->start(&window))
        return EXIT_FAILURE;
    window.findChild<CParmLineEdit*>(QStringLiteral("address"))->setText(QStringLiteral("127.0.0.1"));
    window.findChild<CPushButton*>(QStringLiteral("ping"))->click();
    return QCoreApplication::exec();
}

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    if (application.arguments().contains(QStringLiteral("--ping")))
        return pingForEver();
    TestIpTools test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_iptools.moc"
