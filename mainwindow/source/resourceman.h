#pragma once

#include "devicestatus.h"

#include <QColor>
#include <QIcon>
#include <QObject>
#include <QPixmap>
#include <QString>
#include <QVector>

/**
 * The one place that turns a logical state into the picture, colour or width that shows it, and that names
 * the instrument's own address.
 *
 * Every getter is static and returns a value copy; pictures are cut from the compiled-in state strips afresh
 * on each call, so a caller that asks often keeps its copy. A value outside an enumeration gives the getter's
 * default, a strip that cannot be loaded a null picture; nothing is reported. Interface thread only.
 */
class CResourceMan : public QObject
{
    Q_OBJECT

public:
    enum HomeStatus { HomePress = 0, HomeRelease = 1, HomeSelect = 2, HomeDefault = 3 };
    enum CloseStatus { ClosePress = 0, CloseRelease = 1, CloseSelect = 2, CloseDefault = 3 };
    /** Charge levels; CHARGED on external power, DISCHARGED on battery. The value is the row of the strips.
     */
    enum BatteryStatus {
        BAT_FULLY_CHARGED = 0,
        BAT_FULLY_DISCHARGED = 1,
        BAT_80PER_CHARGED = 2,
        BAT_80PER_DISCHARGED = 3,
        BAT_50PER_CHARGED = 4,
        BAT_50PER_DISCHARGED = 5,
        BAT_20PER_CHARGED = 6,
        BAT_20PER_DISCHARGED = 7,
        BAT_LT20PER_CHARGED = 8,
        BAT_LT20PER_DISCHARGED = 9,
        BAT_EMPTY_CHARGED = 10,
        BAT_EMPTY_DISCHARGED = 11
    };
    enum StorageStatus {
        DISK_USED_RATIO_100 = 0,
        USB_DISK_USED_RATIO_100 = 1,
        DISK_USED_RATIO_75 = 2,
        USB_DISK_USED_RATIO_75 = 3,
        DISK_USED_RATIO_50 = 4,
        USB_DISK_USED_RATIO_50 = 5,
        DISK_USED_RATIO_25 = 6,
        USB_DISK_USED_RATIO_25 = 7,
        DISK_USED_RATIO_0 = 8,
        USB_DISK_USED_RATIO_0 = 9
    };
    enum LEDStatus { LeftLED = 0, LEDGray = 1, LEDGreen = 2, LEDRed = 3, LEDYellow = 4, LEDDefault = 5 };
    enum AppStatus {
        AppUnuseRelease = 0,
        AppUnusePush = 1,
        AppOKRelease = 2,
        AppOKPush = 3,
        AppErrRelease = 4,
        AppErrPush = 5,
        AppFocus = 6,
        AppNoModule = 7,
        AppRemote = 8
    };
    enum PortStatus { PortStatus1 = 0, PortStatus2 = 1, PortStatus3 = 2, PortDefault = 3 };
    enum ColorCode {
        ScreenBgColor = 0,
        TopBarBgColor = 1,
        BottomBarBgColor = 2,
        AppBarBgColor = 3,
        ParmNameBgColor = 4,
        KeyBoardBgColor = 5,
        DlgBgColor = 6,
        DlgBorderColor = 7
    };
    enum WidthCode { DlgBorderWidth = 0 };
    enum FolderStatus { FolderNormal = 0, FolderLocked = 1, FolderUnlock = 2 };
    enum UIStatus { UIUnLocked = 0, UILocked = 1 };
    enum SystemUIStatus { SysStsUILocked = 0, SysStsUIUnLocked = 1 };
    enum SystemIPStatus { SysStsIPOn = 0, SysStsIPOff = 1 };
    enum SystemCLIStatus { SysStsCLIOn = 0, SysStsCLIOff = 1 };
    enum SystemBluetoothStatus { SysStsBluetoothOn = 0, SysStsBluetoothOff = 1 };
    enum SystemHelpStatus { SysStsHelp = 0 };
    enum SystemAtomicClockStatus {
        SysStsAtomicClockOnSync = 0,
        SysStsAtomicClockOnNoSync = 1,
        SysStsAtomicClockOff = 2
    };
    enum SystemOPMStatus { SysStsOPMOn = 0, SysStsOPMPulsing = 1, SysStsOPMOff = 2 };
    enum SystemUSBDiskStatus { SysStsUSBDiskValid = 0, SysStsUSBDiskInvalid = 1 };
    enum SystemWIFIStatus { SysStsWIFIONLinked = 0, SysStsWIFIONNoLink = 1, SysStsWIFIOff = 2 };

    /** The three looks of a touch button in one logical state, each 60 x 60. */
    struct IconStatus
    {
        QPixmap icoNormal;
        QPixmap icoPress;
        QPixmap icoSelect;
    };

    /** An interface address as the system lists it. */
    struct InterfaceAddress
    {
        QString name; ///< null if the entry has none
        int family; ///< AF_INET...; AF_UNSPEC for an entry without an address
        QString address; ///< dotted decimal for AF_INET
    };

    /** Touch button pictures, 60 x 60; by default the released one. */
    static QPixmap getHomeStatus(HomeStatus status);
    static QPixmap getCloseStatus(CloseStatus status);

    /** By default the row of BAT_FULLY_CHARGED. */
    static IconStatus getBatteryStatus(BatteryStatus status);
    static IconStatus getBatteryStatus(int remain, int full, bool onBattery);
    /** By default the row of the empty internal disk. */
    static IconStatus getStorageStatus(StorageStatus status);
    static IconStatus getStorageStatus(int used, int total, bool usbDisk);

    /** Application tab, 70 x 60; a null picture for AppRemote, by default AppUnuseRelease. */
    static QPixmap getAppStatus(AppStatus status);
    /** Port button, 139 x 17 or 138 x 17; by default that of PortStatus1. */
    static QPixmap getPortStatus(PortStatus status);

    /** Frame width of dialogs in pixels, whatever the code. */
    static int getWidth(WidthCode code);
    /** Background and border colours; invalid outside the enumeration. */
    static QColor getColor(ColorCode code);

    static QPixmap getFolderStatus(FolderStatus status);
    /** The digital lock, 44 x 44; by default open. */
    static QIcon getUIStatus(UIStatus status);

    /** The instrument's IPv4 address for display, "127.0.0.1" when it has none of its own. */
    static QString getLocalIP();
    /**
     * Which of the listed addresses is the instrument's own: the first IPv4 address of a named interface that
     * is neither the loopback nor the USB link to a host computer nor a tunnel.
     */
    static QString chooseLocalAddress(const QVector<InterfaceAddress>& addresses);

    /** Small pictures of the bars, 20 x 20 (data card and help 22 x 22); by default a null picture. */
    static QPixmap getSystemUIStatus(SystemUIStatus status);
    static QPixmap getSystemIPStatus(SystemIPStatus status);
    static QPixmap getSystemCLIStatus(SystemCLIStatus status);
    static QPixmap getSystemBluetoothStatus(SystemBluetoothStatus status);
    static QPixmap getSystemGPSStatus(SystemGPSStatus status);
    static QPixmap getSystemDataCardStatus(SystemDataCardStatus status);
    static QPixmap getSystemHelpStatus(SystemHelpStatus status);
    static QPixmap getSystemAtomicClockStatus(SystemAtomicClockStatus status);
    static QPixmap getSystemOPMStatus(SystemOPMStatus status);
    static QPixmap getSystemUSBDiskStatus(SystemUSBDiskStatus status);
    static QPixmap getSystemWIFIStatus(SystemWIFIStatus status);
    /** Small battery, 20 x 20; by default that of BAT_FULLY_CHARGED. */
    static QPixmap getSystemBatteryStatus(BatteryStatus status);

    /** The level of a charge (capacities in one unit), without a picture. */
    static BatteryStatus getSystemBatteryStatus(int remain, int full, bool onBattery);
    /** The level of a disk's usage (both in one unit), without a picture. */
    static StorageStatus storageLevel(int used, int total, bool usbDisk);
};
