#include "commutils.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include "smalldisk.h"
#include "startup.h"
#include "widgets/widgetstyle/widgetstyle.h"

namespace {

const QString CONF_DIR = QStringLiteral("/home/root/.zentra");
const QString RESULT_DIR = QStringLiteral("/home/root/.resultmanager");
const QString SETTINGS = CONF_DIR + QStringLiteral("/zentra-settings.xml");
const QString STYLE = CONF_DIR + QStringLiteral("/widget-style.xml");
const QString RESULT = RESULT_DIR + QStringLiteral("/result-config.xml");
const QString RESULT_TYPE = RESULT_DIR + QStringLiteral("/result-type-config.xml");

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

QByteArray defaultOf(const QString& path)
{
    return contentOf(QStringLiteral(":/conf/") + QFileInfo(path).fileName());
}

QString replacedLine(const QString& path, const char* why)
{
    return QStringLiteral("[%1]: Configuration is %2, replaced by the built-in default")
        .arg(path, QString::fromLatin1(why));
}

void write(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly | QIODevice::Truncate), qPrintable(path));
    file.write(content);
}

} // namespace

/** Recovery of the configuration files at start-up. */
class TestConfiguration : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void everythingIsMadeFromNothing();
    void goodFilesAreLeftAlone();
    void badFileIsReplacedAndKept_data();
    void badFileIsReplacedAndKept();
    void directoryInPlaceOfAFileIsMovedAside();
    void fileThatFillsTheDisk_data();
    void fileThatFillsTheDisk();
    void readOnlyDirectoryEndsTheRecovery();
    void unusableDirectory();
};

void TestConfiguration::initTestCase()
{
    // The theme's default is a resource of the control library, which is only there when something uses it.
    QVERIFY(CWidgetStyle::getColor(CWidgetStyle::ColorScreen).isValid());
}

void TestConfiguration::init()
{
    if (!QFile::remove(CONF_DIR)) // a link or a file that a test left
        QDir(CONF_DIR).removeRecursively();
    QDir(RESULT_DIR).removeRecursively();
}

void TestConfiguration::everythingIsMadeFromNothing()
{
    QVERIFY(initConfiguration());
    for (const QString& path : {SETTINGS, STYLE, RESULT, RESULT_TYPE}) {
        QVERIFY2(!defaultOf(path).isEmpty() && defaultOf(path) != "<unreadable>", qPrintable(path));
        QCOMPARE(contentOf(path), defaultOf(path));
        const auto permissions = QFile(path).permissions() & QFile::Permissions(0x7077);
        QCOMPARE(int(permissions & (QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner)),
            int(QFile::ReadOwner | QFile::WriteOwner));
        QCOMPARE(int(permissions & (QFile::ReadOther | QFile::WriteOther | QFile::WriteGroup)),
            int(QFile::ReadOther));
    }
}

void TestConfiguration::goodFilesAreLeftAlone()
{
    const QByteArray mine("<TAVO><language type=\"hu\"/></TAVO>");
    write(SETTINGS, mine);
    QVERIFY(initConfiguration());
    QCOMPARE(contentOf(SETTINGS), mine);
    QVERIFY(!QFile::exists(SETTINGS + QStringLiteral(".rejected")));
}

void TestConfiguration::badFileIsReplacedAndKept_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("truncated") << QByteArray("<?xml version=\"1.0\"?><TAVO><language ty");
    QTest::newRow("binary") << QByteArray("\x7f\0ELF\x01\x02\x03", 8);
    QTest::newRow("text") << QByteArray("language = en\n");
    QTest::newRow("50 MB of XML") << QByteArray("<TAVO>") + QByteArray(50 << 20, ' ') + QByteArray("</TAVO>");
}

void TestConfiguration::badFileIsReplacedAndKept()
{
    QFETCH(QByteArray, content);
    write(STYLE, content);
    for (const QString& path : {SETTINGS, RESULT, RESULT_TYPE})
        QTest::ignoreMessage(QtWarningMsg, qPrintable(replacedLine(path, "missing")));
    QTest::ignoreMessage(QtWarningMsg, qPrintable(replacedLine(STYLE, "not readable")));
    QVERIFY(initConfiguration());
    QCOMPARE(contentOf(STYLE), defaultOf(STYLE));
    const QString kept = STYLE + QStringLiteral(".rejected");
    QCOMPARE(QFile::exists(kept), !content.isEmpty());
    if (!content.isEmpty())
        QVERIFY(contentOf(kept) == content);
}

void TestConfiguration::directoryInPlaceOfAFileIsMovedAside()
{
    write(SETTINGS + QStringLiteral("/in-the-way"), "x");
    QVERIFY(initConfiguration());
    QCOMPARE(contentOf(SETTINGS), defaultOf(SETTINGS));
    QCOMPARE(contentOf(SETTINGS + QStringLiteral(".rejected/in-the-way")), QByteArray("x"));
    // What was moved aside then does not stand in the way of the next one.
    write(SETTINGS, "broken");
    QVERIFY(initConfiguration());
    QCOMPARE(contentOf(SETTINGS), defaultOf(SETTINGS));
    QCOMPARE(contentOf(SETTINGS + QStringLiteral(".rejected")), QByteArray("broken"));
}

void TestConfiguration::fileThatFillsTheDisk_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("now") << SETTINGS;
    QTest::newRow("kept by an earlier start") << SETTINGS + QStringLiteral(".rejected");
    QTest::newRow("kept of another file") << STYLE + QStringLiteral(".rejected");
}

void TestConfiguration::fileThatFillsTheDisk()
{
    QFETCH(QString, name);
    const CSmallDisk disk(CONF_DIR, 256);
    if (!disk.isMounted())
        QSKIP("This instrument can not mount a small disk.");
    write(STYLE, defaultOf(STYLE));
    disk.fill();
    QVERIFY(QFile::rename(CONF_DIR + QStringLiteral("/filler"), name));
    QVERIFY(initConfiguration());
    QCOMPARE(contentOf(SETTINGS), defaultOf(SETTINGS));
    QVERIFY(!QFile::exists(name) || name == SETTINGS);
    QVERIFY(!QFile::exists(SETTINGS + QStringLiteral(".rejected")));
    QVERIFY(CUICommUtils::saveLanguage(LANGUAGE_GERMAN)); // there is room to go on
}

void TestConfiguration::readOnlyDirectoryEndsTheRecovery()
{
    // Nothing can be made in /proc, not even by root.
    QVERIFY(QFile::link(QStringLiteral("/proc"), CONF_DIR));
    QTest::ignoreMessage(
        QtWarningMsg, "[/home/root/.zentra/zentra-settings.xml]: Can not recover configuration");
    QVERIFY(!initConfiguration());
    QFile::remove(CONF_DIR);
    for (const QString& path : {RESULT, RESULT_TYPE})
        QVERIFY2(!QFile::exists(path), qPrintable(path));
}

void TestConfiguration::unusableDirectory()
{
    write(CONF_DIR, "a file where the directory should be");
    QTest::ignoreMessage(QtWarningMsg, "[zentra mainframe]: Can not initialize configuration.");
    QVERIFY(!initConfiguration());
    QVERIFY(!QDir(RESULT_DIR).exists());
}

QTEST_GUILESS_MAIN(TestConfiguration)
#include "tst_configuration.moc"
