#include "infopage.h"
#include "phrasebook.h"
#include "powermonitor.h"
#include "powerview.h"
#include "widgets/progressbar/progressbar.h"
#include "widgets/statusicon/statusicon.h"

#include <QSignalSpy>
#include <QTest>

namespace {

PowerStatus powerRecord(bool isBattery, int remain, int full, int remainTime, int toFullTime)
{
    PowerStatus status;
    status.bIsBat = isBattery;
    status.remainCap = remain;
    status.fullCap = full;
    status.remainTime = remainTime;
    status.toFullTime = toFullTime;
    return status;
}

const PowerStatus OnBattery = powerRecord(true, 37, 100, 85, 0);
const PowerStatus Charging = powerRecord(false, 37, 100, 0, 50);
const PowerStatus Full = powerRecord(false, 100, 100, 0, 0);

QImage picture(CResourceMan::BatteryStatus battery)
{
    return CResourceMan::getBatteryStatus(battery).icoNormal.toImage();
}

} // namespace

class TestPowerMonitor : public QObject
{
    Q_OBJECT

private slots:
    // The shell's own font: the one that the texts have to fit in.
    void initTestCase() { QApplication::setFont(QFont(QStringLiteral("Arial"))); }
    void rules_data();
    void rules();
    void remainTime_data();
    void remainTime();
    void page_data();
    void page();
    void refreshWhileUp();
    void languageChangesWhileUp();
};

void TestPowerMonitor::rules_data()
{
    QTest::addColumn<PowerStatus>("status");
    QTest::addColumn<bool>("levelShown");
    QTest::addColumn<bool>("timeShown");
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("battery");
    const auto row = [](const char* name, const PowerStatus& status, bool levelShown, bool timeShown,
                         int level, const char* state, CResourceMan::BatteryStatus battery) {
        QTest::newRow(name) << status << levelShown << timeShown << level << QString::fromLatin1(state)
                            << int(battery);
    };
    const auto battery = [](const PowerStatus& status) {
        return CResourceMan::getSystemBatteryStatus(status.remainCap, status.fullCap, status.bIsBat);
    };
    const auto shown = [&](const char* name, const PowerStatus& status, int level, const char* state) {
        row(name, status, true, status.bIsBat, level, state, battery(status));
    };
    const auto idle = [&](const char* name, const PowerStatus& status, int level) {
        row(name, status, false, false, level, "Fully Charged", CResourceMan::BAT_FULLY_CHARGED);
    };
    idle("full and idle", Full, 100);
    idle("nothing known", powerRecord(false, -1, -1, 0, 0), 100);
    idle("both capacities 0", powerRecord(false, 0, 0, 0, 0), 0);
    shown("full, time to full left", powerRecord(false, 100, 100, 0, 1), 100, "Fully Charged");
    shown("charging", Charging, 37, "Charging...");
    shown("above full", powerRecord(false, 120, 100, 0, 0), 100, "Fully Charged");
    shown("charging a battery without capacity", powerRecord(false, 50, 0, 0, 0), 0, "Charging...");
    shown("on battery", OnBattery, 37, "Discharging...");
    shown("on battery, full", powerRecord(true, 100, 100, 0, 0), 100, "Discharging...");
    shown("negative capacity", powerRecord(true, -5, 100, 0, 0), -5, "Discharging...");
    shown("capacities not known, on battery", powerRecord(true, -1, -1, 0, 0), 100, "Discharging...");
}

void TestPowerMonitor::rules()
{
    QFETCH(PowerStatus, status);
    const PowerView view = powerView(status);
    QTEST(view.bIsLevelShown, "levelShown");
    QTEST(view.bIsTimeShown, "timeShown");
    QTEST(view.level, "level");
    QTEST(QString::fromLatin1(view.state), "state");
    QTEST(int(view.battery), "battery");
}

void TestPowerMonitor::remainTime_data()
{
    QTest::addColumn<int>("minutes");
    QTest::addColumn<QString>("text");
    const auto row = [](int minutes, const char* text) {
        QTest::addRow("%d minutes", minutes) << minutes << QString::fromLatin1(text);
    };
    row(-5, "0 hour -5 min");
    row(0, "0 hour 0 min");
    row(2, "0 hour 2 mins");
    row(59, "0 hour 59 mins");
    row(60, "1 hour 0 min");
    row(121, "2 hours 1 min");
}

void TestPowerMonitor::remainTime()
{
    QFETCH(int, minutes);
    QTEST(remainTimeText(minutes), "text");
}

void TestPowerMonitor::page_data()
{
    QTest::addColumn<PowerStatus>("status");
    QTest::addColumn<QStringList>("labels"); // shown, by object name
    QTest::addColumn<int>("battery");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("capacity");
    QTest::addColumn<QString>("time");
    const QStringList source = {QStringLiteral("title"), QStringLiteral("sourceName")};
    const QStringList level = source
        + QStringList{QStringLiteral("stateName"), QStringLiteral("state"), QStringLiteral("capacityName"),
            QStringLiteral("capacity")};
    const QStringList all = level + QStringList{QStringLiteral("timeName"), QStringLiteral("time")};
    QTest::newRow("on battery") << OnBattery << all
                                << int(CResourceMan::getSystemBatteryStatus(37, 100, true))
                                << QStringLiteral("Discharging...") << QStringLiteral("37%")
                                << QStringLiteral("1 hour 25 mins");
    QTest::newRow("charging") << Charging << level
                              << int(CResourceMan::getSystemBatteryStatus(37, 100, false))
                              << QStringLiteral("Charging...") << QStringLiteral("37%") << QString();
    QTest::newRow("full") << Full << source << int(CResourceMan::BAT_FULLY_CHARGED) << QString() << QString()
                          << QString();
}

void TestPowerMonitor::page()
{
    QFETCH(PowerStatus, status);
    QFETCH(QStringList, labels);
    QFETCH(int, battery);
    CPowerMonitor page;
    page.updatePowerStatus(status);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));

    QStringList shown = shownLabels(page);
    shown.sort();
    labels.sort();
    QCOMPARE(shown, labels);
    const bool hasLevel = labels.contains(QStringLiteral("capacity"));
    const auto* bar = page.findChild<CProgressBar*>();
    QCOMPARE(bar->isVisible(), hasLevel);
    QCOMPARE(page.findChild<CStatusIcon*>()->iconPixmap().toImage(),
        picture(CResourceMan::BatteryStatus(battery)));
    if (hasLevel) {
        QCOMPARE(bar->value(), 37);
        QCOMPARE(bar->height(), 29);
        QTEST(textOf(page, "state"), "state");
        QTEST(textOf(page, "capacity"), "capacity");
    }
    if (labels.contains(QStringLiteral("time")))
        QTEST(textOf(page, "time"), "time");
    keepPicture(page, QStringLiteral("power ") + QString::fromLatin1(QTest::currentDataTag()));
}

void TestPowerMonitor::refreshWhileUp()
{
    CPowerMonitor page;
    page.move(100, 60);
    page.updatePowerStatus(Full);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    const QPoint center = page.geometry().center();
    const int height = page.height();

    // More rows make the page higher around the same middle; none of them lies outside.
    page.updatePowerStatus(OnBattery);
    QVERIFY(page.height() > height);
    QVERIFY((page.geometry().center() - center).manhattanLength() <= 1);
    QCOMPARE(misplacedParts(page), QString());
    QCOMPARE(textOf(page, "capacity"), QStringLiteral("37%"));
    page.updatePowerStatus(Full);
    QCOMPARE(page.height(), height);
    QVERIFY((page.geometry().center() - center).manhattanLength() <= 1);

    // A record every second must not let the page wander.
    for (int i = 0; i < 50; ++i)
        page.updatePowerStatus(i % 2 ? Full : OnBattery);
    QVERIFY((page.geometry().center() - center).manhattanLength() <= 1);
}

void TestPowerMonitor::languageChangesWhileUp()
{
    CPowerMonitor page;
    page.updatePowerStatus(OnBattery);
    page.show();
    const CInstalledPhrasebook german({{"Power Information", QStringLiteral("Energie")},
        {"Discharging...", QStringLiteral("Wird entladen...")}, {"hour", QStringLiteral("Stunde")}});
    page.translate();
    QCOMPARE(textOf(page, "title"), QStringLiteral("Energie"));
    QCOMPARE(textOf(page, "state"), QStringLiteral("Wird entladen..."));
    QCOMPARE(textOf(page, "time"), QStringLiteral("1 Stunde 25 mins"));
    QCOMPARE(textOf(page, "capacity"), QStringLiteral("37%"));
}

QTEST_MAIN(TestPowerMonitor)
#include "tst_powermonitor.moc"
