#pragma once

#include <QValidator>

/** What the text of a key pad may hold: certain characters only, and no more than so many bytes. */
class CPadValidator : public QValidator
{
    Q_OBJECT

public:
    explicit CPadValidator(QObject* parent)
        : QValidator(parent)
    { }

    /** The only characters; empty for any. */
    void setAllowed(const QString& characters) { m_allowed = characters; }
    /** Most bytes in UTF-8, 0 for no limit. */
    void setMaxBytes(int bytes) { m_maxBytes = bytes; }
    int maxBytes() const { return m_maxBytes; }

    State validate(QString& text, int& cursor) const override;

    /** As much of the beginning of a text as the bytes hold in UTF-8, whole characters; all of it for 0. */
    static QString cutToBytes(const QString& text, int bytes);

private:
    QString m_allowed;
    int m_maxBytes = 0;
};
