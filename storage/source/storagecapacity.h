#pragma once

#include "devicestatus.h"

#include <QString>

/** Measures how full the unit's storage is. The calls ask the file system and may wait for a slow drive. */

constexpr int DiskBlock = 1024; ///< bytes of the blocks that the internal storage is counted in
constexpr int USBDriveBlock = 4096; ///< bytes of the blocks that the USB drive is counted in

/** How full a storage is, in blocks; UnknownBlocks in both where nobody could tell. */
struct StorageCapacity
{
    int used = UnknownBlocks;
    int avail = UnknownBlocks;
};

/**
 * A number of units of `unitSize` bytes in whole blocks of `blockSize` bytes; more than an int holds is the
 * largest int. Pure.
 */
int toBlocks(quint64 units, quint64 unitSize, int blockSize);

/**
 * Used and available blocks of the file system that holds `path`; unknown when it cannot be measured. What
 * only the superuser may use is neither.
 */
StorageCapacity measureCapacity(const QString& path, int blockSize);

/**
 * The monitor's record completed for the storage page. A USB drive is there exactly when it is mounted,
 * measured or not: one that is not in use has no figures. Pure.
 */
StorageStatus withCapacities(
    StorageStatus record, const StorageCapacity& disk, const StorageCapacity& usbDrive);
