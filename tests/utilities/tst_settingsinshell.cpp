#include "drivenwindow.h"
#include "pagehand.h"
#include "widgets/label/label.h"

#include <QDir>
#include <QLineEdit>

#include "commutils.h"
#include "infopage.h"
#include "withdialog.h"

using S = CSystemSettings;

namespace {

const QString LOCK_MARK = QStringLiteral("/tmp/screen-locked.mark");
const QString SAVE_MARK = QStringLiteral("/tmp/save-screen.mark");

QStringList screenshots()
{
    return QDir(QStringLiteral("/home/arvo/screen")).entryList(QDir::Files);
}

} // namespace

/** The settings page in the shell's window, under real touches and keys. */
class TestSettingsInShell : public QObject, private CDrivenWindow
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void startComesBeforeThePage();
    void keyAndPageAboutTheScreen();
    void languageChangesTheShell();
    void keyboardTypesIntoThePad();
    void leavingAndComingBack();

private:
    CGlobalSettings* openPage()
    {
        m_window->changeCurrentUtil(UTILITY_ID_GLOBAL);
        return m_window->findChild<CGlobalSettings*>();
    }
    void touchRow(const char* caption, int row)
    {
        ::touchRow(m_screen, m_window.get(), field<CParmComboBox>(*openPage(), caption), row);
    }

    CXScreen m_screen;
};

void TestSettingsInShell::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("test"));
    QCoreApplication::setApplicationName(QStringLiteral("settingsinshell"));
    QDir().mkpath(CUICommUtils::getConfPath());
    writeFile(CUICommUtils::getConfPath() + QStringLiteral("/zentra-settings.xml"),
        "<TAVO><language type=\"en\"/></TAVO>");
    open();
}

void TestSettingsInShell::init()
{
    QTRY_VERIFY(m_window->isActiveWindow());
    m_window->triggerHome();
}

void TestSettingsInShell::startComesBeforeThePage()
{
    QTRY_COMPARE(clockCalls(), QStringList(QStringLiteral("orlo-clocksrc --set atomic")));
    QVERIFY(!m_window->findChild<CGlobalSettings*>());
    QVERIFY(openPage()->isVisible());
    QCOMPARE(openPage()->geometry(), QRect(160, 60, 640, 400));
    QCOMPARE(caption(), QStringLiteral("Home>Utilities>Settings>Global"));
}

/**
 * The page and the key take the stored value in opposite ways, and both ways are fixed: other processes know
 * the value and the mark. The key locks the screen while the page says "Save Screen".
 */
void TestSettingsInShell::keyAndPageAboutTheScreen()
{
    auto* box = field<CParmComboBox>(*openPage(), "Lock/Save Screen");
    QCOMPARE(box->currentText(), QStringLiteral("Save Screen")); // what a fresh unit has
    QVERIFY(!QFile::exists(SAVE_MARK));
    press(Qt::Key_F4);
    QVERIFY(QFile::exists(LOCK_MARK) && screenshots().isEmpty());
    press(Qt::Key_F4);
    QVERIFY(!QFile::exists(LOCK_MARK));

    touchRow("Lock/Save Screen", 0);
    QCOMPARE(S::globalSettings()->getAttribute(S::LockScreenORSaveScreen), QVariant(0));
    QCOMPARE(blockContent().value(QStringLiteral("save_screen_enable")), QStringLiteral("0"));
    QVERIFY(QFile::exists(SAVE_MARK));
    press(Qt::Key_F4);
    QVERIFY(!QFile::exists(LOCK_MARK));
    QCOMPARE(screenshots().size(), 1);
    touchRow("Lock/Save Screen", 1);
}

void TestSettingsInShell::languageChangesTheShell()
{
    const QString english = headers().first()->text();
    touchRow("Language", 2);
    QCOMPARE(CUICommUtils::getLanguageCode(), LANGUAGE_GERMAN);
    QTRY_COMPARE(QString::fromUtf8([] {
        QFile file(QStringLiteral("/tmp/var/sim/language"));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
    }()),
        QStringLiteral("2"));
    // Translations stand beside the shell's program, not beside this one: the shell's own texts stay.
    QCOMPARE(headers().first()->text(), english);
    QCOMPARE(field<CParmComboBox>(*openPage(), "Unit")->count(), 2); // its texts were applied again
    touchRow("Language", 0);
    QCOMPARE(CUICommUtils::getLanguageCode(), LANGUAGE_ENGLISH);
}

void TestSettingsInShell::keyboardTypesIntoThePad()
{
    auto* prefix = field<CParmLineEdit>(*openPage(), "File Name Prefix");
    const auto type = [this](unsigned long keysym) {
        m_screen.setKeyDown(keysym, true);
        m_screen.setKeyDown(keysym, false);
    };
    CWithDialog pad([&](CDialog* dialog) {
        auto* text = dialog->findChild<QLineEdit*>();
        QTRY_VERIFY(text->hasFocus() && dialog->isActiveWindow());
        for (const char key : {'l', 'a', 'b', '7'})
            type(static_cast<unsigned char>(key));
        QTRY_COMPARE(text->text(), QStringLiteral("lab7"));
        touch(m_screen, dialog->findChild<CPushButton*>(QStringLiteral("keyx")));
        QTRY_COMPARE(text->text(), QStringLiteral("lab7x"));
        type(0xff0d); // Return
        QTRY_VERIFY(!dialog->isVisible());
    });
    touch(m_screen, prefix);
    QTRY_VERIFY(pad.isDone());
    QTRY_COMPARE(prefix->text(), QStringLiteral("lab7x"));
    QCOMPARE(blockContent().value(QStringLiteral("fname_prefix")), QStringLiteral("lab7x"));
}

void TestSettingsInShell::leavingAndComingBack()
{
    touchRow("Advance Saving", 0);
    touch(m_screen, field<CParmComboBox>(*openPage(), "Profile Saving"));
    QTRY_VERIFY(openList(m_window.get()));
    m_window->changeCurrentUtil(UTILITY_ID_BACKLIGHT);
    QVERIFY(!openList(m_window.get()) && !m_window->findChild<CGlobalSettings*>()->isVisible());
    const CGlobalSettings* page = openPage();
    QCOMPARE(m_window->findChildren<CGlobalSettings*>().size(), 1);
    QCOMPARE(field<CParmComboBox>(*page, "Advance Saving")->currentText(), QStringLiteral("On"));
}

QTEST_MAIN(TestSettingsInShell)
#include "tst_settingsinshell.moc"
