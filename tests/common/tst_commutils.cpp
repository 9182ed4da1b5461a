#include "childreaper.h"
#include "commutils.h"
#include "conffiles.h"
#include "detachedcommand.h"
#include <QGuiApplication>
#include <QImage>
#include <QTranslator>

#include <cstring>
#include <sys/resource.h>
#include <sys/stat.h>

using Lines = QStringList;

static QByteArray slotsFile(const QByteArray& testModes)
{
    return "<TAVO><BOARD><test_info>" + testModes + "</test_info></BOARD></TAVO>";
}

class tst_CommUtils : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { REQUIRE_INSTRUMENT(); }
    void init() { resetConfFiles(); }
    void appState_data();
    void appState();
    void lastRunApp_data();
    void lastRunApp();
    void language_data();
    void language();
    void storedLanguage_data();
    void storedLanguage();
    void storageSettings_data();
    void storageSettings();
    void utilities();
    void pidof_data();
    void pidof();
    void dialogState_data();
    void dialogState();
    void translationThatDoesNotLoad();
};

void tst_CommUtils::appState_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QByteArray>("after");
    const QByteArray two = "<test_mode app_index='0' mode_name='A' foreground='true'/>"
                           "<test_mode app_index='1' mode_name='B' foreground='false'/>";
    QTest::newRow("save") << slotsFile(two) << QByteArray("save") << 1 << true
                          << slotsFile("<test_mode app_index='0' mode_name='A' foreground='true'/>"
                                       "<test_mode app_index='1' mode_name='NEW' foreground='true'/>");
    QTest::newRow("clear") << slotsFile(two) << QByteArray("clear") << 0 << true
                           << slotsFile("<test_mode app_index='0' mode_name='' foreground='false'/>"
                                        "<test_mode app_index='1' mode_name='B' foreground='false'/>");
    QTest::newRow("to the front") << slotsFile(two) << QByteArray("front") << 1 << true
                                  << slotsFile("<test_mode app_index='0' mode_name='A' foreground='false'/>"
                                               "<test_mode app_index='1' mode_name='B' foreground='true'/>");
    QTest::newRow("every entry of a slot, other elements untouched")
        << slotsFile("<test_mode app_index='1'/><!-- note --><other app_index='1'/><test_mode app_index='1' "
                     "mode_name='B'/>")
        << QByteArray("save") << 1 << true
        << slotsFile("<test_mode app_index='1' mode_name='NEW' foreground='true'/><other app_index='1'/>"
                     "<test_mode app_index='1' mode_name='NEW' foreground='true'/>");
    QTest::newRow("no test_info") << QByteArray("<TAVO><BOARD/></TAVO>") << QByteArray("save") << 0 << true
                                  << QByteArray("<TAVO><BOARD/></TAVO>");
    QTest::newRow("no board") << QByteArray("<TAVO/>") << QByteArray("save") << 0 << false
                              << QByteArray("<TAVO/>");
}

void tst_CommUtils::appState()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, operation);
    QFETCH(int, index);
    QFETCH(bool, result);
    QFETCH(QByteArray, after);
    writeFile(Settings, before);
    if (operation == "save")
        QCOMPARE(CUICommUtils::saveAppState(index, "NEW"_s, true), result);
    else if (operation == "clear")
        QCOMPARE(CUICommUtils::clearAppState(index), result);
    else
        QCOMPARE(CUICommUtils::setAppForeground(index), result);
    QCOMPARE(elements(readFile(Settings)), elements(after));
}

void tst_CommUtils::lastRunApp_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("expected");
    QTest::newRow("second in front") << slotsFile(
        "<test_mode mode_name='A' foreground='false'/><test_mode mode_name='B' foreground='true'/>")
                                     << true;
    QTest::newRow("front slot is free") << slotsFile(
        "<test_mode mode_name='A' foreground='false'/><test_mode mode_name='' foreground='true'/>")
                                        << false;
    QTest::newRow("no board") << QByteArray("<TAVO/>") << false;
}

void tst_CommUtils::lastRunApp()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, expected);
    writeFile(Settings, content);
    QCOMPARE(CUICommUtils::isNeedLaunchLastRunApp(), expected);
}

void tst_CommUtils::language_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<int>("weight"); // with a default of Light
    QTest::addColumn<QByteArray>("prompt");
    QTest::newRow("English") << int(LANGUAGE_ENGLISH) << "en"_s
                             << "Arial"_s << 15 << int(QFont::Bold) << QByteArray("English");
    QTest::newRow("Chinese") << int(LANGUAGE_CHINESE) << "zh_CN"_s
                             << "WenQuanYi Micro Hei"_s << 16 << int(QFont::Normal) << QByteArray("Chinese");
    QTest::newRow("German") << int(LANGUAGE_GERMAN) << "ge"_s
                            << "Arial"_s << 15 << int(QFont::Normal) << QByteArray("German");
    QTest::newRow("Japanese") << int(LANGUAGE_JAPANESE) << "ja"_s
                              << "Arial Unicode MS"_s << 15 << int(QFont::Normal) << QByteArray("Japanese");
    QTest::newRow("Russian") << int(LANGUAGE_RUSSIAN) << "ru"_s
                             << "Segoe UI"_s << 16 << int(QFont::Normal) << QByteArray("Russian");
    QTest::newRow("none") << int(LANGUAGE_END) << "en"_s
                          << "Arial"_s << 15 << int(QFont::Bold) << QByteArray("English(Default)");
}

void tst_CommUtils::language()
{
    QFETCH(int, code);
    QFETCH(QString, type);
    QFETCH(QString, family);
    QFETCH(int, pixelSize);
    QFETCH(int, weight);
    QFETCH(QByteArray, prompt);
    const auto language = static_cast<LanguageCode>(code);
    const LanguageCode known = code == LANGUAGE_END ? LANGUAGE_ENGLISH : language;
    QCOMPARE(CUICommUtils::toLangType(language), type);
    QCOMPARE(CUICommUtils::toLangCode(type), known);
    QCOMPARE(CUICommUtils::getTranslateFileName(language),
        QCoreApplication::applicationDirPath() + "/lang/zentra_%1.qm"_s.arg(type));

    const QFont before = QGuiApplication::font();
    QFont light = before;
    light.setWeight(QFont::Light);
    QGuiApplication::setFont(light);
    const QFont font = CUICommUtils::getLangFont(language);
    QGuiApplication::setFont(before);
    QCOMPARE(font.family(), family);
    QCOMPARE(font.pixelSize(), pixelSize);
    QCOMPARE(font.weight(), weight);
    QCOMPARE(font.styleHint(), QFont::SansSerif);
    QCOMPARE(font.styleStrategy(), QFont::PreferDevice);

    QTest::ignoreMessage(QtDebugMsg, "Current System Language: " + prompt);
    CUICommUtils::printSystemLangPrompt(language);

    QVERIFY(CUICommUtils::saveLanguage(language));
    QCOMPARE(CUICommUtils::getLanguageCode(), known);
    QCOMPARE(elements(readFile(Settings)).last(), "/TAVO/language type="_s + type);
}

void tst_CommUtils::storedLanguage_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("code");
    QTest::addColumn<Lines>("afterSavingGerman");
    QTest::newRow("none: appended") << QByteArray("<TAVO><BOARD/><x/></TAVO>") << int(LANGUAGE_ENGLISH)
                                    << Lines{"/TAVO "_s, "/TAVO/BOARD "_s, "/TAVO/x "_s,
                                           "/TAVO/language type=ge"_s};
    QTest::newRow("first counts") << QByteArray("<TAVO><language type='hu'/><language type='fr'/></TAVO>")
                                  << int(LANGUAGE_HUNGARIAN)
                                  << Lines{
                                         "/TAVO "_s, "/TAVO/language type=ge"_s, "/TAVO/language type=fr"_s};
    QTest::newRow("ISO code") << QByteArray("<TAVO><language type='de'/></TAVO>") << int(LANGUAGE_ENGLISH)
                              << Lines{"/TAVO "_s, "/TAVO/language type=ge"_s};
}

void tst_CommUtils::storedLanguage()
{
    QFETCH(QByteArray, content);
    QFETCH(int, code);
    QFETCH(Lines, afterSavingGerman);
    writeFile(Settings, content);
    QCOMPARE(int(CUICommUtils::getLanguageCode()), code);
    QVERIFY(CUICommUtils::saveLanguage(LANGUAGE_GERMAN));
    QCOMPARE(elements(readFile(Settings)), afterSavingGerman);
    QVERIFY(readFile(Settings).contains("\n    <language")); // indented by four
}

void tst_CommUtils::storageSettings_data()
{
    QTest::addColumn<QByteArray>("prefix");
    QTest::addColumn<QByteArray>("stored");
    QTest::newRow("not terminated") << QByteArray(64, 'p') << QByteArray(63, 'p');
    QTest::newRow("cut between characters") << QByteArray(62, 'p') + "\xc3\xa4" << QByteArray(62, 'p');
    QTest::newRow("markup") << QByteArray("<a b=\"c\">&amp;'") << QByteArray("<a b=\"c\">&amp;'");
    QTest::newRow("white space") << QByteArray(" a\tb\nc ") << QByteArray(" a\tb\nc ");
    QTest::newRow("not for XML") << QByteArray("a\x01\x1b"
                                               "b\xef\xbf\xbf")
                                 << QByteArray("ab");
    QTest::newRow("beyond the basic plane")
        << QByteArray("\xf0\x9f\x94\xa7") << QByteArray("\xf0\x9f\x94\xa7");
}

void tst_CommUtils::storageSettings()
{
    QFETCH(QByteArray, prefix);
    QFETCH(QByteArray, stored);
    const ChildReaper reaper; // the copy's exit status is the reaper's
    QFile::remove("/usr/local/module/zentra-settings.xml"_s);

    mainframe2app_message message = {};
    std::strcpy(message.msgPref, "MAINFRAME2APP");
    std::memcpy(message.fnamePrefix, prefix.constData(), static_cast<size_t>(prefix.size()));
    message.profileDel = 1;
    message.profileSaving = -2;
    message.rsultSaving = 2147483647;
    message.advanceSaving = 0;
    for (int round = 0; round < 2; ++round) { // made, then changed in place
        QTest::ignoreMessage(
            QtDebugMsg, "\ncmd:cp -f /home/root/.zentra/zentra-settings.xml /usr/local/module");
        QVERIFY(CUICommUtils::saveStorageSetting(message));
        QCOMPARE(readFile("/usr/local/module/zentra-settings.xml"_s), readFile(Settings));
        QCOMPARE(elements(readFile(Settings)).filter("storage_setting"_s).size(), 1);
    }

    mainframe2app_message expected = message;
    std::memset(expected.msgPref, 0, sizeof expected.msgPref);
    std::memset(expected.fnamePrefix, 0, sizeof expected.fnamePrefix);
    std::memcpy(expected.fnamePrefix, stored.constData(), static_cast<size_t>(stored.size()));
    const mainframe2app_message got = CUICommUtils::getStorageSetting();
    QCOMPARE(QByteArray(reinterpret_cast<const char*>(&got), sizeof got),
        QByteArray(reinterpret_cast<const char*>(&expected), sizeof expected));
}

void tst_CommUtils::utilities()
{
    bool ok = false;
    QList<UtilityInfo> list = CUICommUtils::getAllUtilities(&ok);
    QVERIFY(ok);
    QCOMPARE(list.size(), 2);
    QCOMPARE(list.at(0).id, 65538);
    QCOMPARE(list.at(0).name, "Browser"_s);
    QVERIFY(list.at(0).args.endsWith(" 0,0,800,460 2 /var/dev/p-event1"_s));
    QVERIFY(list.at(0).icon.isNull());
    QCOMPARE(list.at(1).path, "/usr/local/bin/resultman"_s);
    QCOMPARE(list.at(1).args, "result 0,0,800,460 2 /var/dev/p-event1"_s);
    QCOMPARE(list.at(1).wnd_name, "resultman"_s);

    QVERIFY(QImage(3, 4, QImage::Format_RGB32).save("/tmp/icon.png"_s));
    writeFile(Desktop,
        "<TAVO><desktop><utilities><!-- c --><thing id='1'/>text"
        "<item id='x' icon='/tmp/icon.png'/><item id='7'/></utilities></desktop></TAVO>");
    list = CUICommUtils::getAllUtilities(nullptr);
    QCOMPARE(list.size(), 2);
    QCOMPARE(list.at(0).id, 0);
    QCOMPARE(list.at(0).icon.size(), QSize(3, 4));
    QCOMPARE(list.at(1).id, 7);

    // An icon that never comes.
    QVERIFY(QFile::remove("/tmp/icon.png"_s));
    QCOMPARE(::mkfifo("/tmp/icon.png", 0600), 0);
    QVERIFY(CUICommUtils::getAllUtilities(nullptr).at(0).icon.isNull());

    for (const char* content : {"<TAVO/>", "<TAVO><desktop/></TAVO>"}) {
        writeFile(Desktop, content);
        ok = true;
        QVERIFY(CUICommUtils::getAllUtilities(&ok).isEmpty());
        QVERIFY(!ok);
    }
}

void tst_CommUtils::pidof_data()
{
    QTest::addColumn<int>("instances");
    QTest::newRow("none") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("two") << 2;
}

void tst_CommUtils::pidof()
{
    QFETCH(int, instances);
    const QString program = "/tmp/lookedup%1"_s.arg(instances);
    QFile::remove(program);
    QVERIFY(QFile::copy("/usr/bin/sleep"_s, program));
    std::vector<CDetachedCommand> commands(static_cast<size_t>(instances));
    for (CDetachedCommand& command : commands)
        QVERIFY2(command.start({program, "60"_s}), qPrintable(command.errorText()));
    const int expected = instances == 0 ? -1 : instances == 1 ? commands[0].pid() : 0;
    const int found = CUICommUtils::pidof(QFileInfo(program).fileName());
    for (CDetachedCommand& command : commands)
        command.terminate();
    QCOMPARE(found, expected);
}

void tst_CommUtils::dialogState_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("expected");
    QTest::newRow("shown") << QByteArray("with_dialog: 1\nother: 2\n") << true;
    QTest::newRow("not shown") << QByteArray("with_dialog: 0\n") << false;
    QTest::newRow("number alone") << QByteArray("1") << true;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("one long line") << QByteArray(3000000, '1') << false;
}

void tst_CommUtils::dialogState()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, expected);
    const QString path = "/tmp/var/lib/wmsv/dlg-info"_s;
    writeFile(path, content);
    QCOMPARE(CUICommUtils::isTestAppDlgPopup(), expected);
    QVERIFY(QFile::remove(path));
    QVERIFY(!CUICommUtils::isTestAppDlgPopup());
    QCOMPARE(::mkfifo(qPrintable(path), 0600), 0);
    const auto removed = qScopeGuard([&path] { QFile::remove(path); });
    QVERIFY(!CUICommUtils::isTestAppDlgPopup());
}

void tst_CommUtils::translationThatDoesNotLoad()
{
    const QString name = CUICommUtils::getTranslateFileName(LANGUAGE_GERMAN);
    QTranslator translator;
    QTest::ignoreMessage(
        QtWarningMsg, qPrintable("[%1]: Translation can not be loaded."_s.arg(name))); // not beside a test
    CUICommUtils::loadTranslation(translator, LANGUAGE_GERMAN);
    QVERIFY(translator.isEmpty());
}

QTEST_MAIN(tst_CommUtils)
#include "tst_commutils.moc"
