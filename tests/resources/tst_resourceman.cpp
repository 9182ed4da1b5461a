// The resource manager: which part of which strip a state shows, which level a figure is, which address is
// ours.

#include "resourceman.h"

#include <QGuiApplication>
#include <QtTest>

#include <limits>
#include <sys/socket.h>

using R = CResourceMan;

namespace {

/** A getter's result beside the rectangle of the strip that it must show; a null rectangle: no picture. */
struct SliceCase
{
    const char* what;
    QPixmap (*get)();
    const char* strip;
    QRect rect;
};

const QRect none;

const SliceCase sliceCases[] = {
    {"home press", [] { return R::getHomeStatus(R::HomePress); }, "TB_HOME_3states", {60, 0, 60, 60}},
    {"home other", [] { return R::getHomeStatus(R::HomeStatus(-1)); }, "TB_HOME_3states", {0, 0, 60, 60}},
    {"close select", [] { return R::getCloseStatus(R::CloseSelect); }, "TB_close_3states", {120, 0, 60, 60}},
    {"battery select", [] { return R::getBatteryStatus(R::BAT_EMPTY_DISCHARGED).icoSelect; },
        "TB_BATT_12states", {120, 660, 60, 60}},
    {"battery by level", [] { return R::getBatteryStatus(50, 100, true).icoNormal; }, "TB_BATT_12states",
        {0, 300, 60, 60}},
    {"battery above", [] { return R::getBatteryStatus(R::BatteryStatus(12)).icoNormal; }, "TB_BATT_12states",
        {0, 0, 60, 60}},
    {"usb 100", [] { return R::getStorageStatus(R::USB_DISK_USED_RATIO_100).icoPress; }, "TB_STORAGE_8states",
        {60, 420, 60, 60}},
    {"disk 75", [] { return R::getStorageStatus(R::DISK_USED_RATIO_75).icoSelect; }, "TB_STORAGE_8states",
        {120, 240, 60, 60}},
    {"usb 25", [] { return R::getStorageStatus(R::USB_DISK_USED_RATIO_25).icoNormal; }, "TB_STORAGE_8states",
        {0, 60, 60, 60}},
    {"disk 0", [] { return R::getStorageStatus(R::DISK_USED_RATIO_0).icoNormal; }, "TB_STORAGE_8states",
        {0, 0, 60, 60}},
    {"storage other", [] { return R::getStorageStatus(R::StorageStatus(10)).icoNormal; },
        "TB_STORAGE_8states", {0, 0, 60, 60}},
    {"storage by level", [] { return R::getStorageStatus(76, 100, true).icoNormal; }, "TB_STORAGE_8states",
        {0, 420, 60, 60}},
    {"app focus", [] { return R::getAppStatus(R::AppFocus); }, "app_status-280X180", {140, 0, 70, 60}},
    {"app no module", [] { return R::getAppStatus(R::AppNoModule); }, "app_status-280X180", {210, 0, 70, 60}},
    {"app ok push", [] { return R::getAppStatus(R::AppOKPush); }, "app_status-280X180", {70, 120, 70, 60}},
    {"app remote", [] { return R::getAppStatus(R::AppRemote); }, "app_status-280X180", none},
    {"app other", [] { return R::getAppStatus(R::AppStatus(9)); }, "app_status-280X180", {0, 0, 70, 60}},
    {"port 1", [] { return R::getPortStatus(R::PortStatus1); }, "BB_PORTBTN_3states", {1, 1, 139, 17}},
    {"port 3", [] { return R::getPortStatus(R::PortStatus3); }, "BB_PORTBTN_3states", {281, 1, 138, 17}},
    {"folder locked", [] { return R::getFolderStatus(R::FolderLocked); }, "Lock_status", {0, 0, 48, 48}},
    {"folder other", [] { return R::getFolderStatus(R::FolderStatus(3)); }, "folder-blue", {0, 0, 48, 48}},
    {"lock icon closed", [] { return R::getUIStatus(R::UILocked).pixmap(44); }, "TB_DIG_LOCK_2states",
        {44, 0, 44, 44}},
    {"locked", [] { return R::getSystemUIStatus(R::SysStsUILocked); }, "status-TB_lock", {20, 0, 20, 20}},
    {"lock other", [] { return R::getSystemUIStatus(R::SystemUIStatus(2)); }, "status-TB_lock", none},
    {"ip on", [] { return R::getSystemIPStatus(R::SysStsIPOn); }, "BB_ManNET_2states", {0, 20, 20, 20}},
    {"cli off", [] { return R::getSystemCLIStatus(R::SysStsCLIOff); }, "BB_CLIAcc_2states", {0, 0, 20, 20}},
    {"bluetooth off", [] { return R::getSystemBluetoothStatus(R::SysStsBluetoothOff); },
        "status-TB_bluetooth", {20, 0, 20, 20}},
    {"gps poor", [] { return R::getSystemGPSStatus(SysStsGPSOnPoor); }, "status-TB_GPS", {20, 0, 22, 20}},
    {"gps no sync", [] { return R::getSystemGPSStatus(SysStsGPSNoSync); }, "status-TB_GPS", {40, 0, 20, 20}},
    {"card idle", [] { return R::getSystemDataCardStatus(SysStsDataCardNotConnected); }, "MAIN_DataCard_ntb",
        {22, 0, 22, 22}},
    {"card off", [] { return R::getSystemDataCardStatus(SysStsDataCardOff); }, "MAIN_DataCard_ntb", none},
    {"help other", [] { return R::getSystemHelpStatus(R::SystemHelpStatus(1)); }, "status-TB_help", none},
    {"clock off", [] { return R::getSystemAtomicClockStatus(R::SysStsAtomicClockOff); },
        "status-TB_atomic-clock", {20, 0, 20, 20}},
    {"opm off", [] { return R::getSystemOPMStatus(R::SysStsOPMOff); }, "status-TB_OPM", {40, 0, 20, 20}},
    {"usb invalid", [] { return R::getSystemUSBDiskStatus(R::SysStsUSBDiskInvalid); }, "status-TB_USB-disk",
        {20, 0, 20, 20}},
    {"wifi no link", [] { return R::getSystemWIFIStatus(R::SysStsWIFIONNoLink); }, "status-TB_Wifi",
        {20, 0, 20, 20}},
    {"wifi other", [] { return R::getSystemWIFIStatus(R::SystemWIFIStatus(3)); }, "status-TB_Wifi", none},
    {"small battery", [] { return R::getSystemBatteryStatus(R::BAT_EMPTY_DISCHARGED); }, "status-TB_battery",
        {220, 0, 20, 20}},
};

using Addresses = QVector<CResourceMan::InterfaceAddress>;

CResourceMan::InterfaceAddress ip4(const char* name, const char* address)
{
    return {QString::fromLatin1(name), AF_INET, QString::fromLatin1(address)};
}

} // namespace

Q_DECLARE_METATYPE(Addresses)

class TestResourceMan : public QObject
{
    Q_OBJECT

private slots:
    void slices_data()
    {
        QTest::addColumn<int>("index");
        int index = 0;
        for (const SliceCase& item : sliceCases)
            QTest::newRow(item.what) << index++;
    }

    void slices()
    {
        QFETCH(int, index);
        const SliceCase& item = sliceCases[index];
        const QPixmap picture = item.get();
        if (item.rect.isNull()) {
            QVERIFY(picture.isNull());
            return;
        }
        const QImage strip(QStringLiteral(":/images/%1.png").arg(QString::fromLatin1(item.strip)));
        QVERIFY(strip.rect().contains(item.rect));
        const auto plain
            = [](const QImage& image) { return image.convertToFormat(QImage::Format_ARGB32_Premultiplied); };
        QCOMPARE(plain(picture.toImage()), plain(strip.copy(item.rect)));
    }

    void batteryLevel_data()
    {
        QTest::addColumn<int>("remain");
        QTest::addColumn<int>("full");
        QTest::addColumn<int>("charged");
        constexpr int most = std::numeric_limits<int>::max();
        QTest::newRow("100") << 100 << 100 << int(R::BAT_FULLY_CHARGED);
        QTest::newRow("99") << 99 << 100 << int(R::BAT_80PER_CHARGED);
        QTest::newRow("40") << 40 << 100 << int(R::BAT_50PER_CHARGED);
        QTest::newRow("39") << 39 << 100 << int(R::BAT_20PER_CHARGED);
        QTest::newRow("8") << 8 << 100 << int(R::BAT_LT20PER_CHARGED);
        QTest::newRow("7") << 7 << 100 << int(R::BAT_EMPTY_CHARGED);
        QTest::newRow("large") << most / 2 + 1 << most << int(R::BAT_50PER_CHARGED);
    }

    void batteryLevel()
    {
        QFETCH(int, remain);
        QFETCH(int, full);
        QFETCH(int, charged);
        QCOMPARE(int(R::getSystemBatteryStatus(remain, full, false)), charged);
        QCOMPARE(int(R::getSystemBatteryStatus(remain, full, true)), charged + 1);
    }

    void batteryOfUnknownCapacity()
    {
        for (int full : {0, -1}) {
            QCOMPARE(R::getSystemBatteryStatus(50, full, true), R::BAT_EMPTY_DISCHARGED);
            QCOMPARE(R::getSystemBatteryStatus(50, full, false), R::BAT_FULLY_CHARGED);
        }
    }

    void storageLevel_data()
    {
        QTest::addColumn<int>("used");
        QTest::addColumn<int>("total");
        QTest::addColumn<int>("internal");
        QTest::newRow("0") << 0 << 100 << int(R::DISK_USED_RATIO_0);
        QTest::newRow("25.9 truncates") << 259 << 1000 << int(R::DISK_USED_RATIO_0);
        QTest::newRow("50") << 50 << 100 << int(R::DISK_USED_RATIO_50);
        QTest::newRow("51") << 51 << 100 << int(R::DISK_USED_RATIO_75);
        QTest::newRow("64 GB disk") << 20000000 << 64000000 << int(R::DISK_USED_RATIO_50);
        QTest::newRow("no total") << 10 << 0 << int(R::DISK_USED_RATIO_100);
    }

    void storageLevel()
    {
        QFETCH(int, used);
        QFETCH(int, total);
        QFETCH(int, internal);
        QCOMPARE(int(R::storageLevel(used, total, false)), internal);
        QCOMPARE(int(R::storageLevel(used, total, true)), internal + 1);
    }

    void localAddress_data()
    {
        QTest::addColumn<Addresses>("addresses");
        QTest::addColumn<QString>("expected");
        const QString local = QStringLiteral("127.0.0.1");
        const auto lo = ip4("lo", "127.0.0.1");
        const auto wired = ip4("eth0", "192.168.1.20");
        const auto wireless = ip4("wlan0", "10.0.0.7");
        QTest::newRow("nothing") << Addresses() << local;
        QTest::newRow("loopback and USB link") << Addresses{lo, ip4("usb0", "10.1.1.1")} << local;
        QTest::newRow("tunnel") << Addresses{ip4("tap0", "10.8.0.1"), ip4("vtap", "10.8.0.2")} << local;
        QTest::newRow("wired first") << Addresses{lo, wired, wireless} << QStringLiteral("192.168.1.20");
        QTest::newRow("wireless first") << Addresses{lo, wireless, wired} << QStringLiteral("10.0.0.7");
        QTest::newRow("only IPv4") << Addresses{{QStringLiteral("eth0"), AF_PACKET, QString()},
            {QStringLiteral("eth0"), AF_INET6, QStringLiteral("fe80::1")}, wireless}
                                   << QStringLiteral("10.0.0.7");
    }

    void localAddress()
    {
        QFETCH(Addresses, addresses);
        QFETCH(QString, expected);
        QCOMPARE(R::chooseLocalAddress(addresses), expected);
    }

    void localAddressOfThisMachine()
    {
        const QRegularExpression dotted(QStringLiteral("^\\d{1,3}(\\.\\d{1,3}){3}$"));
        QVERIFY(dotted.match(R::getLocalIP()).hasMatch());
    }
};

// Pictures need a platform, but no display.
int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    TestResourceMan test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_resourceman.moc"
