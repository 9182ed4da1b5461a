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

/** An address of a network interface that is up; empty for one without an address. */
struct InterfaceAddress
{
    QString interfaceName;
    QString address; ///< IPv4 or IPv6 in numbers
};

/** Name and release of the running kernel. */
QString readKernel();
/** From the text of "/proc/meminfo". */
MemoryFacts parseMemory(const QByteArray& meminfo);
/** Memory as of now. */
MemoryFacts readMemory();
/** Seconds since the kernel started, time asleep included; -1 when there is no such clock. */
qint64 readUptime();
/** All addresses by interface, IPv4 before IPv6, the loopback interface last. */
QVector<InterfaceAddress> readAddresses();
