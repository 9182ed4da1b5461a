#include "hostaddress.h"
#include "utilinterface.h"

#include "widgets/checkbox/checkbox.h"
#include "widgets/label/label.h"
#include "widgets/parmlineedit/parmlineedit.h"
#include "widgets/pushbutton/pushbutton.h"

#include <QDir>
#include <QFile>
#include <QPluginLoader>
#include <QTest>
#include <QWidget>

#include "boxanswer.h"

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

int descriptors()
{
    return int(QDir(QStringLiteral("/proc/self/fd")).count());
}

} // namespace

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
    void stopWithoutStart();

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
    m_loader.setFileName(QStringLiteral("/usr/local/arvo/plugins/libIPtool.so"));
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
    const int before = descriptors();
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
    QCOMPARE(descriptors(), before);
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
    const int before = descriptors();
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
    QTRY_COMPARE(descriptors(), before);
}

void TestIpTools::stopWithoutStart()
{
    QVERIFY(!m_plugin->stop());
    m_plugin->hide();
    m_plugin->show();
    m_plugin->update();
    m_plugin->terminate();
}

QTEST_MAIN(TestIpTools)
#include "tst_iptools.moc"
