#include "widgets/keypad/padvalidator.h"

#include <algorithm>

QValidator::State CPadValidator::validate(QString& text, int&) const
{
    const bool isShort = m_maxBytes <= 0 || text.toUtf8().size() <= m_maxBytes;
    const bool isAllowed = m_allowed.isEmpty()
        || std::all_of(text.cbegin(), text.cend(), [this](QChar sign) { return m_allowed.contains(sign); });
    return isShort && isAllowed ? Acceptable : Invalid;
}

QString CPadValidator::cutToBytes(const QString& text, int bytes)
{
    QString cut = text;
    while (bytes > 0 && cut.toUtf8().size() > bytes)
        cut.chop(cut.size() > 1 && cut.at(cut.size() - 1).isLowSurrogate() ? 2 : 1);
    return cut;
}
