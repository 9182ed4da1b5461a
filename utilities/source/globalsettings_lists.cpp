// The lists of the page: where they stand, what they offer, and what their entries store.

#include "globalsettings.h"

const QVector<CGlobalSettings::List>& CGlobalSettings::lists()
{
    using G = CGlobalSettings;
    using S = CSystemSettings;
    enum Tab { General, Storage, Save };
    static const QVariant lowered; // the entry stores its own text in lower case
    static const auto text = [](const char* value) { return QVariant(QString::fromLatin1(value)); };
    static const QVector<List> table = {
        {&G::m_pComboLanguage, &G::m_pComboLanguageMap, General, 0, QT_TR_NOOP("Language"),
            {QT_TR_NOOP("English"), QT_TR_NOOP("Chinese"), QT_TR_NOOP("German"), QT_TR_NOOP("French"),
                QT_TR_NOOP("Japanese"), QT_TR_NOOP("Hungarian"), QT_TR_NOOP("Russian")},
            7, 0, S::Language,
            {{"English", LANGUAGE_ENGLISH}, {"Chinese", LANGUAGE_CHINESE}, {"German", LANGUAGE_GERMAN},
                {"French", LANGUAGE_FRENCH}, {"Japanese", LANGUAGE_JAPANESE},
                {"Hungarian", LANGUAGE_HUNGARIAN}, {"Russian", LANGUAGE_RUSSIAN}}},
        // "Imperial" comes with the first change of the language, and stores nothing: no test application
        // knows it.
        {&G::m_pComboUnit, &G::m_pComboUnitMap, General, 1, QT_TR_NOOP("Unit"),
            {QT_TR_NOOP("Metric"), QT_TR_NOOP("Imperial")}, 1, 0, S::UintType, {{"Metric", lowered}}},
        // The alarm can be switched on here, and not off.
        {&G::m_pComboAudibleAlarm, &G::m_pComboAudibleAlarmMap, General, 2, QT_TR_NOOP("Audible Alarm"),
            {QT_TR_NOOP("On")}, 1, 0, S::AudibleAlarm, {{"On", 1}, {"Off", 0}}},
        {&G::m_pComboShowPwd, &G::m_pComboShowPwdMap, General, 3, QT_TR_NOOP("Show Password"),
            {QT_TR_NOOP("Yes"), QT_TR_NOOP("No")}, 2, 0, S::PasswordVisible, {{"Yes", 1}, {"No", 0}}},
        {&G::m_pComboUserInterface, &G::m_pComboUserInterfaceMap, General, 4, QT_TR_NOOP("User Interface"),
            {QT_TR_NOOP("International"), QT_TR_NOOP("USA")}, 2, 0, S::UserStyle,
            {{"International", lowered}, {"USA", lowered}}},
        // The values stand in another order than the items: "Atomic 1PPS" stores "gps". Other processes know
        // it so.
        {&G::m_pComboInternal1pps, &G::m_pComboInternal1ppsMap, General, 5, QT_TR_NOOP("Clock Source"),
            {QT_TR_NOOP("Atomic 1PPS"), QT_TR_NOOP("GPS 1PPS"), QT_TR_NOOP("Atomic Clock 10M Hz")}, 3, 0,
            S::ClkSrc0,
            {{"GPS 1PPS", text("gps")}, {"Atomic 1PPS", text("atomic")},
                {"Atomic Clock 10M Hz", text("atomic_10m")}}},
        {&G::m_pComboProfileDel, &G::m_pComboProfileDelMap, Storage, 1, QT_TR_NOOP("Profile Deleting"),
            {QT_TR_NOOP("Auto Delete"), QT_TR_NOOP("Prompt User")}, 2, 0, S::ProDelType,
            {{"Auto Delete", text("force")}, {"Prompt User", text("prompt")}}},
        {&G::m_pComboProfileSave, &G::m_pComboProfileSaveMap, Storage, 2, QT_TR_NOOP("Profile Saving"),
            {QT_TR_NOOP("Auto Overwrite"), QT_TR_NOOP("Prompt User")}, 2, 0, S::ProSaveType,
            {{"Auto Overwrite", text("force")}, {"Prompt User", text("prompt")}}},
        {&G::m_pComboResultSave, &G::m_pComboResultSaveMap, Storage, 3, QT_TR_NOOP("Result Saving"),
            {QT_TR_NOOP("Manual"), QT_TR_NOOP("Prompt User")}, 2, 0, S::RstSaveType,
            {{"Manual", lowered}, {"Prompt User", text("prompt")}}},
        {&G::m_pComboAdvanceSave, &G::m_pComboAdvanceSaveMap, Storage, 4, QT_TR_NOOP("Advance Saving"),
            {QT_TR_NOOP("On"), QT_TR_NOOP("Off")}, 2, 1, S::AdvancedSave, {{"On", 1}, {"Off", 0}}},
        {&G::m_pComboLockSaveScreen, &G::m_pComboLockSaveScreenMap, Save, 0, QT_TR_NOOP("Lock/Save Screen"),
            {QT_TR_NOOP("Lock Screen"), QT_TR_NOOP("Save Screen")}, 2, 0, S::LockScreenORSaveScreen,
            {{"Lock Screen", 0}, {"Save Screen", 1}}},
        {&G::m_pComboCompressLvl, &G::m_pComboCompressLvlMap, Save, 1,
            QT_TR_NOOP("Screenshot Compression Level"),
            {QT_TR_NOOP("High"), QT_TR_NOOP("Mid"), QT_TR_NOOP("No Compression")}, 3, 1,
            S::SaveScreenCompressLevel, {{"High", 65000}, {"Mid", 65001}, {"No", 65002}}},
    };
    return table;
}
