#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

/** Memory of the unit in KiB; -1 where the kernel does not tell. */
struct MemoryFacts
{
    qint64 total = -1;
    qint64 free = -1; ///< used for nothing at all
    qint64 available = -1; ///< what programs can still get: free, and what the kernel gives back at once
};

struct ifaddrs;

/** An address of a network interface that is up. */
struct InterfaceAddress
{
    enum Family { NoAddress, IPv4, IPv6 };

    QString interfaceName;
    Family family = NoAddress;
    QString address; ///< in numbers; empty for an interface without one
};

/** Name and release of the running kernel. */
QString readKernel();
/** From the text of "/proc/meminfo". */
MemoryFacts parseMemory(const QByteArray& meminfo);
/** Memory as of now. */
MemoryFacts readMemory();
/** Seconds since the kernel started, time asleep included; -1 when there is no such clock. */
qint64 readUptime();
/** From the system's list: by interface, IPv4 before IPv6. The loopback interface, by which nobody reaches
 * the unit, is left out. */
QVector<InterfaceAddress> addressesOf(const ifaddrs* first);
/** The addresses of this unit as of now. */
QVector<InterfaceAddress> readAddresses();
