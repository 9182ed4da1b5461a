#pragma once

namespace miscutils {

/** What the unit is made of, as the platform tells. */
class CBoardUtils
{
public:
    /**
     * True on the six-slot chassis of revision E, where each slot has a clock of its own. A platform that
     * does not tell the revision is another one. Any thread; async-signal-safe.
     */
    static bool IsChassisRevE();
};

} // namespace miscutils
