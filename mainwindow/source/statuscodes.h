#pragma once

/** Window identifiers of the shell's dialogs (CDialog::getWindowID). */
enum PopupWindowID {
    POPUP_WND_ID_BEGIN = 64600,
    POPUP_WND_ID_APP_SWITCH = 64601,
    POPUP_WND_ID_INQUIRE_STAT_POWER = 64602,
    POPUP_WND_ID_INQUIRE_STAT_BLUETOOTH = 64603,
    POPUP_WND_ID_INQUIRE_STAT_WIFI = 64604,
    POPUP_WND_ID_INQUIRE_STAT_USB_DISK = 64605,
    POPUP_WND_ID_INQUIRE_STAT_OPM = 64606,
    POPUP_WND_ID_INQUIRE_STAT_GPS = 64607,
    POPUP_WND_ID_INVALID = 64608,
    POPUP_WND_ID_END = 64609
};

/** The information page that waits to be shown over a test application. */
enum InquireSysStatCode {
    INQUIRE_SYS_STAT_BEGIN = 65235,
    INQUIRE_SYS_STAT_POWER = 65236,
    INQUIRE_SYS_STAT_BLUETOOTH = 65237,
    INQUIRE_SYS_STAT_WIFI = 65238,
    INQUIRE_SYS_STAT_USB_DISK = 65239,
    INQUIRE_SYS_STAT_OPM = 65240,
    INQUIRE_SYS_STAT_GPS = 65241,
    INQUIRE_SYS_STAT_NONE = 65242,
    INQUIRE_SYS_STAT_END = 65243
};

/** Values of the SaveScreenCompressLevel setting. */
enum SaveScreenCompressLevel { LevelHigh = 65000, LevelMid = 65001, NoCompress = 65002 };
