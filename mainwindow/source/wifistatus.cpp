#include "wifistatus.h"

namespace {

bool says(const QString& line, const char* words)
{
    return line.contains(QLatin1String(words), Qt::CaseInsensitive);
}

} // namespace

QString getContent(const QString& line, const QString& key)
{
    int begin = line.indexOf(key);
    if (begin < 0)
        return QString();
    begin += key.size();
    while (begin < line.size() && line.at(begin) == QLatin1Char(' '))
        ++begin;
    int end = begin;
    while (end < line.size() && line.at(end) != QLatin1Char(' ') && line.at(end) != QLatin1Char('/'))
        ++end;
    return line.mid(begin, end - begin);
}

bool applyIwconfigLine(WIFIStatus& status, const QString& line)
{
    QString text = line;
    text.remove(QLatin1Char('\r')).remove(QLatin1Char('\n'));

    if (says(text, "No such device"))
        return false;
    if (says(text, "Ralink STA") || says(text, "Access Point") || says(text, "Not-Associated"))
        status.bIsPlugged = true;
    if (says(text, "Link Quality="))
        status.signalStrength = getContent(text, QStringLiteral("Link Quality=")).toInt();
    if (says(text, "Mode:") && !says(text, "Security mode:"))
        status.mode = getContent(text, QStringLiteral("Mode:"));
    if (says(text, "Access Point:")) {
        const QString address = getContent(text, QStringLiteral("Access Point:"));
        if (!says(address, "Not-Associated")) {
            status.bIsConnected = true;
            status.bssid = address;
        }
    }
    return true;
}
