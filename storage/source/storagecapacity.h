#pragma once

#include "devicestatus.h"

#include <QString>

/** Measures how full the unit's storage is. The calls ask the file system and may wait for a slow drive. */

constexpr int DiskBlock = 1024; ///< bytes of the blocks that the internal storage is counted in
constexpr int USBDriveBlock = 4096; ///< bytes of the blocks that the USB drive is counted in

/**
 * A number of units of `unitSize` bytes in whole blocks of `blockSize` bytes; more than an int holds is the
 * largest int. Pure.
 */
int toBlocks(quint64 units, quint64 unitSize, int blockSize);

/**
 * Used and available blocks of the file system that holds `path`. What only the superuser may use is neither.
 * @return false, with both 0, when it cannot be measured
 */
bool measureCapacity(const QString& path, int blockSize, int& used, int& avail);

/**
 * Completes the monitor's record for the storage page: the internal storage, and the USB drive exactly when
 * it is mounted; bIsUSBDPlugged says whether its figures hold. What cannot be measured is 0.
 */
void measureStorage(StorageStatus& status, const QString& diskPath = QStringLiteral("/home"),
    const QString& usbMountPoint = QStringLiteral("/home/usbd"));
