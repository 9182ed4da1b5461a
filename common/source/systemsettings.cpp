#include "systemsettings.h"

#include "compresslevel.h"
#include "systemattributes.h"
#include "xmlfile.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDomElement>

#include <utility>

namespace {

// The store cannot hold an empty key; the attributes without a key of their own share this one.
constexpr const char SharedKey[] = "Unnamed";

constexpr int GpsOff = 3;

QString defaultsProfile()
{
    return QStringLiteral("/home/arvo/arvo-prof/arvoglobal-setting/Last configuration");
}

QString storeKey(CSystemSettings::SystemAttribute attribute)
{
    const QString name = CSystemSettings::getAttributeName(attribute);
    return name.isEmpty() ? QString::fromLatin1(SharedKey) : name;
}

bool isText(const QString& text, const char* expected)
{
    return text.compare(QLatin1String(expected), Qt::CaseInsensitive) == 0;
}

QVariant compressLevel(const QString& text)
{
    if (isText(text, "high"))
        return LevelHigh;
    return isText(text, "nocompress") ? NoCompress : LevelMid;
}

QVariant profileValue(CSystemSettings::SystemAttribute attribute, const QString& text)
{
    if (attribute == CSystemSettings::SaveScreenCompressLevel)
        return compressLevel(text);
    if (isText(text, "on"))
        return true;
    if (isText(text, "off"))
        return false;
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber ? QVariant(number) : QVariant(text);
}

} // namespace

CSystemSettings* CSystemSettings::globalSettings()
{
    static auto* const instance = new CSystemSettings;
    return instance;
}

CSystemSettings::CSystemSettings(QObject* parent)
    : QObject(parent)
{
    const QVariantMap stored = m_file.read();
    for (auto value = stored.cbegin(); value != stored.cend(); ++value)
        m_settings.setValue(value.key(), value.value());
    setAttribute(GPS_State_ON, GpsOff);
    attachGlobalSetting();
    creatAttrStrMap();

    // The instance outlives the event loop, which else has the file written after each burst of changes. The
    // first write tells at once whether there can be any.
    if (QCoreApplication::instance())
        connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] {
            storeNow();
            m_file.flush();
        });
}

CSystemSettings::~CSystemSettings()
{
    storeNow();
    detachGlobalSetting();
}

void CSystemSettings::storeNow()
{
    const QMutexLocker locker(&m_storeMutex);
    if (m_isStoreAsked)
        m_file.write(m_changed);
    m_isStoreAsked = false;
}

void CSystemSettings::setAttribute(SystemAttribute attribute, const QVariant& value, bool save)
{
    if (!isValidAttribute(attribute))
        return;
    // A value that stays the same must not cost a write of the settings file: some are set every second.
    const QString key = storeKey(attribute);
    {
        const QMutexLocker locker(&m_storeMutex);
        const QVariant stored = m_settings.value(key);
        if (stored.userType() != value.userType() || stored != value) {
            m_settings.setValue(key, value);
            m_changed.insert(key, value);
            if (!std::exchange(m_isStoreAsked, true))
                QMetaObject::invokeMethod(this, &CSystemSettings::storeNow, Qt::QueuedConnection);
        }
    }
    if (save && isNeedSaveDef(attribute))
        saveAttribute(attribute, value);
    emit attributeChanged(attribute);
}

QVariant CSystemSettings::getAttribute(SystemAttribute attribute) const
{
    if (!isValidAttribute(attribute))
        return QVariant();
    const QMutexLocker locker(&m_storeMutex);
    return m_settings.value(storeKey(attribute));
}

QString CSystemSettings::getAttributeName(SystemAttribute attribute)
{
    const SystemAttributeInfo* const info = systemAttributeInfo(attribute);
    return info ? QString::fromLatin1(info->storeKey) : QString();
}

bool CSystemSettings::isValidAttribute(SystemAttribute attribute)
{
    return attribute > AttributeBegin && attribute < AttributeEnd;
}

bool CSystemSettings::isNeedSaveDef(SystemAttribute attribute)
{
    const SystemAttributeInfo* const info = systemAttributeInfo(attribute);
    return info && info->conversion != FieldConversion::NotSaved;
}

void CSystemSettings::creatAttrStrMap()
{
    for (int number = AttributeBegin + 1; number < AttributeEnd; ++number) {
        const SystemAttributeInfo* const info = systemAttributeInfo(static_cast<SystemAttribute>(number));
        if (info->profileName)
            m_attrStrMap.insert(QString::fromLatin1(info->profileName), info->attribute);
    }
}

void CSystemSettings::loadDefAttribute()
{
    QDomDocument document;
    switch (xmlfile::read(defaultsProfile(), document)) {
    case xmlfile::ReadResult::CannotOpen:
        qWarning("[%s]: Configuration file can not open.", qPrintable(defaultsProfile()));
        break;
    case xmlfile::ReadResult::CannotParse:
        qWarning("[%s]: Configuration file can not parse.", qPrintable(defaultsProfile()));
        break;
    case xmlfile::ReadResult::Ok:
        loadSubAttributeString(document.documentElement());
        break;
    }
}

void CSystemSettings::loadSubAttributeString(const QDomElement& element)
{
    // By name, in a fixed order: a node map has a random one, and walking it takes quadratic time.
    for (auto name = m_attrStrMap.cbegin(); name != m_attrStrMap.cend(); ++name) {
        if (element.hasAttribute(name.key()))
            setAttribute(name.value(), profileValue(name.value(), element.attribute(name.key())), false);
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        loadSubAttributeString(child);
}
