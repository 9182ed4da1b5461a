#pragma once

#include "devicestatus.h"
#include "resourceman.h"

#include <QString>

/** What the power page shows for a power record. */
struct PowerView
{
    bool bIsLevelShown = false; ///< level bar, capacity row and state row
    bool bIsTimeShown = false; ///< remaining time row
    int level = 0; ///< per cent, 0 to 100
    const char* state = ""; ///< source text, to be translated in the context "CPowerMonitor"
    CResourceMan::BatteryStatus battery = CResourceMan::BAT_FULLY_CHARGED; ///< picture
};

/**
 * On external power with a full battery and no times only the picture says so; on external power otherwise
 * the level and state show, and on battery the time as well. A level that cannot be told is 0. Pure.
 */
PowerView powerView(const PowerStatus& status);

/** A time as the page reads it, e.g. "1 hour 25 mins", translated. Interface thread. */
QString remainTimeText(int minutes);
