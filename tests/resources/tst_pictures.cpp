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
