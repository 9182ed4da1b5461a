#include "commutils.h"
#include "conffiles.h"
#include "filedescriptor.h"
#include "smalldisk.h"

#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>

class tst_ConfFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { REQUIRE_INSTRUMENT(); }
    void init() { resetConfFiles(); }
    void unusableFiles_data();
    void unusableFiles();
    void unusualFiles_data();
    void unusualFiles();
    void failedWrites_data();
    void failedWrites();
    void savedFileIsReadableByAll();
    void indentedBeyondTheLimit();
    void encodingIsKept_data();
    void encodingIsKept();
    void repeatedSavesDoNotGrow();
};

void tst_ConfFiles::unusableFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("kind"); // file, missing, pipe, huge
    QTest::addColumn<QByteArray>("message");
    const QByteArray good = builtIn("zentra-settings.xml");
    const auto file = [](const char* name, const QByteArray& content) {
        QTest::newRow(name) << content << QByteArray("file") << QByteArray("parse");
    };
    QTest::newRow("missing") << QByteArray() << QByteArray("missing") << QByteArray("open");
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
    file("broken UTF-8", "<TAVO><language type='\xff\xff'/></TAVO>");
    file("nested without end", QByteArray("<a>").repeated(120000) + QByteArray("</a>").repeated(120000));
    const auto numbered = [](int count, const char* before, const char* after) {
        QByteArray text;
        for (int number = 0; number < count; ++number)
            text += before + QByteArray::number(number) + after;
        return text;
    };
    file("crowded element", "<TAVO" + numbered(90000, " a", "=''") + "/>");
    // Two bytes a character, and no mark that says so.
    QByteArray wide;
    for (const char byte : QByteArray("<?xml version='1.0'?><TAVO" + numbered(30000, " a", "=''") + "/>"))
        wide.append(byte).append('\0');
    file("crowded element in UTF-16", wide);
    file("crowd of declared attributes",
        "<!DOCTYPE TAVO [<!ATTLIST a" + numbered(60000, " a", " ID #IMPLIED") + ">]><TAVO/>");
    file("attributes that the document type adds",
        "<!DOCTYPE TAVO [<!ATTLIST a" + numbered(3000, " a", " CDATA 'x'") + ">]><TAVO>"
            + QByteArray("<a/>").repeated(200000) + "</TAVO>");
    file("crowd of entities", "<!DOCTYPE TAVO [" + numbered(40000, "<!ENTITY a", " ''>") + "]><TAVO/>");
    QByteArray nested = "<!DOCTYPE TAVO [<!ENTITY a0 'xxxxxxxxxx'>";
    for (int number = 1; number < 10; ++number)
        nested += "<!ENTITY a" + QByteArray::number(number) + " '"
            + QByteArray("&a" + QByteArray::number(number - 1) + ";").repeated(10) + "'>";
    file("nested entities", nested + "]><TAVO>&a9;</TAVO>");
    file("expanding entities",
        "<!DOCTYPE TAVO [<!ENTITY a \"" + QByteArray(4000, 'x') + "\">]><TAVO>"
            + QByteArray("&a;").repeated(300000) + "</TAVO>");
}

void tst_ConfFiles::unusualFiles_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("inside");
    const auto row = [](const char* name, const QByteArray& before, const QByteArray& inside) {
        QTest::newRow(name) << before << inside;
    };
    const QByteArray values = QByteArray("=\"").repeated(50001);
    row("values in a comment", "<!--" + values + "-->", "");
    row("values in a CDATA section", "", "<a><![CDATA[<" + values + "]]></a>");
    row("values in an instruction", "<?a " + values + "?>", "");
    row("values in a text", "", "<a>" + values + "</a>");
    row("values in a value", "", "<a b='" + values + "'/>");
    QByteArray attributes;
    for (int number = 0; number < 5000; ++number)
        attributes += " a" + QByteArray::number(number) + "=\"'\"";
    row("many attributes", "", "<a" + attributes + "/>");
    row("long value", "", "<a b='" + QByteArray(900000, 'x') + "'/>");
    row("many elements", "", QByteArray("<a/>").repeated(100000));
    row("deep elements", "", QByteArray("<a>").repeated(400) + QByteArray("</a>").repeated(400));
    row("document type", "<!DOCTYPE TAVO>", "");
    row("entity", "<!DOCTYPE TAVO [<!ENTITY a 'b'>]>", "<a b='&a;'>&a;</a>");
    row("many references", "<!DOCTYPE TAVO [<!ENTITY a 'b'>]>",
        "<a>" + QByteArray("&a;&amp;").repeated(50000) + "</a>");
    row("long entity", "<!DOCTYPE TAVO [<!ENTITY a '" + QByteArray(20000, 'x') + "'>]>", "<a>&a;&a;</a>");
}

void tst_ConfFiles::unusualFiles()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, inside);
    writeFile(Settings, before + "<TAVO>" + inside + "<language type='ge'/></TAVO>");
    QVERIFY(CUICommUtils::checkConfFile(Settings));
    QCOMPARE(CUICommUtils::getLanguageCode(), LANGUAGE_GERMAN);
    // And what is saved is as good.
    QVERIFY(CUICommUtils::saveLanguage(LANGUAGE_FRENCH));
    QCOMPARE(CUICommUtils::getLanguageCode(), LANGUAGE_FRENCH);
}

void tst_ConfFiles::unusableFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, kind);
    QFETCH(QByteArray, message);
    for (const QString& path : {Settings, Desktop}) {
        QFile::remove(path);
        if (kind == "pipe")
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
}

void tst_ConfFiles::failedWrites_data()
{
    QTest::addColumn<bool>("diskFull");
    QTest::newRow("not writable") << false;
    QTest::newRow("disk full") << true;
}

void tst_ConfFiles::failedWrites()
{
    QFETCH(bool, diskFull);
    const QByteArray before = readFile(Settings);
    // A sealed file can be read, but not be truncated, not even by root.
    const CFileDescriptor sealed(::memfd_create("settings", MFD_ALLOW_SEALING));
    if (!diskFull) {
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
    {
        const CFileSizeLimit limit(diskFull ? 60 : RLIM_INFINITY);
        expect("File: /home/root/.zentra/zentra-settings.xml can not open for write.");
        QVERIFY(!CUICommUtils::saveAppState(0, "X"_s, true));
        expect("saveLanguage: [ zentra-settings ]: can not open for write.");
        QVERIFY(!CUICommUtils::saveLanguage(LANGUAGE_RUSSIAN));
        expect("saveStorageSetting: [ zentra-settings ]: can not open for write.");
        QVERIFY(!CUICommUtils::saveStorageSetting({}));
    }
    QCOMPARE(readFile(Settings), before);
    // And no part of a new one lies about.
    const QFileInfo file(Settings);
    QCOMPARE(file.dir().entryList({"*settings*"_s}, QDir::Files), QStringList(file.fileName()));
}

void tst_ConfFiles::savedFileIsReadableByAll()
{
    // Behind a link, as on a unit that keeps its files elsewhere.
    const QString elsewhere = "/home/root/elsewhere.xml"_s;
    writeFile(elsewhere, readFile(Settings));
    QVERIFY(QFile::setPermissions(elsewhere, QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(QFile::remove(Settings));
    QVERIFY(QFile::link(elsewhere, Settings));
    const mode_t maskBefore = ::umask(077);
    QVERIFY(CUICommUtils::saveLanguage(LANGUAGE_HUNGARIAN));
    ::umask(maskBefore);
    QVERIFY(QFileInfo(Settings).isSymLink());
    QVERIFY(readFile(elsewhere).contains("hu"));
    struct stat state = {};
    QCOMPARE(::stat(qPrintable(elsewhere), &state), 0);
    QCOMPARE(int(state.st_mode & 07777), 0644);
}

void tst_ConfFiles::indentedBeyondTheLimit()
{
    const QByteArray crowd = "<TAVO><a><b><c>" + QByteArray("<d/>").repeated(200000) + "</c></b></a></TAVO>";
    writeFile(Settings, crowd);
    QTest::ignoreMessage(
        QtWarningMsg, "File: /home/root/.zentra/zentra-settings.xml can not be written completely.");
    QVERIFY(!CUICommUtils::saveLanguage(LANGUAGE_HUNGARIAN));
    QVERIFY(readFile(Settings) == crowd);
}

void tst_ConfFiles::encodingIsKept_data()
{
    QTest::addColumn<QByteArray>("codec");
    for (const char* codec : {"UTF-8", "ISO-8859-1", "UTF-16"})
        QTest::newRow(codec) << QByteArray(codec);
}

void tst_ConfFiles::encodingIsKept()
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
            (QStringList{"/TAVO "_s, QStringLiteral(u"/TAVO/BOARD sn=\u00E4"), "/TAVO/language type=fr"_s}));
    }
}

void tst_ConfFiles::repeatedSavesDoNotGrow()
{
    QVERIFY(CUICommUtils::saveAppState(1, "X"_s, false));
    const QByteArray once = readFile(Settings);
    QVERIFY(CUICommUtils::saveAppState(1, "X"_s, false));
    QCOMPARE(readFile(Settings).size(), once.size());
    QVERIFY(once.contains("\n            <test_mode "));
}

QTEST_MAIN(tst_ConfFiles)
#include "tst_conffiles.moc"
