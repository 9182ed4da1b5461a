#pragma once

#include "devicestatus.h"
#include "widgets/infopage/infopage.h"

#include <array>

class CLabel;
class CPushButton;
class CWidget;
struct StorageFigures;

/**
 * The storage page: size, use and ratio of the internal storage, and of the USB drive when one is in use,
 * with a button that releases it. A modal dialog that its owner opens with a complete record
 * (CStorageMeter) and may refresh while it is up. The page changes nothing itself: the next record shows
 * what came of a request.
 *
 * Interface thread only. Owned by its Qt parent.
 */
class CStorageMonitor : public CInfoPage
{
    Q_OBJECT

public:
    explicit CStorageMonitor(QWidget* parent = nullptr);

    using CDialog::exec;
    /** Shows the record modally. @return the result of the dialog; it says nothing */
    int exec(const StorageStatus& status);

    /** Kept for the owner; they change nothing on the page. */
    void setStorageTotal(int total);
    void setStorageUsed(int used);

public slots:
    /** Takes over a new record. */
    void updateStorageStatus(const StorageStatus& status);
    /** Re-applies the texts; while the page is up also those of the record it shows. */
    void translate() override;
    /** The touch on the USB button: asks to release the drive in use, or to take one in. */
    void onUSBDrive();

signals:
    void installUSBDriveSig();
    void removeUSBDriveSig();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    /** A title and its value, side by side. */
    struct Row
    {
        CLabel* title;
        CLabel* value;
    };
    using Rows = std::array<Row, 4>;

    void initialize();
    void createRow(CLabel*& title, CLabel*& value, const char* objectName);
    void refresh();
    /** The rows of a storage, from blocks to ratio. */
    Rows diskRows() const;
    Rows usbdRows() const;
    void placeGroup(const QRect& area, CLabel* heading, const Rows& rows);
    static void showFigures(const StorageFigures& figures, const Rows& rows);

    int m_rowHeight; // pixels
    int m_storeTotal = 0;
    int m_storeUsed = 0;
    bool bIsUSBDiskMounted = false;
    StorageStatus m_status; // shown last
    CLabel* m_pStorageInfoLabel = nullptr; // heading of the internal storage
    CLabel* m_pUSBDriveLabel = nullptr; // heading of the USB drive
    CLabel* m_pDiskBlocksTitle = nullptr;
    CLabel* m_pDiskBlocksValue = nullptr;
    CLabel* m_pDiskUsedTitle = nullptr;
    CLabel* m_pDiskUsedValue = nullptr;
    CLabel* m_pDiskAvailTitle = nullptr;
    CLabel* m_pDiskAvailValue = nullptr;
    CLabel* m_pDiskUsedRatioTitle = nullptr;
    CLabel* m_pDiskUsedRatioValue = nullptr;
    CLabel* m_pUSBDBlocksTitle = nullptr;
    CLabel* m_pUSBDBlocksValue = nullptr;
    CLabel* m_pUSBDUsedTitle = nullptr;
    CLabel* m_pUSBDUsedValue = nullptr;
    CLabel* m_pUSBDAvailTitle = nullptr;
    CLabel* m_pUSBDAvailValue = nullptr;
    CLabel* m_pUSBDUsedRatioTitle = nullptr;
    CLabel* m_pUSBDUsedRatioValue = nullptr;
    CWidget* m_pSeparator = nullptr;
    CPushButton* m_pInstallUSBDriver = nullptr;
};
