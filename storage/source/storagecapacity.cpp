#include "storagecapacity.h"

#include <QFile>

#include <cerrno>
#include <limits>
#include <sys/statvfs.h>

int toBlocks(quint64 units, quint64 unitSize, int blockSize)
{
    // 128 bits: a broken file system may report anything.
    __extension__ using Bytes = unsigned __int128;
    const Bytes blocks = Bytes(units) * unitSize / static_cast<unsigned>(blockSize);
    constexpr int Most = std::numeric_limits<int>::max();
    return blocks > Bytes(Most) ? Most : static_cast<int>(blocks);
}

StorageCapacity measureCapacity(const QString& path, int blockSize)
{
    struct statvfs figures = {};
    int result;
    do {
        result = ::statvfs(QFile::encodeName(path).constData(), &figures);
    } while (result != 0 && errno == EINTR);
    if (result != 0)
        return {};
    const quint64 unit = figures.f_frsize ? figures.f_frsize : figures.f_bsize;
    const quint64 usedUnits = figures.f_blocks > figures.f_bfree ? figures.f_blocks - figures.f_bfree : 0;
    return {toBlocks(usedUnits, unit, blockSize), toBlocks(figures.f_bavail, unit, blockSize)};
}

StorageStatus withCapacities(
    StorageStatus record, const StorageCapacity& disk, const StorageCapacity& usbDrive)
{
    record.diskUsed = disk.used;
    record.diskAvail = disk.avail;
    record.bIsUSBDPlugged = record.bIsMounted;
    record.USBDUsed = record.bIsMounted ? usbDrive.used : 0;
    record.USBDAvail = record.bIsMounted ? usbDrive.avail : 0;
    return record;
}
