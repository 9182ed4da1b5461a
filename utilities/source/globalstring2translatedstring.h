#pragma once

#include "systemsettings.h"

#include <QObject>
#include <QVariant>

/** Binds one entry of a selection list to the value that choosing it stores. A plain record. */
class GlobalString2TranslatedString : public QObject
{
    Q_OBJECT

public:
    /**
     * @param source the English text of the entry
     * @param translated the text in the language of the moment
     * @param profile the value that is stored; a null one stands for the source text in lower case
     */
    GlobalString2TranslatedString(const QString& source, const QString& translated,
        CSystemSettings::SystemAttribute attribute, const QVariant& profile, QObject* parent);

    QString Source() const { return m_source; }
    QString Translated() const { return m_translated; }
    QVariant Profile() const { return m_profile; }
    CSystemSettings::SystemAttribute Attribute() const { return m_attribute; }

private:
    QString m_source;
    QString m_translated;
    QVariant m_profile;
    CSystemSettings::SystemAttribute m_attribute;
};
