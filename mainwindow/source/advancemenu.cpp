#include "advancemenu.h"

#include <QCoreApplication>

#include <iterator>

namespace {

constexpr EntryMenuRow ROWS[] = {
    {0, 0, QT_TRANSLATE_NOOP("CAdvanceMenu", "Fiber Scope"), ":/images/MAIN_FSCOPE_ntb.png", 7,
        UTILITY_ID_FIBERSCOPE},
    {1, 0, QT_TRANSLATE_NOOP("CAdvanceMenu", "WiFi SA"), ":/images/MAIN_WiFISA_ntb.png", 10,
        UTILITY_ID_WIFI_SA},
    // The power meter shares the fibre scope's picture.
    {2, 0, QT_TRANSLATE_NOOP("CAdvanceMenu", "Optical Power\nMeter"), ":/images/MAIN_FSCOPE_ntb.png", 1,
        UTILITY_ID_OPM},
    {3, 0, QT_TRANSLATE_NOOP("CAdvanceMenu", "WiFi InSSIDer"), ":/images/MAIN_WiFIinSSIDer_ntb.png", 4,
        UTILITY_ID_WIFI_INSSDER},
    {0, 1, QT_TRANSLATE_NOOP("CAdvanceMenu", "Data Card"), ":/images/MAIN_DcardGPS_ntb.png", 1,
        UTILITY_ID_DATACARD_3G},
};

} // namespace

CAdvanceMenu::CAdvanceMenu(QWidget* parent)
    : CEntryMenu(ROWS, int(std::size(ROWS)), parent)
{
    initialize();
}
