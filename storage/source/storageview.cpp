#include "storageview.h"

#include <QCoreApplication>

namespace {

StorageFigures figuresOf(int used, int avail)
{
    if (used == UnknownBlocks || avail == UnknownBlocks) {
        const QString unknown = QStringLiteral("---");
        return {unknown, unknown, unknown, unknown};
    }
    const qint64 total = qint64(used) + avail;
    const qint64 ratio = total < 1 ? 0 : qint64(used) * 100 / total;
    return {QString::number(total), QString::number(used), QString::number(avail),
        QStringLiteral("%1 %").arg(ratio)};
}

} // namespace

StorageView storageView(const StorageStatus& status)
{
    StorageView view;
    view.disk = figuresOf(status.diskUsed, status.diskAvail);
    view.bIsUSBDShown = status.bIsUSBDPlugged;
    view.usbdState = QT_TRANSLATE_NOOP("CStorageMonitor", "NO USB Drive detected");
    if (view.bIsUSBDShown) {
        view.usbd = figuresOf(status.USBDUsed, status.USBDAvail);
        view.usbdState = QT_TRANSLATE_NOOP("CStorageMonitor", "USB Drive is in use");
    }
    return view;
}
