#include "childreaper.h"
#include "commutils.h"
#include "detachedcommand.h"
#include "testfiles.h"
#include "xmlfile.h"

#include <QDomDocument>
#include <QGuiApplication>
#include <QImage>

#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>

using Lines = QStringList;

static const QString Settings = "/home/root/.zentra/zentra-settings.xml"_s;
static const QString Desktop = "/home/root/.zentra/zentra-desktop.xml"_s;

static QByteArray builtIn(const char* name)
{
    return readFile(qEnvironmentVariable("INSTRUMENT_SOURCE") + "/resources/conf/"_s + QLatin1String(name));
}

// The elements below the root in document order: path, then attributes by name. What two equal documents
// share.
static void describe(const QDomElement& element, const QString& path, Lines& lines)
{
    QStringList attributes;
    for (int index = 0; index < element.attributes().count(); ++index) {
        const QDomAttr node = element.attributes().item(index).toAttr();
        attributes << node.name() + "="_s + node.value();
    }
    attributes.sort();
    const QString name = path + "/"_s + element.tagName();
    lines << name + " "_s + attributes.join(" "_s);
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        describe(child, name, lines);
}

static Lines elements(const QByteArray& content)
{
    QDomDocument document;
    if (!document.setContent(content))
        return {"not well-formed"_s};
    Lines lines;
    describe(document.documentElement(), QString(), lines);
    return lines;
}

static QByteArray slotsFile(const QByteArray& testModes)
{
    return "<TAVO><BOARD><test_info>" + testModes + "</test_info></BOARD></TAVO>";
}

class tst_CommUtils : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { REQUIRE_INSTRUMENT(); }
    void init();
    void builtInDefaults();
    void appState_data();
    void appState();
    void unknownSlotLeavesTheFile();
    void lastRunApp_data();
    void lastRunApp();
    void language_data();
    void language();
    void storedLanguage_data();
    void storedLanguage();
    void storageSettings_data();
    void storageSettings();
    void storageSettingsOfAFile();
    void unusableFiles_data();
    void unusableFiles();
    void failedWrites_data();
    void failedWrites();
    void encodingIsKept_data();
    void encodingIsKept();
    void repeatedSavesDoNotGrow();
    void utilities();
    void pidof_data();
    void pidof();
    void pidofWithoutPipe();
    void dialogState_data();
    void dialogState();
};

void tst_CommUtils::init()
{
    for (const QString& path : {Settings, Desktop}) // may be a link or a pipe
        QFile::remove(path);
    writeFile(Settings, builtIn("zentra-settings.xml"));
    writeFile(Desktop, builtIn("zentra-desktop.xml"));
}

void tst_CommUtils::builtInDefaults()
{
    QVERIFY(builtIn("zentra-settings.xml").startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
    QCOMPARE(elements(builtIn("zentra-settings.xml")),
        (Lines{"/TAVO "_s, "/TAVO/BOARD sn=ZENTRA type=Zentra"_s, "/TAVO/BOARD/test_info "_s,
            "/TAVO/BOARD/test_info/test_mode app_index=0 foreground=true mode_name=1GE_ETHER"_s,
            "/TAVO/BOARD/test_info/test_mode app_index=1 foreground=false mode_name=1GE_ETHER"_s,
            "/TAVO/language type=en"_s}));
    for (const char* name :
        {"zentra-settings.xml", "zentra-desktop.xml", "result-config.xml", "result-type-config.xml"})
        QVERIFY2(CUICommUtils::checkConfFile(
                     qEnvironmentVariable("INSTRUMENT_SOURCE") + "/resources/conf/"_s + QLatin1String(name)),
            name);
    QVERIFY(CUICommUtils::isNeedLaunchLastRunApp());
    QCOMPARE(CUICommUtils::getLanguageCode(), LANGUAGE_ENGLISH);
    QCOMPARE(CUICommUtils::getStorageSetting().profileDel, 0);
}

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
    QTest::newRow("to the front, unknown")
        << slotsFile(two) << QByteArray("front") << 7 << true
        << slotsFile("<test_mode app_index='0' mode_name='A' foreground='false'/>"
                     "<test_mode app_index='1' mode_name='B' foreground='false'/>");
    QTest::newRow("every entry of a slot, other elements untouched")
        << slotsFile("<test_mode app_index='1'/><!-- note --><other app_index='1'/><test_mode app_index='1' "
                     "mode_name='B'/>")
        << QByteArray("save") << 1 << true
        << slotsFile("<test_mode app_index='1' mode_name='NEW' foreground='true'/><other app_index='1'/>"
                     "<test_mode app_index='1' mode_name='NEW' foreground='true'/>");
    QTest::newRow("missing and odd indexes read as 0")
        << slotsFile("<test_mode/><test_mode app_index='x'/><test_mode app_index='00'/>")
        << QByteArray("clear") << 0 << true
        << slotsFile("<test_mode mode_name='' foreground='false'/><test_mode app_index='x' mode_name='' "
                     "foreground='false'/>"
                     "<test_mode app_index='00' mode_name='' foreground='false'/>");
    QTest::newRow("first board only")
        << QByteArray("<TAVO><BOARD><test_info/></BOARD><BOARD><test_info><test_mode "
                      "app_index='1'/></test_info></BOARD></TAVO>")
        << QByteArray("save") << 1 << true
        << QByteArray("<TAVO><BOARD><test_info/></BOARD><BOARD><test_info><test_mode "
                      "app_index='1'/></test_info></BOARD></TAVO>");
    QTest::newRow("no test_info") << QByteArray("<TAVO><BOARD/></TAVO>") << QByteArray("save") << 0 << true
                                  << QByteArray("<TAVO><BOARD/></TAVO>");
    QTest::newRow("no board") << QByteArray("<TAVO/>") << QByteArray("save") << 0 << false
                              << QByteArray("<TAVO/>");
    QTest::newRow("no board for the front")
        << QByteArray("<TAVO/>") << QByteArray("front") << 0 << false << QByteArray("<TAVO/>");
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

void tst_CommUtils::unknownSlotLeavesTheFile()
{
    const QByteArray odd
        = "<TAVO><BOARD><test_info>\t<test_mode   app_index='1'/></test_info></BOARD></TAVO>";
    writeFile(Settings, odd);
    QString err;
    QVERIFY(CUICommUtils::saveAppState(5, "X"_s, true, &err));
    QCOMPARE(readFile(Settings), odd);
    QVERIFY(err.isEmpty());
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
    QTest::newRow("other spelling") << slotsFile("<test_mode mode_name='A' foreground='True'/>") << false;
    QTest::newRow("no slots") << QByteArray("<TAVO><BOARD/></TAVO>") << false;
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
                            << "Arial"_s << 15 << int(QFont::Light) << QByteArray("German");
    QTest::newRow("French") << int(LANGUAGE_FRENCH) << "fr"_s
                            << "Arial"_s << 15 << int(QFont::Light) << QByteArray("French");
    QTest::newRow("Japanese") << int(LANGUAGE_JAPANESE) << "ja"_s
                              << "Arial Unicode MS"_s << 15 << int(QFont::Normal) << QByteArray("Japanese");
    QTest::newRow("Hungarian") << int(LANGUAGE_HUNGARIAN) << "hu"_s
                               << "Arial"_s << 15 << int(QFont::Light) << QByteArray("Hungarian");
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
    QTest::newRow("capitals") << QByteArray("<TAVO><language type='RU' x='1'/></TAVO>")
                              << int(LANGUAGE_ENGLISH) << Lines{"/TAVO "_s, "/TAVO/language type=ge x=1"_s};
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
    QTest::newRow("empty") << QByteArray() << QByteArray();
    QTest::newRow("plain") << QByteArray("site-A_") << QByteArray("site-A_");
    QTest::newRow("as long as it may be") << QByteArray(63, 'p') << QByteArray(63, 'p');
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

void tst_CommUtils::storageSettingsOfAFile()
{
    writeFile(Settings,
        "<TAVO><storage_setting fname_prefix='" + QByteArray(5000, 'q')
            + "' profile_deleting='1' profile_saving='x' result_saving='99999999999'/></TAVO>");
    const mainframe2app_message got = CUICommUtils::getStorageSetting();
    QCOMPARE(QByteArray(got.fnamePrefix, 64), QByteArray(63, 'q') + '\0');
    QCOMPARE(got.profileDel, 1);
    QCOMPARE(got.profileSaving, 0);
    QCOMPARE(got.rsultSaving, 0);
    QCOMPARE(got.advanceSaving, 0);
}

void tst_CommUtils::unusableFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("kind"); // file, missing, directory, pipe, huge
    QTest::addColumn<QByteArray>("message");
    const QByteArray good = builtIn("zentra-settings.xml");
    const auto file = [](const char* name, const QByteArray& content) {
        QTest::newRow(name) << content << QByteArray("file") << QByteArray("parse");
    };
    QTest::newRow("missing") << QByteArray() << QByteArray("missing") << QByteArray("open");
    QTest::newRow("directory") << QByteArray() << QByteArray("directory") << QByteArray("open");
    QTest::newRow("pipe that nobody writes") << QByteArray() << QByteArray("pipe") << QByteArray("open");
    QTest::newRow("50 MB") << good << QByteArray("huge") << QByteArray("parse");
    file("empty", "");
    file("truncated", good.left(good.size() / 2));
    file("binary",
        QByteArray("\x7f"
                   "ELF\x02\x01\x01\0\0\0\xff\xfe\x80",
            13)
            .repeated(50));
    file("all zero, as a power cut leaves it", QByteArray(good.size(), '\0'));
    file("something behind the root", good + "<TAVO/>");
    file("broken UTF-8", "<TAVO><language type='\xff\xff'/></TAVO>");
    file("one byte above the limit", "<TAVO>" + QByteArray(xmlfile::MaxFileSize - 12, ' ') + "</TAVO>");
    file("nested without end", QByteArray("<a>").repeated(120000) + QByteArray("</a>").repeated(120000));
    QByteArray attributes;
    for (int number = 0; number < 90000; ++number)
        attributes += " a" + QByteArray::number(number) + "=''";
    file("attributes without end", "<TAVO" + attributes + "/>");
    file("expanding entities",
        "<!DOCTYPE TAVO [<!ENTITY a \"" + QByteArray(4000, 'x') + "\">]><TAVO>"
            + QByteArray("&a;").repeated(300000) + "</TAVO>");
    file("nested entities",
        "<!DOCTYPE T [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;\"><!ENTITY c "
        "\"&b;&b;&b;&b;&b;&b;&b;&b;\">"
        "<!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;\"><!ENTITY e \"&d;&d;&d;&d;&d;&d;&d;&d;\"><!ENTITY f "
        "\"&e;&e;&e;&e;&e;&e;&e;&e;\">"
        "<!ENTITY g \"&f;&f;&f;&f;&f;&f;&f;&f;\"><!ENTITY h \"&g;&g;&g;&g;&g;&g;&g;&g;\">]><T>&h;&h;</T>");
}

void tst_CommUtils::unusableFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, kind);
    QFETCH(QByteArray, message);
    for (const QString& path : {Settings, Desktop}) {
        QFile::remove(path);
        if (kind == "directory")
            QVERIFY(QDir().mkdir(path));
        else if (kind == "pipe")
            QCOMPARE(::mkfifo(qPrintable(path), 0600), 0);
        else if (kind != "missing")
            writeFile(path, content);
        if (kind == "huge") {
            QFile file(path);
            QVERIFY(file.resize(50LL * 1000 * 1000)); // sparse
        }
    }

    const auto expect = [&message](const char* operation, const QString& path) {
        const QByteArray line
            = QByteArray(operation) + "File: " + path.toUtf8() + " can not " + message + ".";
        QTest::ignoreMessage(QtWarningMsg, line.constData());
        return QString::fromUtf8(line);
    };
    QVERIFY(!CUICommUtils::checkConfFile(Settings));

    QString expected = expect("", Settings);
    QString err;
    QVERIFY(!CUICommUtils::saveAppState(0, "X"_s, true, &err));
    QCOMPARE(err, expected);
    expect("", Settings);
    err.clear();
    QVERIFY(!CUICommUtils::setAppForeground(0, &err));
    QCOMPARE(err, expected);
    expect("", Settings);
    err.clear();
    QVERIFY(!CUICommUtils::isNeedLaunchLastRunApp(&err));
    QCOMPARE(err, expected);
    expect("", Settings);
    QVERIFY(!CUICommUtils::isNeedLaunchLastRunApp());

    expect("saveLanguage: ", Settings);
    QVERIFY(!CUICommUtils::saveLanguage(LANGUAGE_GERMAN));
    expect("getLanguageCode: ", Settings);
    QCOMPARE(CUICommUtils::getLanguageCode(), LANGUAGE_ENGLISH);
    expect("saveStorageSetting: ", Settings);
    QVERIFY(!CUICommUtils::saveStorageSetting({}));
    expect("getStorageSetting: ", Settings);
    const mainframe2app_message none = {};
    const mainframe2app_message got = CUICommUtils::getStorageSetting();
    QCOMPARE(std::memcmp(&got, &none, sizeof none), 0);

    expected = expect("", Desktop);
    bool ok = true;
    QVERIFY(CUICommUtils::getAllUtilities(&ok, &err).isEmpty());
    QVERIFY(!ok);
    QCOMPARE(err, expected);

    if (kind == "file")
        QCOMPARE(readFile(Settings), content);
    QVERIFY(kind != "directory" || (QDir().rmdir(Settings) && QDir().rmdir(Desktop)));
}

void tst_CommUtils::failedWrites_data()
{
    QTest::addColumn<bool>("diskFull");
    QTest::newRow("not writable") << false;
    QTest::newRow("disk full") << true;
}

void tst_CommUtils::failedWrites()
{
    QFETCH(bool, diskFull);
    const QByteArray before = readFile(Settings);
    // A sealed file can be read, but not be truncated, not even by root.
    const CFileDescriptor sealed(::memfd_create("settings", MFD_ALLOW_SEALING));
    rlimit limit = {};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const auto signalBefore = std::signal(SIGXFSZ, SIG_IGN);
    if (diskFull) {
        const rlimit small = {60, limit.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);
    } else {
        QCOMPARE(::write(sealed.get(), before.constData(), static_cast<size_t>(before.size())),
            ssize_t(before.size()));
        QCOMPARE(::fcntl(sealed.get(), F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_WRITE), 0);
        QFile::remove(Settings);
        QVERIFY(QFile::link("/proc/self/fd/%1"_s.arg(sealed.get()), Settings));
    }
    const auto expect = [=](const char* line) {
        QTest::ignoreMessage(QtWarningMsg,
            diskFull ? "File: /home/root/.zentra/zentra-settings.xml can not be written completely." : line);
    };
    expect("File: /home/root/.zentra/zentra-settings.xml can not open for write.");
    const bool state = CUICommUtils::saveAppState(0, "X"_s, true);
    // What the first one left behind cannot be parsed; this one can, and grows beyond the limit.
    const QByteArray fits = "<TAVO><BOARD sn='12345678901234567890123456789'/></TAVO>";
    if (diskFull)
        writeFile(Settings, fits);
    expect("saveLanguage: [ zentra-settings ]: can not open for write.");
    const bool language = CUICommUtils::saveLanguage(LANGUAGE_RUSSIAN);
    if (diskFull)
        writeFile(Settings, fits);
    expect("saveStorageSetting: [ zentra-settings ]: can not open for write.");
    const bool storage = CUICommUtils::saveStorageSetting({});
    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, signalBefore);
    QVERIFY(!state);
    QVERIFY(!language);
    QVERIFY(!storage);
    if (!diskFull)
        QCOMPARE(readFile(Settings), before);
}

void tst_CommUtils::encodingIsKept_data()
{
    QTest::addColumn<QByteArray>("codec");
    for (const char* codec : {"UTF-8", "ISO-8859-1", "UTF-16"})
        QTest::newRow(codec) << QByteArray(codec);
}

void tst_CommUtils::encodingIsKept()
{
    QFETCH(QByteArray, codec);
    const QString text
        = QStringLiteral(u"<?xml version=\"1.0\" encoding=\"%1\"?><TAVO><BOARD sn=\"\u00E4\"/></TAVO>")
              .arg(QString::fromLatin1(codec));
    QByteArray content;
    QTextStream stream(&content);
    stream.setCodec(codec.constData());
    stream << text;
    stream.flush();
    writeFile(Settings, content);
    for (int round = 0; round < 2; ++round) {
        QVERIFY(CUICommUtils::saveLanguage(LANGUAGE_FRENCH));
        QCOMPARE(elements(readFile(Settings)),
            (Lines{"/TAVO "_s, QStringLiteral(u"/TAVO/BOARD sn=\u00E4"), "/TAVO/language type=fr"_s}));
    }
}

void tst_CommUtils::repeatedSavesDoNotGrow()
{
    QVERIFY(CUICommUtils::saveAppState(1, "X"_s, false));
    const QByteArray once = readFile(Settings);
    QVERIFY(CUICommUtils::saveAppState(1, "X"_s, false));
    QCOMPARE(readFile(Settings).size(), once.size());
    QVERIFY(once.contains("\n            <test_mode "));
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
    QTest::addColumn<bool>("reaper");
    QTest::newRow("none") << 0 << false;
    QTest::newRow("one") << 1 << false;
    QTest::newRow("two") << 2 << false;
    QTest::newRow("one, with the shell's reaper") << 1 << true;
}

void tst_CommUtils::pidof()
{
    QFETCH(int, instances);
    QFETCH(bool, reaper);
    const std::unique_ptr<ChildReaper> installed(reaper ? new ChildReaper : nullptr);
    const QString program = "/tmp/lookedup%1%2"_s.arg(instances).arg(reaper);
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

void tst_CommUtils::pidofWithoutPipe()
{
    rlimit limit = {};
    ::getrlimit(RLIMIT_NOFILE, &limit);
    const rlimit none = {0, limit.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_NOFILE, &none), 0);
    const int found = CUICommUtils::pidof("sh"_s);
    ::setrlimit(RLIMIT_NOFILE, &limit);
    QCOMPARE(found, -2);
}

void tst_CommUtils::dialogState_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("expected");
    QTest::newRow("shown") << QByteArray("with_dialog: 1\nother: 2\n") << true;
    QTest::newRow("not shown") << QByteArray("with_dialog: 0\n") << false;
    QTest::newRow("number alone") << QByteArray("1") << true;
    QTest::newRow("other number") << QByteArray("with_dialog: 11\n") << false;
    QTest::newRow("second line") << QByteArray("\nwith_dialog: 1\n") << false;
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
}

QTEST_MAIN(tst_CommUtils)
#include "tst_commutils.moc"
