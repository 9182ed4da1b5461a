#include "commutils.h"
#include "devicemonitor.h"
#include "drivenwindow.h"
#include "sigtransfer.h"
#include "systemsettingsmenu.h"
#include "topbar.h"
#include "widgets/entrywidget/entrywidget.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include "boxanswer.h"
#include "infopage.h"
#include "withdialog.h"

namespace {

/** What the unit's screen was told: whether the battery drives it, and the level. */
using ScreenCalls = QVector<QPair<bool, int>>;
const QString SETTINGS_FILE = "/home/root/.zentra/zentra-settings.xml"_s;

ScreenCalls s_sleeps;
ScreenCalls s_wakeups;

} // namespace

// The linker puts these in the place of the monitor's hooks, which are a unit's to fill.
extern "C" {
void __wrap__ZN14CDeviceMonitor11sleepScreenEbi(CDeviceMonitor*, bool isBattery, int level) // NOLINT
{
    s_sleeps.append({isBattery, level});
}
void __wrap__ZN14CDeviceMonitor12wakeupScreenEbi(CDeviceMonitor*, bool isBattery, int level) // NOLINT
{
    s_wakeups.append({isBattery, level});
}
}

/** What a launch sets going by itself: nothing here calls the window, but for the change of its language. */
class TestLaunch : public QObject, private CDrivenWindow
{
    Q_OBJECT

private slots:
    void initTestCase();
    void laterFailureIsReported();
    void recordsReachEverybody();
    void wifiButton();
    void informationPages();
    void languageIsChanged_data();
    void languageIsChanged();
    void backlightGoesOff_data();
    void backlightGoesOff();

private:
    CDeviceMonitor* monitor() const { return m_window->findChild<CDeviceMonitor*>(); }
};

void TestLaunch::initTestCase()
{
    writeFile(SETTINGS_FILE, "<TAVO/>");
    QVERIFY(simctl("wifi link 63"_s));
    QVERIFY(simctl("fail 9"_s));
    CBoxAnswer failure("ok");
    open();
    QTRY_VERIFY_WITH_TIMEOUT(failure.isAnswered(), 20000);
    QCOMPARE(failure.title(), "System Error"_s);
    QVERIFY2(failure.text().contains("9 (battery)"_s), qPrintable(failure.text()));
    QTRY_VERIFY(!QFile::exists(FAILURE_MARK));
    QCOMPARE(s_wakeups.value(0), qMakePair(false, 1));
}

void TestLaunch::laterFailureIsReported()
{
    CBoxAnswer failure("ok");
    QVERIFY(simctl("fail 3"_s));
    QTRY_VERIFY_WITH_TIMEOUT(failure.isAnswered(), 20000);
    QVERIFY2(failure.text().contains("3 (mouse)"_s), qPrintable(failure.text()));
    QTRY_VERIFY(!QFile::exists(FAILURE_MARK));
}

void TestLaunch::recordsReachEverybody()
{
    using Relay = CSigTransfer;
    QSignalSpy power(g_pSigTransfer, &Relay::powerStatusChanged);
    QSignalSpy others[]
        = {{g_pSigTransfer, &Relay::bluetoothStatusChanged}, {g_pSigTransfer, &Relay::storageStatusChanged},
            {g_pSigTransfer, &Relay::wifiStatusChanged}, {g_pSigTransfer, &Relay::opmStatusChanged},
            {g_pSigTransfer, &Relay::gpsStatusChanged}, {g_pSigTransfer, &Relay::dataCardStatusChanged}};
    QTRY_VERIFY(!power.isEmpty());
    QCOMPARE(power.first().first().value<PowerStatus>().fullCap, -1); // nothing is known of a battery here
    for (QSignalSpy& each : others)
        QTRY_VERIFY2(!each.isEmpty(), each.signal().constData());
}

void TestLaunch::wifiButton()
{
    QTRY_VERIFY(icon("wifiWizardButton")->isVisible());
    CBoxAnswer notInstalled("ok");
    icon("wifiWizardButton")->click();
    QTRY_VERIFY(notInstalled.isAnswered());
    QCOMPARE(caption(), "Home>Tools>WiFi Wiz"_s);
    QVERIFY(simctl("wifi off"_s));
    QTRY_VERIFY(icon("wifiWizardButton")->isHidden());
}

void TestLaunch::informationPages()
{
    PowerStatus battery;
    battery.bIsBat = true;
    battery.fullCap = 100;
    battery.remainCap = 37;
    CWithDialog powerPage([&](CDialog* page) {
        emit monitor()->powerStatusChanged(battery);
        QCOMPARE(textOf(*page, "capacity"), "37%"_s);
        page->reject();
    });
    emit page<CTopBar>()->powerTriggered();
    QVERIFY(powerPage.isDone());

    CWithDialog storagePage([](CDialog* page) {
        QVERIFY(textOf(*page, "diskAvail").toInt() > 0);
        page->reject();
    });
    emit page<CTopBar>()->storageTriggered();
    QVERIFY(storagePage.isDone());
}

void TestLaunch::languageIsChanged_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("file"); // in the settings file
    QTest::addColumn<QByteArray>("service"); // number for the other processes
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("remoteAccess");
    const auto row = [](const char* file, LanguageCode code, const char* service, const char* settings,
                         const char* remoteAccess) {
        QTest::newRow(file) << int(code) << QString::fromUtf8(file) << QByteArray(service)
                            << QString::fromUtf8(settings) << QString::fromUtf8(remoteAccess);
    };
    row("ge", LANGUAGE_GERMAN, "2", "Einstellungen", "Fernzugriff");
    row("fr", LANGUAGE_FRENCH, "3", "Réglages", "Accès distant");
    row("hu", LANGUAGE_HUNGARIAN, "9", "Beállítás", "Távoli elérés");
    row("ja", LANGUAGE_JAPANESE, "4", "設定", "リモートアクセス");
    row("ru", LANGUAGE_RUSSIAN, "5", "Настройки", "Удал. доступ");
    row("zh_CN", LANGUAGE_CHINESE, "1", "设置", "远程访问");
    row("en", LANGUAGE_ENGLISH, "0", "Settings", "Remote Access");
}

void TestLaunch::languageIsChanged()
{
    QFETCH(int, code);
    QFETCH(QString, file);
    QFETCH(QByteArray, service);
    QFETCH(QString, settings);
    QFETCH(QString, remoteAccess);
    choose(UTILITY_ID_SETTINGS);
    const QString color = "#0000%1"_s.arg(10 + code - LANGUAGE_ENGLISH); // another theme each time
    writeFile(CUICommUtils::getWidgetStyleFileName(),
        "<widget-style version='1'><color code='9' value='%1'/></widget-style>"_s.arg(color).toUtf8());
    m_window->changeLanguage(LanguageCode(code));
    QCOMPARE(caption().section(">"_s, -1), settings);
    QCOMPARE(toolBox()->itemText(1, 0), settings);
    QCOMPARE(page<CSystemSettingsMenu>()->findChild<CEntryWidget*>()->itemAt(1, 0)->label(), remoteAccess);
    QCOMPARE(QApplication::font().toString(), CUICommUtils::getLangFont(LanguageCode(code)).toString());
    QVERIFY(
        readFile("/home/root/.zentra/zentra-settings.xml"_s).contains("<language type=\"" + file.toUtf8()));
    QTRY_COMPARE(readFile("/tmp/var/sim/language"_s).trimmed(), service);
    QCOMPARE(CWidgetStyle::getColor(9), QColor(color));
}

void TestLaunch::backlightGoesOff_data()
{
    QTest::addColumn<bool>("isBattery");
    QTest::newRow("mains") << false;
    QTest::newRow("battery") << true;
}

void TestLaunch::backlightGoesOff()
{
    QFETCH(bool, isBattery);
    using S = CSystemSettings;
    monitor()->stop(); // its own records say mains
    PowerStatus power;
    power.bIsBat = isBattery;
    emit monitor()->powerStatusChanged(power);
    for (const bool enabled : {false, true}) { // of the other source, then of this one
        const bool battery = isBattery == enabled;
        setSetting(battery ? S::BatteryBacklightEnabled : S::ACBacklightEnabled, enabled);
        setSetting(battery ? S::BatteryBacklightTime : S::ACBacklightTime, 1);
        setSetting(battery ? S::BatteryBacklightChanged : S::ACBacklightChanged, true);
    }
    s_sleeps.clear();
    QTRY_COMPARE(s_sleeps, (ScreenCalls{{isBattery, 1}}));
    QVERIFY(!S::globalSettings()
                 ->getAttribute(isBattery ? S::BatteryBacklightChanged : S::ACBacklightChanged)
                 .toBool());
    s_wakeups.clear();
    QTest::mouseClick(headers().constFirst(), Qt::LeftButton);
    QVERIFY(s_wakeups.contains({isBattery, isBattery ? 50 : 63})); // the brightness of the source
    QTRY_COMPARE(s_sleeps.size(), 2); // and its time again
}

QTEST_MAIN(TestLaunch)
#include "tst_launch.moc"
