#pragma once

#include "systemsettings.h"

/** How the value of an attribute becomes the content of its field in the shared block. */
enum class FieldConversion {
    NotSaved, ///< the attribute has no field
    Flag, ///< truth value as 0 or 1
    Number,
    CompressLevel, ///< LevelHigh gives 7, NoCompress gives 0, the rest 3
    Prompt, ///< the text "prompt" gives 1, the rest 0
    Unit, ///< "english" gives unit_english, the rest unit_metric
    Style, ///< "usa" gives uistyle_usa, the rest uistyle_international
    ClockSource, ///< "gps" gives 2, "atomic" 3, "atomic_10m" 4, the rest 1
    Text ///< copied, cut to the 64 bytes of the field
};

/** All there is to know about one attribute. */
struct SystemAttributeInfo
{
    CSystemSettings::SystemAttribute attribute;
    const char* storeKey;
    const char* profileName; ///< name in the defaults profile; null if it is not read from there
    FieldConversion conversion;
    size_t offset; ///< of the field in the shared block, in bytes; unused without a field
};

/** The attribute's row; null for an invalid attribute. */
const SystemAttributeInfo* systemAttributeInfo(CSystemSettings::SystemAttribute attribute);

/** What the field of a saved attribute other than text holds for a value. Texts compare without regard to
 * case. */
qint32 fieldValue(FieldConversion conversion, const QVariant& value);
