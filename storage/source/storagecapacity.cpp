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

bool measureCapacity(const QString& path, int blockSize, int& used, int& avail)
{
    used = 0;
    avail = 0;
    struct statvfs figures = {};
    int result;
    do {
        result = ::statvfs(QFile::encodeName(path).constData(), &figures);
    } while (result != 0 && errno == EINTR);
    if (result != 0)
        return false;
    const quint64 unit = figures.f_frsize ? figures.f_frsize : figures.f_bsize;
    const quint64 usedUnits = figures.f_blocks > figures.f_bfree ? figures.f_blocks - figures.f_bfree : 0;
    used = toBlocks(usedUnits, unit, blockSize);
    avail = toBlocks(figures.f_bavail, unit, blockSize);
    return true;
}

void measureStorage(StorageStatus& status, const QString& diskPath, const QString& usbMountPoint)
{
    measureCapacity(diskPath, DiskBlock, status.diskUsed, status.diskAvail);
    status.USBDUsed = 0;
    status.USBDAvail = 0;
    status.bIsUSBDPlugged = status.bIsMounted
        && measureCapacity(usbMountPoint, USBDriveBlock, status.USBDUsed, status.USBDAvail);
}
