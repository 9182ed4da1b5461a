#include "globalstring2translatedstring.h"

GlobalString2TranslatedString::GlobalString2TranslatedString(const QString& source, const QString& translated,
    CSystemSettings::SystemAttribute attribute, const QVariant& profile, QObject* parent)
    : QObject(parent)
    , m_source(source)
    , m_translated(translated)
    , m_profile(profile.isNull() ? QVariant(source.toLower()) : profile)
    , m_attribute(attribute)
{ }
