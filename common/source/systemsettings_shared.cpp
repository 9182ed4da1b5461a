#include "compresslevel.h"
#include "fieldtext.h"
#include "globalsetting.h"
#include "systemattributes.h"

#include <QDebug>
#include <QFileInfo>

#include <sys/ipc.h>
#include <sys/shm.h>

namespace {

using S = CSystemSettings;
using F = FieldConversion;

#define FIELD(NAME) offsetof(stArvo_global_setting, NAME)
#define CLOCK_FIELD(INDEX) (FIELD(spec_data.clock_source) + (INDEX) * sizeof(qint32))

// In the order of the attributes, without gaps.
constexpr SystemAttributeInfo Attributes[] = {
    {S::BatteryBacklightEnabled, "BatteryBacklightEnabled", "bl_off_battery_on", F::Flag,
        FIELD(screen_setting.bl_off_battery_on)},
    {S::BatteryBacklightTime, "BatteryBacklightTime", "bl_off_battery_time", F::Number,
        FIELD(screen_setting.bl_off_battery_time)},
    {S::BatteryBrightness, "BatteryBrightness", "br_level_battery", F::Number,
        FIELD(screen_setting.br_level_battery)},
    {S::BatteryBacklightChanged, "BatteryBacklightChanged", nullptr, F::NotSaved, 0},
    {S::ACBacklightEnabled, "ACBacklightEnabled", "bl_off_AC_on", F::Flag,
        FIELD(screen_setting.bl_off_AC_on)},
    {S::ACBacklightTime, "ACBacklightTime", "bl_off_AC_time", F::Number,
        FIELD(screen_setting.bl_off_AC_time)},
    {S::ACBrightness, "ACBrightness", "br_level_AC", F::Number, FIELD(screen_setting.br_level_AC)},
    {S::ACBacklightChanged, "ACBacklightChanged", nullptr, F::NotSaved, 0},
    {S::BTHDevPlugged, "", nullptr, F::NotSaved, 0},
    {S::BTHDevPaired, "", nullptr, F::NotSaved, 0},
    {S::PairedBTHDevName, "", nullptr, F::NotSaved, 0},
    {S::PairedBTHDevAddr, "", nullptr, F::NotSaved, 0},
    {S::PasswordVisible, "PasswordVisible", "show_password", F::Flag, FIELD(show_password)},
    {S::LockScreenORSaveScreen, "LockScreenORSaveScreen", "save_screen_enable", F::Flag,
        FIELD(save_screen_enable)},
    {S::SaveScreenCompressLevel, "SaveScreenCompressLevel", "save_screen_compress", F::CompressLevel,
        FIELD(save_screen_compress)},
    {S::SaveScreenMaxNum, "SaveScreenMaxNum", "save_screen_maxnum", F::Number, FIELD(save_screen_maxnum)},
    {S::Exist_Module_1, "Exist_Module_1", nullptr, F::NotSaved, 0},
    {S::Exist_Module_2, "Exist_Module_2", nullptr, F::NotSaved, 0},
    {S::GPS_State_ON, "GPS_State_ON", nullptr, F::NotSaved, 0},
    {S::AttrDataCard, "AttrDataCard", nullptr, F::NotSaved, 0},
    {S::ERROR_NETWORK_CONNECT_DHCP, "ERROR_NETWORK_CONNECT_DHCP", nullptr, F::NotSaved, 0},
    {S::ClientWindowSwitched, "ClientWindowSwitched", nullptr, F::NotSaved, 0},
    {S::TestAppForeground, "TestAppForeground", nullptr, F::NotSaved, 0},
    {S::Language, "", nullptr, F::NotSaved, 0},
    {S::InitDefAppIndex, "InitDefAppIndex", "initdef_appindex", F::Number, FIELD(spec_data.initdef_appindex)},
    {S::ProDelType, "ProDelType", "profdel_type", F::Prompt, FIELD(profdel_type)},
    {S::ProSaveType, "ProSaveType", "profsave_type", F::Prompt, FIELD(profsave_type)},
    {S::RstSaveType, "RstSaveType", "rsltsave_type", F::Prompt, FIELD(rsltsave_type)},
    {S::AudibleAlarm, "AudibleAlarm", "audible_alarm", F::Flag, FIELD(audible_alarm)},
    {S::AdvancedSave, "AdvancedSave", "advanced_save", F::Flag, FIELD(advanced_save)},
    {S::UintType, "UintType", "unittype", F::Unit, FIELD(unittype)},
    {S::UserStyle, "UserStyle", "ui_style", F::Style, FIELD(ui_style)},
    {S::FileNamePrefix, "FileNamePrefix", "fname_prefix", F::Text, FIELD(fname_prefix)},
    {S::ClkSrc0, "ClkSrc0", "clock_source_0", F::ClockSource, CLOCK_FIELD(0)},
    {S::ClkSrc1, "ClkSrc1", "clock_source_1", F::ClockSource, CLOCK_FIELD(1)},
    {S::ClkSrc2, "ClkSrc2", "clock_source_2", F::ClockSource, CLOCK_FIELD(2)},
    {S::ClkSrc3, "ClkSrc3", "clock_source_3", F::ClockSource, CLOCK_FIELD(3)},
    {S::ClkSrc4, "ClkSrc4", "clock_source_4", F::ClockSource, CLOCK_FIELD(4)},
    {S::ClkSrc5, "ClkSrc5", "clock_source_5", F::ClockSource, CLOCK_FIELD(5)},
    {S::ManPortBoot, "ManPortBoot", "manport_bootconnect", F::Flag, FIELD(spec_data.manport_bootconnect)},
};

#undef FIELD
#undef CLOCK_FIELD

constexpr int AttributeCount = sizeof Attributes / sizeof *Attributes;

constexpr bool isInOrder()
{
    for (int index = 0; index < AttributeCount; ++index) {
        if (Attributes[index].attribute != S::AttributeBegin + 1 + index)
            return false;
    }
    return AttributeCount == S::AttributeEnd - S::AttributeBegin - 1;
}
static_assert(isInOrder(), "systemAttributeInfo() takes the row by the attribute's number");

bool isText(const QVariant& value, const char* text)
{
    return value.toString().compare(QLatin1String(text), Qt::CaseInsensitive) == 0;
}

qint32 clockSource(const QVariant& value)
{
    if (isText(value, "gps"))
        return 2;
    if (isText(value, "atomic"))
        return 3;
    return isText(value, "atomic_10m") ? 4 : 1;
}

qint32 compressLevel(int level)
{
    return level == LevelHigh ? 7 : level == NoCompress ? 0 : 3;
}

// Null if there is no segment of sufficient size. An identifier of 0 is no segment for any process of the
// unit.
stArvo_global_setting* attachSegment()
{
    if (!QFileInfo::exists(QString::fromLatin1(GlobalSettingKeyFile)))
        return nullptr;
    const key_t key = ::ftok(GlobalSettingKeyFile, GlobalSettingProject);
    if (key <= 0)
        return nullptr;
    const int id = ::shmget(key, 0, 0); // never made here
    shmid_ds segment = {};
    if (id < 1 || ::shmctl(id, IPC_STAT, &segment) != 0 || segment.shm_segsz < sizeof(stArvo_global_setting))
        return nullptr;
    void* const address = ::shmat(id, nullptr, 0);
    return address == reinterpret_cast<void*>(-1) ? nullptr : static_cast<stArvo_global_setting*>(address);
}

} // namespace

const SystemAttributeInfo* systemAttributeInfo(CSystemSettings::SystemAttribute attribute)
{
    return CSystemSettings::isValidAttribute(attribute) ? &Attributes[attribute - S::AttributeBegin - 1]
                                                        : nullptr;
}

qint32 fieldValue(FieldConversion conversion, const QVariant& value)
{
    switch (conversion) {
    case F::Flag:
        return value.toBool() ? 1 : 0;
    case F::Number:
        return value.toInt();
    case F::CompressLevel:
        return compressLevel(value.toInt());
    case F::Prompt:
        return isText(value, "prompt") ? 1 : 0;
    case F::Unit:
        return isText(value, "english") ? unit_english : unit_metric;
    case F::Style:
        return isText(value, "usa") ? uistyle_usa : uistyle_international;
    case F::ClockSource:
        return clockSource(value);
    case F::NotSaved:
    case F::Text:
        break;
    }
    return 0;
}

void CSystemSettings::attachGlobalSetting()
{
    m_pGlobalSetting = attachSegment();
    if (!m_pGlobalSetting)
        qWarning("Get Global Setting share memory error!");
}

void CSystemSettings::detachGlobalSetting()
{
    if (m_pGlobalSetting)
        ::shmdt(m_pGlobalSetting);
}

// Other processes read while this writes: a number is written at once, a text may be seen half written.
void CSystemSettings::saveAttribute(SystemAttribute attribute, const QVariant& value)
{
    const SystemAttributeInfo* const info = systemAttributeInfo(attribute);
    if (!m_pGlobalSetting || !info || info->conversion == F::NotSaved)
        return;
    char* const field = reinterpret_cast<char*>(m_pGlobalSetting) + info->offset;
    if (info->conversion == F::Text) {
        copyFieldText(field, sizeof m_pGlobalSetting->fname_prefix, value.toString());
        return;
    }
    const qint32 number = fieldValue(info->conversion, value);
    std::memcpy(field, &number, sizeof number);
}
