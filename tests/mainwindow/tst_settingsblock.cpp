#include "defaultsettings.h"
#include "systemsettings.h"
#include "testfiles.h"

#include <QProcess>
#include <QSettings>

namespace {

const QString PROFILE = "/home/arvo/arvo-prof/arvoglobal-setting/Last configuration"_s;

/**
 * Every setting in the order of its number: key in the store, default, name in the defaults profile, a text
 * there, and what another process then reads under the same name; "-" for none.
 */
const char SETTINGS[] = R"(
BatteryBacklightEnabled     false          bl_off_battery_on     on          1
BatteryBacklightTime        10             bl_off_battery_time   31          31
BatteryBrightness           50             br_level_battery      32          32
BatteryBacklightChanged     true           -                     -           -
ACBacklightEnabled          false          bl_off_AC_on          on          1
ACBacklightTime             60             bl_off_AC_time        33          33
ACBrightness                63             br_level_AC           34          34
ACBacklightChanged          true           -                     -           -
-                           -              -                     -           -
-                           -              -                     -           -
-                           -              -                     -           -
-                           -              -                     -           -
PasswordVisible             true           show_password         off         0
LockScreenORSaveScreen      true           save_screen_enable    off         0
SaveScreenCompressLevel     65001          save_screen_compress  high        7
SaveScreenMaxNum            50             save_screen_maxnum    35          35
Exist_Module_1              true           -                     -           -
Exist_Module_2              true           -                     -           -
GPS_State_ON                3              -                     -           -
AttrDataCard                -              -                     -           -
ERROR_NETWORK_CONNECT_DHCP  false          -                     -           -
ClientWindowSwitched        false          -                     -           -
TestAppForeground           false          -                     -           -
-                           -              -                     -           -
InitDefAppIndex             0              initdef_appindex      36          36
ProDelType                  force          profdel_type          prompt      1
ProSaveType                 force          profsave_type         prompt      1
RstSaveType                 manual         rsltsave_type         prompt      1
AudibleAlarm                false          audible_alarm         on          1
AdvancedSave                false          advanced_save         on          1
UintType                    metric         unittype              english     1
UserStyle                   international  ui_style              usa         1
FileNamePrefix              -              fname_prefix          site        site
ClkSrc0                     tcxo           clock_source_0        gps         2
ClkSrc1                     tcxo           clock_source_1        atomic      3
ClkSrc2                     tcxo           clock_source_2        atomic_10m  4
ClkSrc3                     tcxo           clock_source_3        gps         2
ClkSrc4                     tcxo           clock_source_4        gps         2
ClkSrc5                     tcxo           clock_source_5        atomic      3
ManPortBoot                 false          manport_bootconnect   on          1
)";

/** A tool of the platform that has a table of its own. */
QString globalSegment(const char* verb)
{
    QProcess tool;
    tool.start("globalsegment"_s, {QLatin1String(verb)});
    tool.waitForFinished();
    return QString::fromUtf8(tool.readAllStandardOutput());
}

QString noneIfEmpty(const QString& text)
{
    return text.isEmpty() ? "-"_s : text;
}

} // namespace

/** Each setting from the defaults profile into the block that the other processes read. */
class TestSettingsBlock : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void setting_data();
    void setting();
};

void TestSettingsBlock::initTestCase()
{
    REQUIRE_INSTRUMENT();
    QCoreApplication::setOrganizationName("test"_s);
    QCoreApplication::setApplicationName("settingsblock"_s);
}

void TestSettingsBlock::setting_data()
{
    QTest::addColumn<int>("attribute");
    QTest::addColumn<QStringList>("row");
    int attribute = CSystemSettings::AttributeBegin + 1;
    for (const QString& line : QString::fromLatin1(SETTINGS).split("\n"_s, Qt::SkipEmptyParts)) {
        const QStringList row = line.simplified().split(" "_s);
        QTest::addRow("%d %s", attribute, qPrintable(row.first())) << attribute << row;
        ++attribute;
    }
    QCOMPARE(attribute, int(CSystemSettings::AttributeEnd));
}

void TestSettingsBlock::setting()
{
    QFETCH(int, attribute);
    QFETCH(QStringList, row);
    const auto which = CSystemSettings::SystemAttribute(attribute);
    QCOMPARE(noneIfEmpty(CSystemSettings::getAttributeName(which)), row[0]);

    QSettings().clear();
    globalSegment("remove");
    globalSegment("create");
    const QString before = globalSegment("show");
    struct Settings : CSystemSettings
    {
    } settings;
    for (const DefaultSetting& setting : defaultSettings())
        settings.setAttribute(setting.attribute, setting.value, false);
    QCOMPARE(noneIfEmpty(settings.getAttribute(which).toString()), row[1]);

    writeFile(
        PROFILE, "<arvo><group %1='%2'/></arvo>"_s.arg(row[2] == "-"_s ? "x"_s : row[2], row[3]).toUtf8());
    settings.loadDefAttribute();
    QCOMPARE(globalSegment("show"), before);
    settings.setAttribute(which, row[2] == "-"_s ? "7"_s : settings.getAttribute(which));
    QString after = before;
    if (row[2] != "-"_s)
        after.replace(QRegularExpression("^%1 .*$"_s.arg(row[2]), QRegularExpression::MultilineOption),
            "%1 %2"_s.arg(row[2], row[4]));
    QCOMPARE(globalSegment("show"), after);
    QVERIFY(row[2] == "-"_s || after != before);
}

QTEST_GUILESS_MAIN(TestSettingsBlock)
#include "tst_settingsblock.moc"
