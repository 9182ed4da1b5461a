#include "defaultsettings.h"
#include "mainwindow.h"
#include "pagehand.h"
#include "systemsettings.h"
#include "widgets/checkbox/checkbox.h"
#include "widgets/label/label.h"
#include "widgets/pushbutton/pushbutton.h"

#include <QApplication>
#include <QDir>
#include <QDomDocument>
#include <QLineEdit>

#include "commutils.h"
#include "withdialog.h"

#include <sys/stat.h>

using S = CSystemSettings;

namespace {

const QString KEPT_DIR = QStringLiteral("/home/arvo/arvo-prof/arvoglobal-setting");
const QString KEPT_FILE = KEPT_DIR + QStringLiteral("/Last configuration");

S* store()
{
    return S::globalSettings();
}

/** The file's attributes, read by a parser of its own. */
QHash<QString, QString> keptWords()
{
    QFile file(KEPT_FILE);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return {};
    QHash<QString, QString> words;
    const QDomNamedNodeMap attributes = document.documentElement().attributes();
    for (int i = 0; i < attributes.count(); ++i)
        words.insert(attributes.item(i).nodeName(), attributes.item(i).nodeValue());
    return words;
}

/** What every saved setting is changed to: in the block, in the file, and in the store after a restart. */
struct Changed
{
    S::SystemAttribute attribute;
    const char* field;
    const char* inBlock;
    const char* inFile;
    QVariant inStore;
};

const QVector<Changed>& changedSettings()
{
    static const auto text = [](const char* value) { return QVariant(QString::fromLatin1(value)); };
    static const QVector<Changed> all = {
        {S::BatteryBacklightEnabled, "bl_off_battery_on", "1", "on", true},
        {S::BatteryBacklightTime, "bl_off_battery_time", "30", "30", 30},
        {S::BatteryBrightness, "br_level_battery", "55", "55", 55},
        {S::ACBacklightEnabled, "bl_off_AC_on", "1", "on", true},
        {S::ACBacklightTime, "bl_off_AC_time", "600", "600", 600},
        {S::ACBrightness, "br_level_AC", "60", "60", 60},
        {S::PasswordVisible, "show_password", "0", "off", false},
        {S::LockScreenORSaveScreen, "save_screen_enable", "0", "off", false},
        {S::SaveScreenCompressLevel, "save_screen_compress", "7", "high", 65000},
        {S::SaveScreenMaxNum, "save_screen_maxnum", "507", "507", 507},
        {S::InitDefAppIndex, "initdef_appindex", "1", "1", 1},
        {S::ProDelType, "profdel_type", "1", "prompt", text("prompt")},
        {S::ProSaveType, "profsave_type", "1", "prompt", text("prompt")},
        {S::RstSaveType, "rsltsave_type", "1", "prompt", text("prompt")},
        {S::AudibleAlarm, "audible_alarm", "1", "on", true},
        {S::AdvancedSave, "advanced_save", "1", "on", true},
        {S::UintType, "unittype", "1", "english", text("english")},
        {S::UserStyle, "ui_style", "1", "usa", text("usa")},
        {S::FileNamePrefix, "fname_prefix", "x", "x", text("x")},
        {S::ClkSrc0, "clock_source_0", "3", "atomic", text("atomic")},
        {S::ClkSrc1, "clock_source_1", "2", "gps", text("gps")},
        {S::ClkSrc2, "clock_source_2", "3", "atomic", text("atomic")},
        {S::ClkSrc3, "clock_source_3", "4", "atomic_10m", text("atomic_10m")},
        {S::ClkSrc4, "clock_source_4", "2", "gps", text("gps")},
        {S::ClkSrc5, "clock_source_5", "4", "atomic_10m", text("atomic_10m")},
        {S::ManPortBoot, "manport_bootconnect", "1", "on", true},
    };
    return all;
}

} // namespace

/** The settings over a restart of shell and instrument; keptsettings.sh runs the steps one by one. */
class TestKeptSettings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("zentra"));
        QCoreApplication::setApplicationName(QStringLiteral("mainframe"));
        QDir().mkpath(CUICommUtils::getConfPath());
        const QString settings = CUICommUtils::getConfPath() + QStringLiteral("/zentra-settings.xml");
        QFile::copy(QStringLiteral(":/conf/zentra-settings.xml"), settings);
        QFile::setPermissions(settings, QFile::ReadOwner | QFile::WriteOwner);
    }

    void freshUnit();
    void prefixComesBack_data();
    void prefixComesBack();
    void changeEverySetting();
    void everySettingIsThere();
    void fileIsWholeOrNotAtAll();

private:
    void open()
    {
        m_window = std::make_unique<CMainWindow>(nullptr);
        m_window->setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QTRY_VERIFY(m_window->isActiveWindow());
    }
    const CGlobalSettings& settingsPage()
    {
        m_window->changeCurrentUtil(UTILITY_ID_GLOBAL);
        return *m_window->findChild<CGlobalSettings*>();
    }
    void choose(const char* caption, int row)
    {
        touchRow(m_screen, m_window.get(), field<CParmComboBox>(settingsPage(), caption), row);
    }
    void type(const char* caption, const char* keys)
    {
        auto* edit = field<CParmLineEdit>(settingsPage(), caption);
        CWithDialog pad([&](CDialog* dialog) {
            for (const char* key = keys; *key; ++key) {
                auto* text = dialog->findChild<QLineEdit*>();
                const int length = text->text().size();
                touch(m_screen, dialog->findChild<CPushButton*>(QStringLiteral("key") + QLatin1Char(*key)));
                QTRY_COMPARE(text->text().size(), length + 1);
            }
            touch(m_screen, dialog->findChild<CPushButton*>(QStringLiteral("ok")));
            QTRY_VERIFY(!dialog->isVisible());
        });
        touch(m_screen, edit);
        QTRY_VERIFY(pad.isDone());
    }

    CXScreen m_screen;
    std::unique_ptr<CMainWindow> m_window;
};

/** The platform fills the block with what the shell takes for its defaults. */
void TestKeptSettings::freshUnit()
{
    const QHash<QString, QString> fresh = blockContent();
    for (const DefaultSetting& setting : defaultSettings())
        store()->setAttribute(setting.attribute, setting.value, true);
    QCOMPARE(blockContent(), fresh);
}

void TestKeptSettings::prefixComesBack_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QVariant>("read");
    const auto same
        = [](const char* name, const QString& prefix) { QTest::newRow(name) << prefix << QVariant(prefix); };
    same("blanks", QStringLiteral("  a  b "));
    same("signs of XML", QStringLiteral("<&\"'>]]>"));
    same("63 bytes", QString(31, QChar(0xe4)) + QLatin1Char('.'));
    same("beyond 16 bits", QString::fromUtf8("\xf0\x9d\x84\x9e\xe6\xb5\x8b"));
    same("empty", QString());
    // What the file's reader takes for something else.
    QTest::newRow("number") << QStringLiteral("007") << QVariant(7);
    QTest::newRow("on") << QStringLiteral("On") << QVariant(true);
    QTest::newRow("off") << QStringLiteral("off") << QVariant(false);
}

void TestKeptSettings::prefixComesBack()
{
    QFETCH(QString, prefix);
    store()->setAttribute(S::FileNamePrefix, QStringLiteral("another"), true);
    QTRY_COMPARE(keptWords().value(QStringLiteral("fname_prefix")), QStringLiteral("another"));
    store()->setAttribute(S::FileNamePrefix, prefix, true);
    QTRY_COMPARE(keptWords().value(QStringLiteral("fname_prefix")), prefix);
    store()->loadDefAttribute();
    QTEST(store()->getAttribute(S::FileNamePrefix), "read");
    store()->setAttribute(S::FileNamePrefix, QString(), true);
    QTRY_COMPARE(keptWords().value(QStringLiteral("fname_prefix")), QString());
}

void TestKeptSettings::changeEverySetting()
{
    const QHash<QString, QString> fresh = blockContent();
    open();
    choose("Language", 2);
    choose("Audible Alarm", 0);
    choose("Show Password", 1);
    choose("User Interface", 1);
    choose("Clock Source", 1);
    type("File Name Prefix", "x");
    choose("Profile Deleting", 1);
    choose("Profile Saving", 1);
    choose("Result Saving", 1);
    choose("Advance Saving", 0);
    choose("Screenshot Compression Level", 0);
    auto* most = field<CParmLineEdit>(settingsPage(), "Maximum Number of Screenshots");
    type("Maximum Number of Screenshots", "7");
    QCOMPARE(most->text(), QStringLiteral("507"));
    choose("Lock/Save Screen", 0);

    m_window->changeCurrentUtil(UTILITY_ID_BACKLIGHT);
    const struct
    {
        const char* name;
        const char* time;
        const char* button;
    } groups[] = {{"battery", "30 s", "brighter"}, {"external", "10 min", "darker"}};
    for (const auto& each : groups) {
        QTRY_VERIFY(m_window->findChild<CWidget*>(QLatin1String(each.name)));
        auto* group = m_window->findChild<CWidget*>(QLatin1String(each.name));
        auto* time = group->findChild<CParmComboBox*>();
        touch(m_screen, group->findChild<CCheckBox*>());
        QTRY_VERIFY(time->isEnabled());
        for (int row = 0; row < time->count(); ++row) {
            if (time->itemText(row) == QLatin1String(each.time))
                touchRow(m_screen, m_window.get(), time, row);
        }
        const auto* level = group->findChild<CLabel*>(QStringLiteral("brightness"));
        const QString before = level->text();
        touch(m_screen, group->findChild<CPushButton*>(QLatin1String(each.button)));
        QTRY_VERIFY(level->text() != before);
    }

    // Those that no control leads to.
    for (const Changed& setting : changedSettings()) {
        if (setting.attribute == S::InitDefAppIndex || setting.attribute == S::UintType
            || setting.attribute == S::ManPortBoot
            || (setting.attribute >= S::ClkSrc1 && setting.attribute <= S::ClkSrc5))
            store()->setAttribute(setting.attribute, setting.inStore, true);
    }
    for (const Changed& setting : changedSettings()) {
        const QString name = QLatin1String(setting.field);
        QTRY_COMPARE(keptWords().value(name), QLatin1String(setting.inFile));
        QCOMPARE(blockContent().value(name), QLatin1String(setting.inBlock));
        QVERIFY2(fresh.value(name) != blockContent().value(name), setting.field);
    }
}

void TestKeptSettings::everySettingIsThere()
{
    // Before there is a shell.
    const QHash<QString, QString> block = blockContent();
    for (const Changed& setting : changedSettings())
        QCOMPARE(qMakePair(setting.field, block.value(QLatin1String(setting.field))),
            qMakePair(setting.field, QString::fromLatin1(setting.inBlock)));
    open();
    for (const Changed& setting : changedSettings())
        QCOMPARE(qMakePair(setting.field, store()->getAttribute(setting.attribute)),
            qMakePair(setting.field, setting.inStore));
    QCOMPARE(CUICommUtils::getLanguageCode(), LANGUAGE_GERMAN);
    QTRY_VERIFY(QFile::exists(QStringLiteral("/tmp/save-screen.mark")));
    QTRY_COMPARE(clockCalls().last(), QStringLiteral("orlo-clocksrc --set atomic")); // whatever is stored

    const struct
    {
        const char* caption;
        const char* text;
    } shown[] = {{"Language", "German"}, {"Audible Alarm", "On"}, {"Show Password", "No"},
        {"User Interface", "USA"}, {"Clock Source", "GPS 1PPS"}, {"Profile Deleting", "Prompt User"},
        {"Profile Saving", "Prompt User"}, {"Result Saving", "Prompt User"}, {"Advance Saving", "On"},
        {"Lock/Save Screen", "Lock Screen"}, {"Screenshot Compression Level", "High"}};
    for (const auto& list : shown)
        QCOMPARE(field<CParmComboBox>(settingsPage(), list.caption)->currentText(), QLatin1String(list.text));
    QCOMPARE(field<CParmLineEdit>(settingsPage(), "File Name Prefix")->text(), QStringLiteral("x"));
    QCOMPARE(
        field<CParmLineEdit>(settingsPage(), "Maximum Number of Screenshots")->text(), QStringLiteral("507"));
    // Opening the page has changed nothing.
    for (const Changed& setting : changedSettings())
        QCOMPARE(blockContent().value(QLatin1String(setting.field)), QLatin1String(setting.inBlock));
}

void TestKeptSettings::fileIsWholeOrNotAtAll()
{
    // Nothing can be made beside the file: what it holds stays.
    const QHash<QString, QString> before = keptWords();
    QVERIFY(!before.isEmpty());
    struct stat file = {};
    QCOMPARE(::stat(QFile::encodeName(KEPT_FILE).constData(), &file), 0);
    const ino_t first = file.st_ino;
    QVERIFY(QFile::rename(KEPT_DIR, KEPT_DIR + QStringLiteral(".away")));
    QVERIFY(QFile::link(QStringLiteral("/proc"), KEPT_DIR));
    store()->setAttribute(S::SaveScreenMaxNum, 77, true);
    QTRY_VERIFY([] {
        QFile log(QStringLiteral("/tmp/var/log/settings.log"));
        return log.open(QIODevice::ReadOnly) && log.readAll().contains("can not be written");
    }());
    QFile::remove(KEPT_DIR);
    QVERIFY(QFile::rename(KEPT_DIR + QStringLiteral(".away"), KEPT_DIR));
    // It is tried again, without another change.
    QTRY_COMPARE(keptWords().value(QStringLiteral("save_screen_maxnum")), QStringLiteral("77"));
    QHash<QString, QString> after = keptWords();
    after.insert(QStringLiteral("save_screen_maxnum"), before.value(QStringLiteral("save_screen_maxnum")));
    QCOMPARE(after, before);
    QCOMPARE(::stat(QFile::encodeName(KEPT_FILE).constData(), &file), 0);
    QVERIFY(file.st_ino != first); // another file in its place: nobody sees half of one
    QCOMPARE(QDir(KEPT_DIR).entryList(QDir::Files), QStringList(QStringLiteral("Last configuration")));
}

QTEST_MAIN(TestKeptSettings)
#include "tst_keptsettings.moc"
