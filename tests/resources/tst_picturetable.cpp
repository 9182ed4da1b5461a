// The table of pictures: what it means, and that a fault in it is named with its line instead of drawing
// nonsense.

#include "picturetable.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

const char* const head = "<pictures>\n"
                         "<color name=\"ink\" value=\"#80102030\"/>\n"
                         "<ground name=\"plate\" fill=\"ink\" inset=\"1,2,3,4\" radius=\"5\"/>\n"
                         "<look x=\"0\" ground=\"plate\"/>\n"
                         "<look x=\"60\" ground=\"\"/>\n";

} // namespace

class TestPictureTable : public QObject
{
    Q_OBJECT

private:
    QStringList read(CPictureTable& table, const QByteArray& body)
    {
        QFile file(m_dir.filePath(QStringLiteral("table.xml")));
        if (!file.open(QIODevice::WriteOnly) || file.write(head + body) < 0)
            return {QStringLiteral("cannot write the table")};
        file.close();
        return table.read(file.fileName());
    }

    QTemporaryDir m_dir;

private slots:
    void cellsAndButtons()
    {
        CPictureTable table;
        const QStringList errors = read(table,
            "<picture name=\"a.png\" width=\"120\" height=\"80\" glyph-size=\"30\">\n"
            "<button y=\"20\" glyphs=\"house\"/>\n"
            "<cell rect=\"10,0,40,20\" ground=\"plate\" glyphs=\"low:ink high:gap\" glyph-size=\"12\" "
            "shift=\"-3,4\"/>\n"
            "</picture></pictures>");
        QCOMPARE(errors, QStringList());
        QCOMPARE(table.pictures().size(), 1);
        const QVector<Cell> cells = table.pictures().first().cells;
        QCOMPARE(cells.size(), 3);
        QCOMPARE(cells[0].rect, QRect(0, 20, 60, 60));
        QCOMPARE(cells[1].rect, QRect(60, 20, 60, 60));
        QCOMPARE(cells[0].glyphSize, 30.0);
        QCOMPARE(cells[2].rect, QRect(10, 0, 40, 20));
        QCOMPARE(cells[2].shift, QPointF(-3, 4));
        QCOMPARE(cells[2].glyphSize, 12.0);
        QCOMPARE(cells[2].layers.size(), 2);
        QCOMPARE(cells[2].layers[0].tint, QColor(0x10, 0x20, 0x30, 0x80));
        QCOMPARE(cells[2].layers[1].kind, Layer::Gap);
        QCOMPARE(table.ground(cells[2].ground).inset, QMargins(1, 2, 3, 4));
    }

    void faultsAreNamed_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("error");
        const QByteArray picture = "<picture name=\"a.png\" width=\"60\" height=\"60\">\n";
        QTest::newRow("outside") << picture + "<cell rect=\"1,0,60,60\"/></picture></pictures>"
                                 << QStringLiteral("line 7: a cell lies outside its picture");
        QTest::newRow("rect") << picture + "<cell rect=\"0,0,60\"/></picture></pictures>"
                              << QStringLiteral("line 7: \"0,0,60\" is not 4 numbers");
        QTest::newRow("color") << picture
                + "<cell rect=\"0,0,9,9\" glyphs=\"house:mud\"/></picture></pictures>"
                               << QStringLiteral("line 7: unknown color mud");
        QTest::newRow("size") << QByteArray("<picture name=\"a.png\" width=\"60\"/></pictures>")
                              << QStringLiteral("line 6: a.png has no size");
        QTest::newRow("element") << QByteArray("<image/></pictures>")
                                 << QStringLiteral("line 6: unknown element image");
        QTest::newRow("number") << picture
                + "<cell rect=\"0,0,9,9\" glyph-size=\"big\"/></picture></pictures>"
                                << QStringLiteral("line 7: glyph-size \"big\" is no number");
    }

    void faultsAreNamed()
    {
        QFETCH(QByteArray, body);
        QFETCH(QString, error);
        CPictureTable table;
        QCOMPARE(read(table, body), QStringList(error));
    }

    void unreadableTables()
    {
        CPictureTable table;
        QCOMPARE(table.read(m_dir.filePath(QStringLiteral("absent.xml"))).size(), 1);
        CPictureTable torn;
        QCOMPARE(read(torn, "<picture name=\"a.png\" width=\"6").size(), 1);
    }
};

QTEST_GUILESS_MAIN(TestPictureTable)
#include "tst_picturetable.moc"
