#pragma once

#include <cstddef>
#include <cstdint>

/**
 * Storage settings as the shell hands them to the test applications: a fixed layout of 96 bytes, native
 * little-endian. Texts are UTF-8, NUL-terminated within their field.
 */
struct mainframe2app_message
{
    char msgPref[16]; ///< "MAINFRAME2APP", set by the sender; not stored
    char fnamePrefix[64]; ///< file name prefix of saved results, at most 63 bytes
    std::int32_t profileDel; ///< profile deleting type: 0 automatic, 1 prompt
    std::int32_t profileSaving; ///< profile saving type
    std::int32_t rsultSaving; ///< result saving type
    std::int32_t advanceSaving; ///< 1 advanced saving on, 0 off
};

static_assert(sizeof(mainframe2app_message) == 96 && offsetof(mainframe2app_message, fnamePrefix) == 16
        && offsetof(mainframe2app_message, profileDel) == 80
        && offsetof(mainframe2app_message, profileSaving) == 84
        && offsetof(mainframe2app_message, rsultSaving) == 88
        && offsetof(mainframe2app_message, advanceSaving) == 92,
    "other processes read this record");
