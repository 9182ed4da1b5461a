#include "settingmoremenu.h"

#include <QCoreApplication>

#include <iterator>

namespace {

constexpr EntryMenuRow ROWS[] = {
    {0, 0, QT_TRANSLATE_NOOP("CSettingMoreMenu", "High Precision\nClock Source"),
        ":/images/MAIN_Utilitites_PrecClock_ntb.png", 1, UTILITY_ID_DATACARD_GPS},
};

} // namespace

CSettingMoreMenu::CSettingMoreMenu(QWidget* parent)
    : CEntryMenu(ROWS, int(std::size(ROWS)), parent)
{
    initialize();
}
