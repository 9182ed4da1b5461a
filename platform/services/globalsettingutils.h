#pragma once

#include <QString>

namespace miscutils {

/** How results and profiles are stored, as the block of global settings has it. */
struct StorageSetting
{
    bool isKnown = false; ///< false when the block cannot be read; the rest is then empty
    QString fileNamePrefix;
    int profileDeleting = 0;
    int profileSaving = 0;
    int resultSaving = 0;
    int advancedSaving = 0;
};

/** Reads the block of global settings for processes that do not keep it attached. Any thread. */
class CGlobalSettingUtils
{
public:
    static StorageSetting GetStorageSetting();
};

} // namespace miscutils
