#pragma once

#include "settingsfile.h"

#include <QMap>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QVariant>

class QDomElement;
struct stArvo_global_setting;

/**
 * The system-wide settings, one value per SystemAttribute. Values live in memory, and in the application's
 * own settings file soon after; those that other processes of the instrument need are written into the shared
 * block of global settings as well. Every change is announced.
 *
 * One per process, reached through globalSettings() by the shell and its plug-ins. Interface thread, but for
 * getAttribute(), which any thread may call once the interface thread has made the instance. Without a shared
 * block (none there, or smaller than its record) everything but the other processes works; the log
 * says so.
 */
class CSystemSettings : public QObject
{
    Q_OBJECT

public:
    enum SystemAttribute {
        AttributeBegin = 60000,
        BatteryBacklightEnabled = 60001,
        BatteryBacklightTime = 60002,
        BatteryBrightness = 60003,
        BatteryBacklightChanged = 60004,
        ACBacklightEnabled = 60005,
        ACBacklightTime = 60006,
        ACBrightness = 60007,
        ACBacklightChanged = 60008,
        BTHDevPlugged = 60009,
        BTHDevPaired = 60010,
        PairedBTHDevName = 60011,
        PairedBTHDevAddr = 60012,
        PasswordVisible = 60013,
        LockScreenORSaveScreen = 60014,
        SaveScreenCompressLevel = 60015,
        SaveScreenMaxNum = 60016,
        Exist_Module_1 = 60017,
        Exist_Module_2 = 60018,
        GPS_State_ON = 60019,
        AttrDataCard = 60020,
        ERROR_NETWORK_CONNECT_DHCP = 60021,
        ClientWindowSwitched = 60022,
        TestAppForeground = 60023,
        Language = 60024,
        InitDefAppIndex = 60025,
        ProDelType = 60026,
        ProSaveType = 60027,
        RstSaveType = 60028,
        AudibleAlarm = 60029,
        AdvancedSave = 60030,
        UintType = 60031,
        UserStyle = 60032,
        FileNamePrefix = 60033,
        ClkSrc0 = 60034,
        ClkSrc1 = 60035,
        ClkSrc2 = 60036,
        ClkSrc3 = 60037,
        ClkSrc4 = 60038,
        ClkSrc5 = 60039,
        ManPortBoot = 60040,
        AttributeEnd = 60041
    };
    Q_ENUM(SystemAttribute)

    /** The process's instance, made on first use; it has no parent and lives as long as the process. */
    static CSystemSettings* globalSettings();

    ~CSystemSettings() override;

    /**
     * Stores the value, writes it into the shared block if `save` is set and the attribute belongs there, and
     * emits attributeChanged(), also for a value that is the same. An invalid attribute is ignored.
     */
    void setAttribute(SystemAttribute attribute, const QVariant& value, bool save = true);

    /** The stored value; an invalid one if there is none. What an earlier process stored is text.
     * Thread-safe.
     */
    QVariant getAttribute(SystemAttribute attribute) const;

    /**
     * Key of the attribute in the store. Empty for an invalid one, and for the Bluetooth attributes and
     * Language: these five share one value.
     */
    static QString getAttributeName(SystemAttribute attribute);

    static bool isValidAttribute(SystemAttribute attribute);

    /** True if setAttribute() writes the attribute into the shared block. */
    static bool isNeedSaveDef(SystemAttribute attribute);

    /**
     * Loads the defaults profile ("Last configuration") into the store, announcing every value, without
     * writing the shared block. A profile that cannot be read changes nothing but the log.
     */
    void loadDefAttribute();

signals:
    void attributeChanged(CSystemSettings::SystemAttribute attribute);

protected:
    explicit CSystemSettings(QObject* parent = nullptr);

private:
    void storeNow();
    void attachGlobalSetting();
    void detachGlobalSetting();
    void creatAttrStrMap();
    void saveAttribute(SystemAttribute attribute, const QVariant& value);
    void loadSubAttributeString(const QDomElement& element);

    mutable QMutex m_storeMutex; // for the next three; never held while a signal goes out
    CMemorySettings m_settings;
    QVariantMap m_changed; // by this process, by key
    bool m_isStoreAsked = false; // a call of storeNow() is on its way
    CSettingsFile m_file;
    stArvo_global_setting* m_pGlobalSetting = nullptr; // attached; null if there is none
    QMap<QString, SystemAttribute> m_attrStrMap; // by name in the defaults profile
};
