#include "defaultsettings.h"

#include "compresslevel.h"

const QVector<DefaultSetting>& defaultSettings()
{
    using S = CSystemSettings;
    static const auto text = [](const char* value) { return QVariant(QString::fromLatin1(value)); };
    static const QVector<DefaultSetting> table = {
        {S::BatteryBacklightEnabled, false},
        {S::BatteryBacklightTime, 10}, // seconds
        {S::BatteryBrightness, 50},
        {S::BatteryBacklightChanged, true},
        {S::ERROR_NETWORK_CONNECT_DHCP, false},
        {S::ClientWindowSwitched, false},
        {S::TestAppForeground, false},
        {S::ACBacklightEnabled, false},
        {S::ACBacklightTime, 60}, // seconds
        {S::ACBrightness, 63},
        {S::ACBacklightChanged, true},
        {S::PasswordVisible, true},
        {S::LockScreenORSaveScreen, true},
        {S::SaveScreenCompressLevel, LevelMid},
        {S::SaveScreenMaxNum, 50},
        {S::Exist_Module_1, true},
        {S::Exist_Module_2, true},
        {S::InitDefAppIndex, 0},
        {S::ProDelType, text("force")},
        {S::ProSaveType, text("force")},
        {S::RstSaveType, text("manual")},
        {S::AudibleAlarm, false},
        {S::AdvancedSave, false},
        {S::UintType, text("metric")},
        {S::UserStyle, text("international")},
        {S::FileNamePrefix, text("")},
        {S::ClkSrc0, text("tcxo")},
        {S::ClkSrc1, text("tcxo")},
        {S::ClkSrc2, text("tcxo")},
        {S::ClkSrc3, text("tcxo")},
        {S::ClkSrc4, text("tcxo")},
        {S::ClkSrc5, text("tcxo")},
        {S::ManPortBoot, false},
    };
    return table;
}
