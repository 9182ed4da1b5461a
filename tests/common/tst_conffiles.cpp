#include "commutils.h"
#include "conffiles.h"
#include "filedescriptor.h"
#include "xmlfile.h"

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>

class tst_ConfFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { REQUIRE_INSTRUMENT(); }
    void init() { resetConfFiles(); }
    void unusableFiles_data();
    void unusableFiles();
    void unusualFiles();
    void failedWrites_data();
    void failedWrites();
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
    file("expanding entities",
        "<!DOCTYPE TAVO [<!ENTITY a \"" + QByteArray(4000, 'x') + "\">]><TAVO>"
            + QByteArray("&a;").repeated(300000) + "</TAVO>");
}

void tst_ConfFiles::unusualFiles()
{
    // What only looks dangerous is read.
    for (const QByteArray& content : {QByteArray("<!--") + QByteArray(xmlfile::MaxAttributes * 2, '=')
                 + QByteArray("--><TAVO><language type='ge'/></TAVO>"),
             QByteArray("<!DOCTYPE TAVO><TAVO><language type='ge'/></TAVO>")}) {
        writeFile(Settings, content);
        QVERIFY(CUICommUtils::checkConfFile(Settings));
        QCOMPARE(CUICommUtils::getLanguageCode(), LANGUAGE_GERMAN);
    }
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
