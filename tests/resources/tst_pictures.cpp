// The compiled-in pictures: all there, of the right geometry, and every state of a strip drawn and unlike the
// others.

#include <QDir>
#include <QDomDocument>
#include <QImage>
#include <QtTest>

namespace {

struct Geometry
{
    const char* name;
    QSize size;
};

const Geometry geometries[] = {
    {"TB_HOME_3states.png", {180, 60}},
    {"TB_close_3states.png", {180, 60}},
    {"TB_BATT_12states.png", {180, 720}},
    {"TB_STORAGE_8states.png", {180, 480}},
    {"TB_WIFI_11states.png", {180, 660}},
    {"TB_DIG_LOCK_2states.png", {88, 44}},
    {"app_status-280X180.png", {280, 180}},
    {"BB_PORTBTN_3states.png", {420, 19}},
    {"BB_ManNET_2states.png", {20, 40}},
    {"BB_CLIAcc_2states.png", {20, 40}},
    {"BB_BKGROUND.png", {800, 20}},
    {"status-TB_lock.png", {40, 20}},
    {"status-TB_bluetooth.png", {40, 20}},
    {"status-TB_GPS.png", {80, 20}},
    {"status-TB_help.png", {22, 22}},
    {"status-TB_atomic-clock.png", {40, 20}},
    {"status-TB_OPM.png", {60, 20}},
    {"status-TB_USB-disk.png", {40, 20}},
    {"status-TB_Wifi.png", {60, 20}},
    {"status-TB_battery.png", {240, 20}},
    {"MAIN_DataCard_ntb.png", {44, 22}},
    {"folder-blue.png", {48, 48}},
    {"Lock_status.png", {48, 48}},
    {"Unlock_status.png", {48, 48}},
    {"LEFT_Tools_ntb.png", {28, 28}},
    {"LEFT_Utilities_ntb.png", {28, 28}},
    {"LEFT_Folder_ntb.png", {28, 28}},
    {"LEFT_Tools_IP.png", {24, 24}},
    {"LEFT_Tools_Netwiz.png", {24, 24}},
    {"LEFT_Tools_WiFiWiz.png", {24, 24}},
    {"LEFT_Tools_AdvTools.png", {24, 24}},
    {"LEFT_Utilities_Settings.png", {24, 24}},
    {"LEFT_Utilities_Backlight.png", {24, 24}},
    {"LEFT_Utilities_Harbor.png", {24, 24}},
    {"LEFT_Files_ntb.png", {24, 24}},
    {"LEFT_Folder_USBDBrowse.png", {24, 24}},
    {"MAIN_FSCOPE_ntb.png", {80, 80}},
    {"MAIN_WiFISA_ntb.png", {80, 80}},
    {"MAIN_WiFIinSSIDer_ntb.png", {80, 80}},
    {"MAIN_DcardGPS_ntb.png", {80, 80}},
    {"MAIN_Utilities_About_ntb.png", {80, 80}},
    {"MAIN_Utilitites_RemoteCtrl_ntb.png", {80, 80}},
    {"MAIN_Utilitites_Power_ntb.png", {80, 80}},
    {"MAIN_Utilities_Backlight_ntb.png", {80, 80}},
    {"MAIN_Utilitites_Global_ntb.png", {80, 80}},
    {"MAIN_Utilitites_DateTime_ntb.png", {80, 80}},
    {"MAIN_Utilitites_PrecClock_ntb.png", {80, 80}},
    {"fileman_folder.png", {24, 24}},
    {"fileman_file.png", {24, 24}},
    {"fileman_refresh.png", {22, 22}},
    {"fileman_go_up.png", {26, 26}},
    {"Delete_a_file.png", {22, 22}},
    {"arrow-up.png", {16, 16}},
    {"arrow-down.png", {16, 16}},
    {"go-left.png", {24, 24}},
    {"go-right.png", {24, 24}},
    {"remove_usb_release.png", {72, 48}},
    {"remove_usb_pushed.png", {72, 48}},
    {"Zentra-app-switch.png", {800, 400}},
};

/** Slices of one size in a grid, row by row, as far as they are used. */
struct Grid
{
    const char* name;
    QSize slice;
    QVector<QPoint> unused; ///< column, row
};

const Grid grids[] = {
    {"TB_HOME_3states.png", {60, 60}, {}},
    {"TB_close_3states.png", {60, 60}, {}},
    {"TB_BATT_12states.png", {60, 60}, {}},
    {"TB_STORAGE_8states.png", {60, 60}, {}},
    {"TB_WIFI_11states.png", {60, 60}, {}},
    {"TB_DIG_LOCK_2states.png", {44, 44}, {}},
    {"app_status-280X180.png", {70, 60}, {{2, 1}, {3, 1}, {2, 2}, {3, 2}}},
    {"BB_PORTBTN_3states.png", {140, 19}, {}},
    {"BB_ManNET_2states.png", {20, 20}, {}},
    {"BB_CLIAcc_2states.png", {20, 20}, {}},
    {"status-TB_lock.png", {20, 20}, {}},
    {"status-TB_bluetooth.png", {20, 20}, {}},
    {"status-TB_GPS.png", {20, 20}, {}},
    {"status-TB_atomic-clock.png", {20, 20}, {}},
    {"status-TB_OPM.png", {20, 20}, {}},
    {"status-TB_USB-disk.png", {20, 20}, {}},
    {"status-TB_Wifi.png", {20, 20}, {}},
    {"status-TB_battery.png", {20, 20}, {}},
    {"MAIN_DataCard_ntb.png", {22, 22}, {}},
};

QImage load(const QString& name)
{
    return QImage(QStringLiteral(":/images/") + name).convertToFormat(QImage::Format_ARGB32);
}

/** Smallest rectangle that holds everything visible. */
QRect visible(const QImage& image)
{
    QRect result;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 32)
                result |= QRect(x, y, 1, 1);
        }
    }
    return result;
}

/** How many pixels of two pictures of one size differ clearly. */
int difference(const QImage& a, const QImage& b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = qPremultiply(a.pixel(x, y));
            const QRgb q = qPremultiply(b.pixel(x, y));
            if (qAbs(qRed(p) - qRed(q)) + qAbs(qGreen(p) - qGreen(q)) + qAbs(qBlue(p) - qBlue(q)) > 48)
                ++count;
        }
    }
    return count;
}

} // namespace

class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void geometry_data()
    {
        QTest::addColumn<QSize>("size");
        for (const Geometry& geometry : geometries)
            QTest::newRow(geometry.name) << geometry.size;
    }

    void geometry()
    {
        QFETCH(QSize, size);
        const QImage image = load(QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(image.size(), size);
        QVERIFY(!visible(image).isNull());
    }

    void nothingElseIsCompiledIn()
    {
        QStringList expected;
        for (const Geometry& geometry : geometries)
            expected << QString::fromLatin1(geometry.name);
        expected.sort();
        QStringList found = QDir(QStringLiteral(":/images")).entryList(QDir::Files);
        found.sort();
        QCOMPARE(found, expected);
    }

    void statesDiffer_data()
    {
        QTest::addColumn<int>("index");
        int index = 0;
        for (const Grid& grid : grids)
            QTest::newRow(grid.name) << index++;
    }

    void statesDiffer()
    {
        QFETCH(int, index);
        const Grid& grid = grids[index];
        const QImage image = load(QString::fromLatin1(grid.name));
        QVector<QImage> slices;
        QVector<QPoint> places;
        for (int row = 0; row < image.height() / grid.slice.height(); ++row) {
            for (int column = 0; column < image.width() / grid.slice.width(); ++column) {
                if (grid.unused.contains(QPoint(column, row)))
                    continue;
                const QPoint corner(column * grid.slice.width(), row * grid.slice.height());
                slices << image.copy(QRect(corner, grid.slice));
                places << QPoint(column, row);
                QVERIFY2(!visible(slices.last()).isNull(),
                    qPrintable(QStringLiteral("%1,%2 is empty").arg(column).arg(row)));
            }
        }
        for (int i = 0; i < slices.size(); ++i) {
            for (int j = i + 1; j < slices.size(); ++j) {
                const QPoint a = places[i];
                const QPoint b = places[j];
                // Less than a dozen pixels nobody tells apart at arm's length.
                QVERIFY2(difference(slices[i], slices[j]) >= 12,
                    qPrintable(QStringLiteral("%1,%2 looks like %3,%4")
                                   .arg(a.x())
                                   .arg(a.y())
                                   .arg(b.x())
                                   .arg(b.y())));
            }
        }
    }

    void poorGpsSliceEndsBeforeItsNeighbour()
    {
        // It is read two pixels wider than it is; a piece of the next state would show.
        QVERIFY(visible(load(QStringLiteral("status-TB_GPS.png")).copy(40, 0, 2, 20)).isNull());
    }

    void menuGlyphsAreWhiteAndCentred_data()
    {
        QTest::addColumn<QSize>("size");
        for (const Geometry& geometry : geometries) {
            const QByteArray name(geometry.name);
            if (name.startsWith("LEFT_") || (name.startsWith("MAIN_") && name != "MAIN_DataCard_ntb.png"))
                QTest::newRow(geometry.name) << geometry.size;
        }
    }

    void menuGlyphsAreWhiteAndCentred()
    {
        QFETCH(QSize, size);
        const QImage image = load(QString::fromLatin1(QTest::currentDataTag()));
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                QVERIFY(
                    qAlpha(pixel) < 128 || (qRed(pixel) > 240 && qGreen(pixel) > 240 && qBlue(pixel) > 240));
            }
        }
        const QRect shape = visible(image);
        QVERIFY(image.rect().contains(shape));
        QVERIFY(shape.height() >= size.height() * 0.4 - 2 && shape.width() >= size.width() * 0.25);
        const QPointF off = QRectF(shape).center() - QRectF(image.rect()).center();
        QVERIFY2(qAbs(off.x()) <= size.width() * 0.06 && qAbs(off.y()) <= size.height() * 0.09,
            qPrintable(QStringLiteral("off centre by %1,%2").arg(off.x()).arg(off.y())));
    }

    void picturesNeedOneByteAPixel_data() { geometry_data(); }

    void picturesNeedOneByteAPixel()
    {
        const QImage image(QStringLiteral(":/images/") + QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY(image.depth() <= 8);
    }

    void defaultsAreWellFormed_data()
    {
        QTest::addColumn<QString>("file");
        for (const char* name :
            {"zentra-settings.xml", "zentra-desktop.xml", "result-config.xml", "result-type-config.xml"})
            QTest::newRow(name) << QStringLiteral(":/conf/") + QString::fromLatin1(name);
    }

    void defaultsAreWellFormed()
    {
        QFETCH(QString, file);
        QFile source(file);
        QVERIFY(source.open(QIODevice::ReadOnly));
        QDomDocument document;
        QString error;
        QVERIFY2(document.setContent(&source, &error), qPrintable(error));
    }
};

QTEST_GUILESS_MAIN(TestPictures)
#include "tst_pictures.moc"
