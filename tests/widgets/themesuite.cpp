#include "suites.h"

#include "widgets/widgetstyle/widgetstyle.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

namespace {

QByteArray themeFile(const QByteArray& entries)
{
    return "<widget-style version=\"1\">" + entries + "</widget-style>";
}

/** Every value of the theme in one text, to compare whole themes. */
QString snapshot()
{
    QString text;
    QDebug out(&text);
    for (int i = 0; i < 8; ++i)
        out << CWidgetStyle::getScreenRegion(i);
    for (int i = 0; i < CWidgetStyle::ColorCount; ++i)
        out << CWidgetStyle::getColor(i).name();
    for (int i = 0; i < CWidgetStyle::FontCount; ++i)
        out << CWidgetStyle::getFont(i).toString();
    for (int i = 0; i < 4; ++i)
        out << CWidgetStyle::getButtonLook(i).fill.name() << CWidgetStyle::getButtonLook(i).frameWidth;
    for (int i = 0; i <= 10; ++i)
        out << CWidgetStyle::getEntryColor(i).name();
    for (int i = 0; i < CWidgetStyle::MetricFieldHeight; ++i) // the last one is changed beside the others
        out << CWidgetStyle::getMetric(CWidgetStyle::Metric(i));
    return text;
}

} // namespace

class CThemeSuite : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        m_builtIn = snapshot();
    }

    void cleanup()
    {
        // Leaves the built-in theme to the next test.
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot be opened")));
        CWidgetStyle::setWidgetStyle(m_dir.filePath(QStringLiteral("absent.xml")));
    }

    void fileThatIsNoThemeChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("content");
        const QByteArray change = "<colors><color code=\"0\" value=\"#ff0000\"/></colors>";
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("truncated") << themeFile(change).left(70);
        QTest::newRow("binary") << QByteArray("\x7f\x45\x4c\x46\0\1\2\3\xff\xfe", 10);
        QTest::newRow("another document")
            << QByteArray("<settings><color code=\"0\" value=\"#ff0000\"/></settings>");
        QTest::newRow("oversized") << themeFile("<!--" + QByteArray(1024 * 1024, ' ') + "-->" + change);
    }

    void fileThatIsNoThemeChangesNothing()
    {
        QFETCH(QByteArray, content);
        const QString name = write(content);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Theme .*theme\\.xml")));
        QVERIFY(!CWidgetStyle::initialize(name));
        QCOMPARE(snapshot(), m_builtIn);
    }

    void pipesAreNotWaitedFor()
    {
        const QString pipe = m_dir.filePath(QStringLiteral("pipe"));
        QCOMPARE(::mkfifo(qPrintable(pipe), 0600), 0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Theme .*cannot be opened")));
        QVERIFY(!CWidgetStyle::initialize(pipe));
    }

    void unusableEntryKeepsItsValue_data()
    {
        QTest::addColumn<QByteArray>("entry");
        QTest::newRow("colour that is none") << QByteArray("<color code=\"0\" value=\"bluish\"/>");
        QTest::newRow("colour code outside the table")
            << QByteArray("<color code=\"18\" value=\"#ff0000\"/>");
        QTest::newRow("region without a size")
            << QByteArray("<region id=\"4\" x=\"0\" y=\"0\" width=\"0\" height=\"9\"/>");
        QTest::newRow("region outside every screen")
            << QByteArray("<region id=\"4\" x=\"99999\" y=\"0\" width=\"1\" height=\"9\"/>");
        QTest::newRow("font of no size") << QByteArray("<font kind=\"1\" size=\"0\" weight=\"bold\"/>");
        QTest::newRow("tile of unknown type") << QByteArray("<entry type=\"11\" value=\"#ff0000\"/>");
        QTest::newRow("metric that is no number")
            << QByteArray("<metric name=\"entryWidth\" value=\"wide\"/>");
        QTest::newRow("metric of unknown name") << QByteArray("<metric name=\"entryWidht\" value=\"9\"/>");
    }

    void unusableEntryKeepsItsValue()
    {
        QFETCH(QByteArray, entry);
        const QString name = write(themeFile(entry + "<metric name=\"fieldHeight\" value=\"12\"/>"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unusable")));
        QVERIFY(CWidgetStyle::initialize(name));
        QCOMPARE(snapshot(), m_builtIn);
        QCOMPARE(CWidgetStyle::getMetric(CWidgetStyle::MetricFieldHeight), 12); // the entry after it counts
    }

    void goodEntriesAreTakenOver()
    {
        const QString name = write(
            themeFile("<color code=\"8\" value=\"#102030\"/><font kind=\"9\" size=\"21\" weight=\"bold\"/>"
                      "<region id=\"3\" x=\"1\" y=\"2\" width=\"3\" height=\"4\"/>"
                      "<entry type=\"2\" value=\"#445566\"/><metric name=\"entryWidth\" value=\"200\"/>"));
        const QPixmap before = CWidgetStyle::getButtonPixmap(CWidgetStyle::ButtonReleased);
        QCOMPARE(CWidgetStyle::buttonStatusOf(before), int(CWidgetStyle::ButtonReleased));
        QVERIFY(CWidgetStyle::initialize(name));
        QCOMPARE(CWidgetStyle::getColor(CWidgetStyle::ColorButton), QColor(0x10, 0x20, 0x30));
        QCOMPARE(CWidgetStyle::getFont(CWidgetStyle::FontToolItem).pixelSize(), 21);
        QVERIFY(CWidgetStyle::getFont(CWidgetStyle::FontToolItem).bold());
        QCOMPARE(CWidgetStyle::getScreenRegion(3), QRect(1, 2, 3, 4));
        QCOMPARE(CWidgetStyle::getEntryColor(2), QColor(0x44, 0x55, 0x66));
        QCOMPARE(CWidgetStyle::getMetric(CWidgetStyle::MetricEntryWidth), 200);
        QCOMPARE(
            CWidgetStyle::getColor(CWidgetStyle::ColorScreen), QColor(0x2b, 0x2f, 0x4a)); // not in the file

        // The kept picture is drawn anew with the changed colour.
        const QImage after = CWidgetStyle::getButtonPixmap(CWidgetStyle::ButtonReleased).toImage();
        QCOMPARE(after.pixelColor(60, 21), QColor(0x10, 0x20, 0x30));
    }

    void everyColourHasItsName()
    {
        const char* const names[] = {"screen", "toolBox", "textLight", "accent", "toolPage", "toolPageOpen",
            "pressed", "alert", "button", "textDark", "dialog", "frame", "disabled", "textDisabled", "plate",
            "textMuted", "field", "title"};
        QByteArray colors; // no two the same
        for (int code = 0; code < CWidgetStyle::ColorCount; ++code)
            colors += QStringLiteral("<color code=\"%1\" value=\"#0000%2\"/>")
                          .arg(code)
                          .arg(code + 10)
                          .toLatin1();
        const int last = CWidgetStyle::ColorCount - 1;
        for (int code = 0; code <= last; ++code) {
            const QString button = QStringLiteral(
                "<button status=\"2\" frameWidth=\"3\" fill=\"%1\" text=\"%2\" frame=\"%3\"/>")
                                       .arg(QLatin1String(names[code]), QLatin1String(names[last - code]),
                                           QLatin1String(names[0]));
            QVERIFY(CWidgetStyle::initialize(write(themeFile(colors + button.toLatin1()))));
            const CWidgetStyle::ButtonLook look = CWidgetStyle::getButtonLook(2);
            QCOMPARE(look.fill, CWidgetStyle::getColor(code));
            QCOMPARE(look.text, CWidgetStyle::getColor(last - code));
            QCOMPARE(look.frame, CWidgetStyle::getColor(0));
            QCOMPARE(look.frameWidth, 3);
        }
    }

    void anotherThemeKeepsNothingOfTheOld()
    {
        QVERIFY(CWidgetStyle::initialize(write(
            themeFile("<metric name=\"entryTop\" value=\"1\"/><color code=\"0\" value=\"#ff0000\"/>"))));
        CWidgetStyle::setWidgetStyle(write(themeFile("<color code=\"1\" value=\"#00ff00\"/>")));
        QCOMPARE(CWidgetStyle::getMetric(CWidgetStyle::MetricEntryTop), 20);
        QCOMPARE(CWidgetStyle::getColor(0), QColor(0x2b, 0x2f, 0x4a));
        QCOMPARE(CWidgetStyle::getColor(1), QColor(0, 255, 0));
    }

private:
    QString write(const QByteArray& content)
    {
        QFile file(m_dir.filePath(QStringLiteral("theme.xml")));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("the test's own file cannot be written");
        return file.fileName();
    }

    QTemporaryDir m_dir;
    QString m_builtIn;
};

std::unique_ptr<QObject> themeSuite()
{
    return std::make_unique<CThemeSuite>();
}

#include "themesuite.moc"
