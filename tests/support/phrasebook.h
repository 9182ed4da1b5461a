#pragma once

#include <QHash>
#include <QTranslator>

/** A translator from a table of source text and translation, whatever the context. */
class CPhrasebook : public QTranslator
{
public:
    explicit CPhrasebook(const QHash<QByteArray, QString>& phrases)
        : m_phrases(phrases)
    { }

    QString translate(const char*, const char* sourceText, const char*, int) const override
    {
        return m_phrases.value(sourceText); // null: the source text is shown
    }
    bool isEmpty() const override { return m_phrases.isEmpty(); }

private:
    QHash<QByteArray, QString> m_phrases;
};
