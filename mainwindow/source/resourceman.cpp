#include "resourceman.h"

#include "widgets/picture/picture.h"

#include <QImage>

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <memory>
#include <sys/socket.h>

namespace {

/** Where a state stands in its strip, in pixels. */
struct Slice
{
    int state;
    int x;
    int y;
    int width;
    int height;
};

constexpr int buttonSide = 60;
constexpr int smallSide = 20;

constexpr Slice homeSlices[] = {
    {CResourceMan::HomeRelease, 0, 0, buttonSide, buttonSide},
    {CResourceMan::HomePress, 60, 0, buttonSide, buttonSide},
    {CResourceMan::HomeSelect, 120, 0, buttonSide, buttonSide},
};

constexpr Slice closeSlices[] = {
    {CResourceMan::CloseRelease, 0, 0, buttonSide, buttonSide},
    {CResourceMan::ClosePress, 60, 0, buttonSide, buttonSide},
    {CResourceMan::CloseSelect, 120, 0, buttonSide, buttonSide},
};

constexpr Slice appSlices[] = {
    {CResourceMan::AppUnuseRelease, 0, 0, 70, 60},
    {CResourceMan::AppUnusePush, 70, 0, 70, 60},
    {CResourceMan::AppFocus, 140, 0, 70, 60},
    {CResourceMan::AppNoModule, 210, 0, 70, 60},
    {CResourceMan::AppErrRelease, 0, 60, 70, 60},
    {CResourceMan::AppErrPush, 70, 60, 70, 60},
    {CResourceMan::AppOKRelease, 0, 120, 70, 60},
    {CResourceMan::AppOKPush, 70, 120, 70, 60},
    // Below the last row on purpose: the tab of a remotely controlled application shows no picture.
    {CResourceMan::AppRemote, 70, 180, 70, 60},
};

constexpr Slice portSlices[] = {
    {CResourceMan::PortStatus1, 1, 1, 139, 17},
    {CResourceMan::PortStatus2, 141, 1, 138, 17},
    {CResourceMan::PortStatus3, 281, 1, 138, 17},
};

constexpr Slice lockIconSlices[] = {
    {CResourceMan::UIUnLocked, 0, 0, 44, 44},
    {CResourceMan::UILocked, 44, 0, 44, 44},
};

constexpr Slice lockSlices[] = {
    {CResourceMan::SysStsUILocked, 20, 0, smallSide, smallSide},
    {CResourceMan::SysStsUIUnLocked, 0, 0, smallSide, smallSide},
};

constexpr Slice ipSlices[] = {
    {CResourceMan::SysStsIPOn, 0, 20, smallSide, smallSide},
    {CResourceMan::SysStsIPOff, 0, 0, smallSide, smallSide},
};

constexpr Slice cliSlices[] = {
    {CResourceMan::SysStsCLIOn, 0, 20, smallSide, smallSide},
    {CResourceMan::SysStsCLIOff, 0, 0, smallSide, smallSide},
};

constexpr Slice bluetoothSlices[] = {
    {CResourceMan::SysStsBluetoothOn, 0, 0, smallSide, smallSide},
    {CResourceMan::SysStsBluetoothOff, 20, 0, smallSide, smallSide},
};

constexpr Slice gpsSlices[] = {
    {SysStsGPSOnSync, 0, 0, smallSide, smallSide},
    {SysStsGPSOnPoor, 20, 0, 22, smallSide}, // two pixels wider than the others, as the tray expects it
    {SysStsGPSNoSync, 40, 0, smallSide, smallSide},
    {SysStsGPSOff, 60, 0, smallSide, smallSide},
};

constexpr Slice dataCardSlices[] = {
    {SysStsDataCardConnected, 0, 0, 22, 22},
    {SysStsDataCardNotConnected, 22, 0, 22, 22},
};

constexpr Slice helpSlices[] = {
    {CResourceMan::SysStsHelp, 0, 0, 22, 22},
};

constexpr Slice atomicClockSlices[] = {
    {CResourceMan::SysStsAtomicClockOnSync, 0, 0, smallSide, smallSide},
    {CResourceMan::SysStsAtomicClockOnNoSync, 20, 0, smallSide, smallSide},
    // Off and not synchronised share one look: neither gives a usable clock.
    {CResourceMan::SysStsAtomicClockOff, 20, 0, smallSide, smallSide},
};

constexpr Slice opmSlices[] = {
    {CResourceMan::SysStsOPMOn, 0, 0, smallSide, smallSide},
    {CResourceMan::SysStsOPMPulsing, 20, 0, smallSide, smallSide},
    {CResourceMan::SysStsOPMOff, 40, 0, smallSide, smallSide},
};

constexpr Slice usbDiskSlices[] = {
    {CResourceMan::SysStsUSBDiskValid, 0, 0, smallSide, smallSide},
    {CResourceMan::SysStsUSBDiskInvalid, 20, 0, smallSide, smallSide},
};

constexpr Slice wifiSlices[] = {
    {CResourceMan::SysStsWIFIONLinked, 0, 0, smallSide, smallSide},
    {CResourceMan::SysStsWIFIONNoLink, 20, 0, smallSide, smallSide},
    {CResourceMan::SysStsWIFIOff, 40, 0, smallSide, smallSide},
};

struct StorageRow
{
    CResourceMan::StorageStatus status;
    int y;
};

// The strip has no row for a quarter: it looks like an empty disk.
constexpr StorageRow storageRows[] = {
    {CResourceMan::DISK_USED_RATIO_0, 0},
    {CResourceMan::DISK_USED_RATIO_25, 0},
    {CResourceMan::USB_DISK_USED_RATIO_0, 60},
    {CResourceMan::USB_DISK_USED_RATIO_25, 60},
    {CResourceMan::DISK_USED_RATIO_50, 120},
    {CResourceMan::USB_DISK_USED_RATIO_50, 180},
    {CResourceMan::DISK_USED_RATIO_75, 240},
    {CResourceMan::USB_DISK_USED_RATIO_75, 300},
    {CResourceMan::DISK_USED_RATIO_100, 360},
    {CResourceMan::USB_DISK_USED_RATIO_100, 420},
};

struct BatteryLevel
{
    int minimum; ///< percent
    CResourceMan::BatteryStatus charged; ///< on battery it is the next enumerator
};

constexpr BatteryLevel batteryLevels[] = {
    {100, CResourceMan::BAT_FULLY_CHARGED},
    {70, CResourceMan::BAT_80PER_CHARGED},
    {40, CResourceMan::BAT_50PER_CHARGED},
    {20, CResourceMan::BAT_20PER_CHARGED},
    {8, CResourceMan::BAT_LT20PER_CHARGED},
};

struct UsageLevel
{
    int minimum; ///< percent
    CResourceMan::StorageStatus internal; ///< of the USB disk it is the next enumerator
};

// A quarter is never told apart from empty; its enumerators stay for callers that name them.
constexpr UsageLevel usageLevels[] = {
    {76, CResourceMan::DISK_USED_RATIO_100},
    {51, CResourceMan::DISK_USED_RATIO_75},
    {26, CResourceMan::DISK_USED_RATIO_50},
};

constexpr QRgb colors[] = {
    qRgb(99, 94, 128), // ScreenBgColor
    qRgb(119, 119, 119), // TopBarBgColor
    qRgb(119, 119, 119), // BottomBarBgColor
    qRgb(181, 199, 232), // AppBarBgColor
    qRgb(176, 176, 176), // ParmNameBgColor
    qRgb(0, 0, 0), // KeyBoardBgColor
    qRgb(255, 255, 255), // DlgBgColor
    qRgb(160, 160, 164), // DlgBorderColor
};

constexpr int colorCount = sizeof(colors) / sizeof(colors[0]);
constexpr int lastBatteryStatus = CResourceMan::BAT_EMPTY_DISCHARGED;

/** A part of a strip; a null picture if it lies outside. */
QPixmap cut(const QString& strip, const QRect& rect)
{
    return QPixmap::fromImage(readPicture(strip, rect));
}

template <int count> const Slice* findSlice(const Slice (&slices)[count], int state)
{
    for (const Slice& slice : slices) {
        if (slice.state == state)
            return &slice;
    }
    return nullptr;
}

QPixmap cutSlice(const QString& strip, const Slice* slice)
{
    if (!slice)
        return QPixmap();
    return cut(strip, QRect(slice->x, slice->y, slice->width, slice->height));
}

/** The slice of a state; the table's first one for a state that is not in it. */
template <int count> QPixmap sliceOrFirst(const QString& strip, const Slice (&slices)[count], int state)
{
    const Slice* slice = findSlice(slices, state);
    return cutSlice(strip, slice ? slice : &slices[0]);
}

/** The slice of a state; a null picture for a state that is not in the table. */
template <int count> QPixmap sliceOrNone(const QString& strip, const Slice (&slices)[count], int state)
{
    return cutSlice(strip, findSlice(slices, state));
}

CResourceMan::IconStatus buttonRow(const QString& name, int y)
{
    const QImage row = readPicture(name, QRect(0, y, 3 * buttonSide, buttonSide));
    const auto look = [&row](int column) {
        return QPixmap::fromImage(row.copy(column * buttonSide, 0, buttonSide, buttonSide));
    };
    return {look(0), look(1), look(2)};
}

// In 64 bits: a disk of 21 million blocks would overflow an int.
int percent(int part, int whole)
{
    return static_cast<int>(qBound(qint64(-1), qint64(part) * 100 / whole, qint64(101)));
}

struct FreeAddresses
{
    void operator()(ifaddrs* list) const { freeifaddrs(list); }
};

} // namespace

QPixmap CResourceMan::getHomeStatus(HomeStatus status)
{
    return sliceOrFirst(QStringLiteral(":/images/TB_HOME_3states.png"), homeSlices, status);
}

QPixmap CResourceMan::getCloseStatus(CloseStatus status)
{
    return sliceOrFirst(QStringLiteral(":/images/TB_close_3states.png"), closeSlices, status);
}

CResourceMan::IconStatus CResourceMan::getBatteryStatus(BatteryStatus status)
{
    const int row = int(status) >= 0 && int(status) <= lastBatteryStatus ? int(status) : 0;
    return buttonRow(QStringLiteral(":/images/TB_BATT_12states.png"), row * buttonSide);
}

CResourceMan::IconStatus CResourceMan::getBatteryStatus(int remain, int full, bool onBattery)
{
    return getBatteryStatus(getSystemBatteryStatus(remain, full, onBattery));
}

CResourceMan::IconStatus CResourceMan::getStorageStatus(StorageStatus status)
{
    int y = 0;
    for (const StorageRow& row : storageRows) {
        if (row.status == status)
            y = row.y;
    }
    return buttonRow(QStringLiteral(":/images/TB_STORAGE_8states.png"), y);
}

CResourceMan::IconStatus CResourceMan::getStorageStatus(int used, int total, bool usbDisk)
{
    return getStorageStatus(storageLevel(used, total, usbDisk));
}

QPixmap CResourceMan::getAppStatus(AppStatus status)
{
    return sliceOrFirst(QStringLiteral(":/images/app_status-280X180.png"), appSlices, status);
}

QPixmap CResourceMan::getPortStatus(PortStatus status)
{
    return sliceOrFirst(QStringLiteral(":/images/BB_PORTBTN_3states.png"), portSlices, status);
}

int CResourceMan::getWidth(WidthCode)
{
    return 4;
}

QColor CResourceMan::getColor(ColorCode code)
{
    return int(code) >= 0 && int(code) < colorCount ? QColor(colors[code]) : QColor();
}

QPixmap CResourceMan::getFolderStatus(FolderStatus status)
{
    if (status == FolderLocked)
        return QPixmap::fromImage(readPicture(QStringLiteral(":/images/Lock_status.png")));
    if (status == FolderUnlock)
        return QPixmap::fromImage(readPicture(QStringLiteral(":/images/Unlock_status.png")));
    return QPixmap::fromImage(readPicture(QStringLiteral(":/images/folder-blue.png")));
}

QIcon CResourceMan::getUIStatus(UIStatus status)
{
    return QIcon(sliceOrFirst(QStringLiteral(":/images/TB_DIG_LOCK_2states.png"), lockIconSlices, status));
}

QString CResourceMan::getLocalIP()
{
    ifaddrs* first = nullptr;
    if (getifaddrs(&first) != 0)
        return chooseLocalAddress({});
    const std::unique_ptr<ifaddrs, FreeAddresses> list(first);
    QVector<InterfaceAddress> addresses;
    for (const ifaddrs* entry = list.get(); entry; entry = entry->ifa_next) {
        InterfaceAddress item{QString::fromLocal8Bit(entry->ifa_name), AF_UNSPEC, QString()};
        if (entry->ifa_addr)
            item.family = entry->ifa_addr->sa_family;
        if (item.family == AF_INET) {
            const in_addr ip = reinterpret_cast<const sockaddr_in*>(entry->ifa_addr)->sin_addr;
            char text[INET_ADDRSTRLEN] = "";
            if (inet_ntop(AF_INET, &ip, text, sizeof text))
                item.address = QString::fromLatin1(text);
        }
        addresses << item;
    }
    return chooseLocalAddress(addresses);
}

QString CResourceMan::chooseLocalAddress(const QVector<InterfaceAddress>& addresses)
{
    for (const InterfaceAddress& item : addresses) {
        if (item.family == AF_INET && !item.name.isNull() && !item.name.contains(QLatin1String("usb"))
            && !item.name.contains(QLatin1String("tap")) && item.name != QLatin1String("lo"))
            return item.address;
    }
    return QStringLiteral("127.0.0.1");
}

QPixmap CResourceMan::getSystemUIStatus(SystemUIStatus status)
{
    return sliceOrNone(QStringLiteral(":/images/status-TB_lock.png"), lockSlices, status);
}

QPixmap CResourceMan::getSystemIPStatus(SystemIPStatus status)
{
    return sliceOrNone(QStringLiteral(":/images/BB_ManNET_2states.png"), ipSlices, status);
}

QPixmap CResourceMan::getSystemCLIStatus(SystemCLIStatus status)
{
    return sliceOrNone(QStringLiteral(":/images/BB_CLIAcc_2states.png"), cliSlices, status);
}

QPixmap CResourceMan::getSystemBluetoothStatus(SystemBluetoothStatus status)
{
    return sliceOrNone(QStringLiteral(":/images/status-TB_bluetooth.png"), bluetoothSlices, status);
}

QPixmap CResourceMan::getSystemGPSStatus(SystemGPSStatus status)
{
    return sliceOrNone(QStringLiteral(":/images/status-TB_GPS.png"), gpsSlices, status);
}

QPixmap CResourceMan::getSystemDataCardStatus(SystemDataCardStatus status)
{
    return sliceOrNone(QStringLiteral(":/images/MAIN_DataCard_ntb.png"), dataCardSlices, status);
}

QPixmap CResourceMan::getSystemHelpStatus(SystemHelpStatus status)
{
    return sliceOrNone(QStringLiteral(":/images/status-TB_help.png"), helpSlices, status);
}

QPixmap CResourceMan::getSystemAtomicClockStatus(SystemAtomicClockStatus status)
{
    return sliceOrNone(QStringLiteral(":/images/status-TB_atomic-clock.png"), atomicClockSlices, status);
}

QPixmap CResourceMan::getSystemOPMStatus(SystemOPMStatus status)
{
    return sliceOrNone(QStringLiteral(":/images/status-TB_OPM.png"), opmSlices, status);
}

QPixmap CResourceMan::getSystemUSBDiskStatus(SystemUSBDiskStatus status)
{
    return sliceOrNone(QStringLiteral(":/images/status-TB_USB-disk.png"), usbDiskSlices, status);
}

QPixmap CResourceMan::getSystemWIFIStatus(SystemWIFIStatus status)
{
    return sliceOrNone(QStringLiteral(":/images/status-TB_Wifi.png"), wifiSlices, status);
}

QPixmap CResourceMan::getSystemBatteryStatus(BatteryStatus status)
{
    const int column = int(status) >= 0 && int(status) <= lastBatteryStatus ? int(status) : 0;
    return cut(
        QStringLiteral(":/images/status-TB_battery.png"), QRect(column * smallSide, 0, smallSide, smallSide));
}

CResourceMan::BatteryStatus CResourceMan::getSystemBatteryStatus(int remain, int full, bool onBattery)
{
    if (full <= 0)
        return onBattery ? BAT_EMPTY_DISCHARGED : BAT_FULLY_CHARGED;
    BatteryStatus charged = BAT_EMPTY_CHARGED;
    for (const BatteryLevel& level : batteryLevels) {
        if (percent(remain, full) >= level.minimum) {
            charged = level.charged;
            break;
        }
    }
    return onBattery ? BatteryStatus(charged + 1) : charged;
}

CResourceMan::StorageStatus CResourceMan::storageLevel(int used, int total, bool usbDisk)
{
    StorageStatus internal = DISK_USED_RATIO_0;
    if (total <= 0)
        internal = DISK_USED_RATIO_100;
    for (const UsageLevel& level : usageLevels) {
        if (total > 0 && percent(used, total) >= level.minimum) {
            internal = level.internal;
            break;
        }
    }
    return usbDisk ? StorageStatus(internal + 1) : internal;
}
