#include "hostaddress.h"

#include <QByteArray>
#include <QStringList>

#include <algorithm>
#include <arpa/inet.h>

namespace {

constexpr int NAME_LIMIT = 253; // characters of a host name
constexpr int LABEL_LIMIT = 63; // characters between two dots

bool isLetterOrDigit(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z'))
        || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'))
        || (c >= QLatin1Char('0') && c <= QLatin1Char('9'));
}

bool isLabel(const QString& label)
{
    return !label.isEmpty() && label.size() <= LABEL_LIMIT && isLetterOrDigit(label.front())
        && isLetterOrDigit(label.back()) && std::all_of(label.begin(), label.end(), [](QChar c) {
               return isLetterOrDigit(c) || c == QLatin1Char('-') || c == QLatin1Char('_');
           });
}

bool isHostName(const QString& text)
{
    const QStringList labels = text.split(QLatin1Char('.'));
    // A last label of digits alone makes it a malformed IPv4 address, not a name.
    bool isNumber = false;
    labels.last().toUInt(&isNumber);
    return text.size() <= NAME_LIMIT && !isNumber && std::all_of(labels.begin(), labels.end(), isLabel);
}

bool isAddress(int family, const QString& text)
{
    unsigned char address[sizeof(in6_addr)];
    return ::inet_pton(family, text.toLatin1().constData(), address) == 1;
}

} // namespace

bool isHostAddress(const QString& text)
{
    if (isAddress(AF_INET, text) || isHostName(text))
        return true;
    const QString zone = text.section(QLatin1Char('%'), 1);
    return isAddress(AF_INET6, text.section(QLatin1Char('%'), 0, 0))
        && (!text.contains(QLatin1Char('%')) || isLabel(zone));
}
