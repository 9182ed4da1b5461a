#pragma once

#include <cstdint>

/**
 * Which clock the slots of the unit run on: 2 GPS 1 pps, 3 atomic 1 pps, 4 atomic 10 MHz. A unit other than
 * the six-slot chassis of revision E has one clock, that of the first value.
 */
struct stOrlo_ClockSrc_cmd
{
    std::int32_t board_index; ///< the slot that is meant, from 0; -1 for every one
    std::int32_t clock_source[6]; ///< by slot
};

struct stOrlo_ClockSrc_ret
{
    std::int32_t board_index;
    std::int32_t clock_source[6];
};

/**
 * Sets the clock source with the unit's clock tool, in a process of its own that belongs to the init process.
 * Returns at once; nobody learns whether the tool succeeds. The command is copied.
 */
void setOrloclock(stOrlo_ClockSrc_cmd* cmd);

/**
 * Runs the clock tool for a command, slot by slot where each has a clock, and waits for it, however long it
 * takes: what setOrloclock() does in its process. The first argument is not used. Async-signal-safe; to be
 * called with default signal handlers.
 * @param ret the sources that were asked for, may be null; board_index is that of the command on revision E,
 * else -1 with the one source in every place
 * @return 0
 */
int orlo_modconf_clocksrc(int handle, const stOrlo_ClockSrc_cmd* cmd, stOrlo_ClockSrc_ret* ret);
