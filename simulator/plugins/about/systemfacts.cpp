#include "systemfacts.h"

#include <QFile>

#include <algorithm>
#include <arpa/inet.h>
#include <ctime>
#include <ifaddrs.h>
#include <memory>
#include <net/if.h>
#include <netinet/in.h>
#include <sys/utsname.h>

namespace {

/** Numbers of an address; empty for what is no IP address. */
QString addressText(const sockaddr* address)
{
    if (!address || (address->sa_family != AF_INET && address->sa_family != AF_INET6))
        return {};
    const void* bytes = address->sa_family == AF_INET
        ? static_cast<const void*>(&reinterpret_cast<const sockaddr_in*>(address)->sin_addr)
        : static_cast<const void*>(&reinterpret_cast<const sockaddr_in6*>(address)->sin6_addr);
    char text[INET6_ADDRSTRLEN] = {};
    return ::inet_ntop(address->sa_family, bytes, text, sizeof text) ? QString::fromLatin1(text) : QString();
}

struct Interface
{
    QString name;
    QVector<InterfaceAddress> v4;
    QVector<InterfaceAddress> v6;
};

} // namespace

QString readKernel()
{
    utsname names{};
    if (::uname(&names) != 0)
        return {};
    return QString::fromLocal8Bit(names.sysname) + QLatin1Char(' ') + QString::fromLocal8Bit(names.release);
}

MemoryFacts parseMemory(const QByteArray& meminfo)
{
    MemoryFacts facts;
    const struct
    {
        const char* key;
        qint64& value;
    } fields[] = {{"MemTotal:", facts.total}, {"MemFree:", facts.free}, {"MemAvailable:", facts.available}};
    for (const QByteArray& line : meminfo.split('\n')) {
        const QList<QByteArray> words = line.simplified().split(' ');
        for (const auto& field : fields) {
            bool isNumber = false;
            const qint64 value = words.value(1).toLongLong(&isNumber);
            if (words.first() == field.key && isNumber)
                field.value = value;
        }
    }
    return facts;
}

MemoryFacts readMemory()
{
    QFile file(QStringLiteral("/proc/meminfo"));
    return file.open(QIODevice::ReadOnly) ? parseMemory(file.readAll()) : MemoryFacts();
}

qint64 readUptime()
{
    timespec time{};
    return ::clock_gettime(CLOCK_BOOTTIME, &time) == 0 ? qint64(time.tv_sec) : -1;
}

QVector<InterfaceAddress> addressesOf(const ifaddrs* first)
{
    QVector<Interface> interfaces;
    for (const ifaddrs* entry = first; entry; entry = entry->ifa_next) {
        if (!(entry->ifa_flags & IFF_UP) || (entry->ifa_flags & IFF_LOOPBACK))
            continue;
        const QString name = QString::fromLocal8Bit(entry->ifa_name);
        auto found = std::find_if(interfaces.begin(), interfaces.end(),
            [&name](const Interface& known) { return known.name == name; });
        if (found == interfaces.end())
            found = interfaces.insert(found, {name, {}, {}});
        const QString address = addressText(entry->ifa_addr);
        if (address.isEmpty())
            continue;
        if (entry->ifa_addr->sa_family == AF_INET)
            found->v4 << InterfaceAddress{name, InterfaceAddress::IPv4, address};
        else
            found->v6 << InterfaceAddress{name, InterfaceAddress::IPv6, address};
    }

    QVector<InterfaceAddress> result;
    for (const Interface& known : qAsConst(interfaces)) {
        if (known.v4.isEmpty() && known.v6.isEmpty())
            result << InterfaceAddress{known.name, InterfaceAddress::NoAddress, QString()};
        result << known.v4 << known.v6;
    }
    return result;
}

QVector<InterfaceAddress> readAddresses()
{
    ifaddrs* first = nullptr;
    if (::getifaddrs(&first) != 0)
        return {};
    const std::unique_ptr<ifaddrs, decltype(&::freeifaddrs)> guard(first, &::freeifaddrs);
    return addressesOf(first);
}
