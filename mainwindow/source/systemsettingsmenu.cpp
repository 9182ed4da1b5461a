#include "systemsettingsmenu.h"

#include <QCoreApplication>

#include <iterator>

namespace {

constexpr EntryMenuRow ROWS[] = {
    {0, 0, QT_TRANSLATE_NOOP("CSystemSettingsMenu", "About"), ":/images/MAIN_Utilities_About_ntb.png", 1,
        UTILITY_ID_ABOUT},
    {1, 0, QT_TRANSLATE_NOOP("CSystemSettingsMenu", "Remote Access"),
        ":/images/MAIN_Utilitites_RemoteCtrl_ntb.png", 1, UTILITY_ID_REMOTE_ACCESS},
    {2, 0, QT_TRANSLATE_NOOP("CSystemSettingsMenu", "Power"), ":/images/MAIN_Utilitites_Power_ntb.png", 2,
        UTILITY_ID_POWER},
    {0, 1, QT_TRANSLATE_NOOP("CSystemSettingsMenu", "Backlight"), ":/images/MAIN_Utilities_Backlight_ntb.png",
        5, UTILITY_ID_BACKLIGHT},
    {1, 1, QT_TRANSLATE_NOOP("CSystemSettingsMenu", "Global"), ":/images/MAIN_Utilitites_Global_ntb.png", 4,
        UTILITY_ID_GLOBAL},
    {2, 1, QT_TRANSLATE_NOOP("CSystemSettingsMenu", "Date & Time"),
        ":/images/MAIN_Utilitites_DateTime_ntb.png", 1, UTILITY_ID_DATE_TIME},
    // The clock source page is served under the identifier of the GPS data card.
    {3, 0, QT_TRANSLATE_NOOP("CSystemSettingsMenu", "High Precision\nClock Source"),
        ":/images/MAIN_Utilitites_PrecClock_ntb.png", 1, UTILITY_ID_DATACARD_GPS},
};

} // namespace

CSystemSettingsMenu::CSystemSettingsMenu(QWidget* parent)
    : CEntryMenu(ROWS, int(std::size(ROWS)), parent)
{
    initialize();
}
