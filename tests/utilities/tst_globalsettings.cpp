#include "commutils.h"
#include "pagehand.h"
#include "systemsettings.h"
#include "widgets/keypad/keypaddialog.h"
#include "widgets/label/label.h"
#include "widgets/widgetstyle/stylepainter.h"

#include <QDir>
#include <QLineEdit>
#include <QSignalSpy>

#include "infopage.h"
#include "withdialog.h"

using S = CSystemSettings;

namespace {

const QString MARK = QStringLiteral("/tmp/save-screen.mark");

S* store()
{
    return S::globalSettings();
}

} // namespace

/** The page for itself: what each choice stores, what stored values show, what a start does outside it. */
class TestGlobalSettings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { m_page.reset(); }

    void startWithoutThePage(); // first: it counts what happens once a process
    void choiceIsInTheBlockAtOnce_data();
    void choiceIsInTheBlockAtOnce();
    void storedIsShown_data();
    void storedIsShown();
    void unitThatNothingIsStoredFor();
    void tenMegahertzIsNotStored();
    void languageIsAnnouncedAndStored();
    void lockOrSave();
    void prefixIsCountedAsStored();
    void numberPadNamesItsLimits();
    void testApplicationsGetTheRecord();
    void textsFit_data();
    void textsFit();

private:
    void open()
    {
        m_page = std::make_unique<CGlobalSettings>(nullptr);
        m_page->setGeometry(160, 60, 640, 400);
        m_page->setBorderWidth(0, 1, 1, 1);
        m_page->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
    }
    void choose(const char* caption, int row)
    {
        auto* box = field<CParmComboBox>(*m_page, caption);
        QVERIFY2(box && box->isVisible(), caption);
        QTest::mouseClick(box, Qt::LeftButton);
        CParmList* list = openList(m_page.get());
        QVERIFY(list);
        QTest::mouseClick(list, Qt::LeftButton, {}, list->rowRect(row).center());
    }
    QString shown(const char* caption) const { return field<CParmComboBox>(*m_page, caption)->currentText(); }

    std::unique_ptr<CGlobalSettings> m_page;
};

void TestGlobalSettings::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("test"));
    QCoreApplication::setApplicationName(QStringLiteral("globalsettings"));
    QDir().mkpath(CUICommUtils::getConfPath());
    QFile::copy(QStringLiteral(":/conf/zentra-settings.xml"),
        CUICommUtils::getConfPath() + QStringLiteral("/zentra-settings.xml"));
    QFile::setPermissions(CUICommUtils::getConfPath() + QStringLiteral("/zentra-settings.xml"),
        QFile::ReadOwner | QFile::WriteOwner);
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(15);
    QApplication::setFont(font);
}

void TestGlobalSettings::init()
{
    const struct
    {
        S::SystemAttribute attribute;
        QVariant value;
    } fresh[] = {{S::Language, 0}, {S::PasswordVisible, true}, {S::LockScreenORSaveScreen, true},
        {S::SaveScreenCompressLevel, 65001}, {S::SaveScreenMaxNum, 50}, {S::AudibleAlarm, false},
        {S::AdvancedSave, false}, {S::ProDelType, QStringLiteral("force")},
        {S::ProSaveType, QStringLiteral("force")}, {S::RstSaveType, QStringLiteral("manual")},
        {S::UintType, QStringLiteral("metric")}, {S::UserStyle, QStringLiteral("international")},
        {S::FileNamePrefix, QString()}, {S::ClkSrc0, QStringLiteral("tcxo")}};
    for (const auto& setting : fresh)
        store()->setAttribute(setting.attribute, setting.value, true);
    QFile::remove(MARK);
    QVERIFY(simctl(QStringLiteral("board D")));
}

void TestGlobalSettings::startWithoutThePage()
{
    store()->setAttribute(S::LockScreenORSaveScreen, 0);
    CGlobalSettings::applyAtStart();
    QVERIFY(QFile::exists(MARK));
    store()->setAttribute(S::LockScreenORSaveScreen, QStringLiteral("true"));
    CGlobalSettings::applyAtStart();
    QVERIFY(!QFile::exists(MARK));
    open();
    // However often a page is made after that, the clock is set once a start.
    const QString atomic = QStringLiteral("orlo-clocksrc --set atomic");
    QTRY_COMPARE(clockCalls().count(atomic), 1);
    const int before = clockCalls().size();
    CGlobalSettings::initClockSource();
    m_page->setInternal1ppsSource(CGlobalSettings::GPS1pps); // later than a second one would be
    QTRY_COMPARE(clockCalls().size(), before + 1);
    QCOMPARE(clockCalls().last(), QStringLiteral("orlo-clocksrc --set gps"));
}

void TestGlobalSettings::choiceIsInTheBlockAtOnce_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("value");
    const auto row = [](const char* list, int item, const char* field, const char* value) {
        QTest::addRow("%s:%d", list, item)
            << item << QString::fromLatin1(field) << QString::fromLatin1(value);
    };
    row("Audible Alarm", 0, "audible_alarm", "1");
    row("Show Password", 1, "show_password", "0");
    row("User Interface", 1, "ui_style", "1");
    row("Clock Source", 0, "clock_source_0", "2"); // the item reads "Atomic 1PPS"
    row("Clock Source", 1, "clock_source_0", "3");
    row("Profile Deleting", 1, "profdel_type", "1");
    row("Profile Saving", 1, "profsave_type", "1");
    row("Result Saving", 1, "rsltsave_type", "1");
    row("Advance Saving", 0, "advanced_save", "1");
    row("Lock/Save Screen", 0, "save_screen_enable", "0");
    row("Screenshot Compression Level", 0, "save_screen_compress", "7");
    row("Screenshot Compression Level", 2, "save_screen_compress", "0");
}

void TestGlobalSettings::choiceIsInTheBlockAtOnce()
{
    QFETCH(int, row);
    open();
    const QByteArray list = QByteArray(QTest::currentDataTag()).split(':').first();
    const auto before = blockContent();
    choose(list, row);
    const auto after = blockContent();
    for (auto each = after.cbegin(); each != after.cend(); ++each) {
        if (each.value() != before.value(each.key()))
            QTEST(each.key(), "field"); // and no other
    }
    QFETCH(QString, field);
    QTEST(after.value(field), "value");
    const QString chosen = shown(list);
    m_page.reset();
    open();
    QCOMPARE(shown(list), chosen);
}

void TestGlobalSettings::storedIsShown_data()
{
    QTest::addColumn<int>("attribute");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, S::SystemAttribute attribute, const QVariant& stored,
                         const char* list, const char* text) {
        QTest::newRow(name) << int(attribute) << stored << QByteArray(list) << QString::fromLatin1(text);
    };
    row("gps is the first item", S::ClkSrc0, QStringLiteral("gps"), "Clock Source", "Atomic 1PPS");
    row("no entry: as made", S::ClkSrc0, QStringLiteral("tcxo"), "Clock Source", "Atomic 1PPS");
    row("not on offer here", S::ClkSrc0, QStringLiteral("atomic_10m"), "Clock Source", "Atomic Clock 10M Hz");
    row("off is not on offer", S::AudibleAlarm, false, "Audible Alarm", "Off");
    row("as a number", S::AudibleAlarm, 1, "Audible Alarm", "On");
    row("text of an earlier process", S::PasswordVisible, QStringLiteral("false"), "Show Password", "No");
    row("number as text", S::SaveScreenCompressLevel, QStringLiteral("65002"), "Screenshot Compression Level",
        "No Compression");
    row("other case", S::UserStyle, QStringLiteral("USA"), "User Interface", "USA");
    row("language", S::Language, LANGUAGE_RUSSIAN, "Language", "Russian");
    row("another value under the language's key", S::Language, true, "Language", "English");
    row("english units", S::UintType, QStringLiteral("english"), "Unit", "Metric");
}

void TestGlobalSettings::storedIsShown()
{
    QFETCH(int, attribute);
    QFETCH(QVariant, stored);
    QFETCH(QByteArray, list);
    store()->setAttribute(S::SystemAttribute(attribute), stored);
    open();
    QTEST(shown(list), "text");
    m_page->translate(); // what is shown survives it
    QTEST(shown(list), "text");
    QCOMPARE(store()->getAttribute(S::SystemAttribute(attribute)), stored);
}

void TestGlobalSettings::unitThatNothingIsStoredFor()
{
    open();
    QCOMPARE(field<CParmComboBox>(*m_page, "Unit")->count(), 1);
    m_page->translate();
    choose("Unit", 1);
    QCOMPARE(store()->getAttribute(S::UintType), QVariant(QStringLiteral("metric")));
    QCOMPARE(shown("Unit"), QStringLiteral("Metric")); // what holds
}

void TestGlobalSettings::tenMegahertzIsNotStored()
{
    store()->setAttribute(S::ClkSrc0, QStringLiteral("gps"), true);
    QVERIFY(simctl(QStringLiteral("board E")));
    open();
    const int before = clockCalls().size();
    choose("Clock Source", 2);
    QTRY_COMPARE(clockCalls().mid(before),
        QStringList({QStringLiteral("peldasetclk LA 1"), QStringLiteral("peldasetclk RA 1"),
            QStringLiteral("peldasetclk LB 1"), QStringLiteral("peldasetclk RB 1"),
            QStringLiteral("peldasetclk LC 1"), QStringLiteral("peldasetclk RC 1")}));
    QCOMPARE(store()->getAttribute(S::ClkSrc0), QVariant(QStringLiteral("gps")));
    QCOMPARE(shown("Clock Source"), QStringLiteral("Atomic Clock 10M Hz"));
}

void TestGlobalSettings::languageIsAnnouncedAndStored()
{
    open();
    QList<int> announced;
    connect(m_page.get(), &CGlobalSettings::currentLanguageChanged, this, [&](LanguageCode code) {
        announced << code;
        m_page->translate(); // the shell does, before the choice is stored
    });
    choose("Language", 2);
    QCOMPARE(announced, QList<int>{LANGUAGE_GERMAN});
    QCOMPARE(store()->getAttribute(S::Language), QVariant(int(LANGUAGE_GERMAN)));
}

void TestGlobalSettings::lockOrSave()
{
    open();
    auto* level = field<CParmComboBox>(*m_page, "Screenshot Compression Level");
    auto* most = field<CParmLineEdit>(*m_page, "Maximum Number of Screenshots");
    QVERIFY(level->isVisible() && most->isVisible() && !QFile::exists(MARK));
    choose("Lock/Save Screen", 0);
    QVERIFY(!level->isVisible() && !most->isVisible() && QFile::exists(MARK));
    QFile::remove(MARK); // somebody clears /tmp
    m_page->hide();
    m_page->show();
    QVERIFY(QFile::exists(MARK));
    QVERIFY(!store()->getAttribute(S::LockScreenORSaveScreen).toBool());
    choose("Lock/Save Screen", 1);
    QVERIFY(level->isVisible() && most->isVisible() && !QFile::exists(MARK));
}

void TestGlobalSettings::prefixIsCountedAsStored()
{
    open();
    QString count;
    CWithDialog pad([&](CDialog* dialog) {
        for (int i = 0; i < 40; ++i)
            QTest::sendKeyEvent(QTest::Click, dialog->findChild<QLineEdit*>(), Qt::Key_Adiaeresis,
                QStringLiteral("\u00e4"), Qt::NoModifier);
        QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("xy"));
        count = dialog->findChild<CLabel*>(QStringLiteral("count"))->text();
        QTest::mouseClick(dialog->findChild<CPushButton*>(QStringLiteral("ok")), Qt::LeftButton);
    });
    field<CParmLineEdit>(*m_page, "File Name Prefix")->click();
    QVERIFY(pad.isDone());
    QCOMPARE(count, QStringLiteral("63 / 63"));
    const QString expected = QString(31, QChar(0xe4)) + QLatin1Char('x');
    QCOMPARE(blockContent().value(QStringLiteral("fname_prefix")), expected);
    QCOMPARE(store()->getAttribute(S::FileNamePrefix), QVariant(expected));
}

void TestGlobalSettings::numberPadNamesItsLimits()
{
    open();
    QString hint, clear;
    CWithDialog pad([&](CDialog* dialog) {
        hint = dialog->findChild<CLabel*>(QStringLiteral("count"))->text();
        clear = dialog->findChild<CPushButton*>(QStringLiteral("clear"))->text();
        QTest::mouseClick(dialog->findChild<CPushButton*>(QStringLiteral("clear")), Qt::LeftButton);
        QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("0012"));
        QTest::mouseClick(dialog->findChild<CPushButton*>(QStringLiteral("ok")), Qt::LeftButton);
    });
    field<CParmLineEdit>(*m_page, "Maximum Number of Screenshots")->click();
    QVERIFY(pad.isDone());
    QCOMPARE(hint, QStringLiteral("1 to 1000"));
    QCOMPARE(clear, QStringLiteral("Clear"));
    QCOMPARE(blockContent().value(QStringLiteral("save_screen_maxnum")), QStringLiteral("12"));
    // What no pad types may still come from elsewhere.
    field<CParmLineEdit>(*m_page, "Maximum Number of Screenshots")->setText(QStringLiteral("many"));
    QCOMPARE(store()->getAttribute(S::SaveScreenMaxNum), QVariant(0));
}

void TestGlobalSettings::testApplicationsGetTheRecord()
{
    open();
    field<CParmLineEdit>(*m_page, "File Name Prefix")->setText(QStringLiteral("lab <1>"));
    choose("Profile Deleting", 1);
    choose("Result Saving", 1);
    choose("Advance Saving", 0);
    m_page->changeStorageSetting2App();
    const mainframe2app_message stored = CUICommUtils::getStorageSetting();
    QCOMPARE(stored.fnamePrefix, "lab <1>");
    QCOMPARE(
        QVector<int>({stored.profileDel, stored.profileSaving, stored.rsultSaving, stored.advanceSaving}),
        QVector<int>({1, 0, 1, 1}));
}

void TestGlobalSettings::textsFit_data()
{
    QTest::addColumn<int>("code");
    for (int code = LANGUAGE_ENGLISH; code < LANGUAGE_END; ++code)
        QTest::newRow(qPrintable(CUICommUtils::toLangType(LanguageCode(code)))) << code;
}

void TestGlobalSettings::textsFit()
{
    QFETCH(int, code);
    const CShellLanguage language{LanguageCode(code)};
    QVERIFY(language.isLoaded());
    QVERIFY(simctl(QStringLiteral("board E")));
    open();
    m_page->translate();
    QStringList cut;
    const auto check = [&cut](const QString& text, int pixelSize, bool bold, int width, int lines) {
        QFont font = QApplication::font();
        font.setPixelSize(pixelSize * 4 / 5); // no smaller
        font.setBold(bold || font.bold());
        const QStringList drawn = CStylePainter::textLines(text, font, width, lines, lines > 1);
        if (drawn.join(QString()).contains(QChar(0x2026)))
            cut << text;
    };
    const auto* tabs = m_page->findChild<CTabWidget*>();
    for (int tab = 0; tab < tabs->count(); ++tab)
        check(tabs->tabText(tab), 16, true, 198 - 16, 1);
    for (const auto* field : m_page->findChildren<CParmField*>()) {
        check(field->caption(), 16, false, 304 - 24, 2);
        if (const auto* box = qobject_cast<const CParmComboBox*>(field)) {
            for (int item = 0; item < box->count(); ++item)
                check(box->itemText(item), 16, false, 298 - 48, 1);
        }
    }
    QCOMPARE(cut, QStringList());
}

QTEST_MAIN(TestGlobalSettings)
#include "tst_globalsettings.moc"
