#pragma once

#include "devicestatus.h"

#include <QString>

/** The four figures of one storage as the page reads them; null when there is nothing to read. */
struct StorageFigures
{
    QString blocks;
    QString used;
    QString avail;
    QString usedRatio;
};

/** What the storage page shows for a storage record. */
struct StorageView
{
    StorageFigures disk;
    bool bIsUSBDShown = false; ///< rows and button of the USB drive
    StorageFigures usbd;
    const char* usbdState = ""; ///< source text, to be translated in the context "CStorageMonitor"
};

/**
 * Numbers are shown in the blocks of the record, the ratio truncated to whole per cent; figures that nobody
 * knows are dashes. Pure.
 */
StorageView storageView(const StorageStatus& status);
