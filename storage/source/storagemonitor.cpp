#include "storagemonitor.h"

#include "resourceman.h"
#include "storageview.h"
#include "widgets/label/label.h"
#include "widgets/picture/picture.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/widgetstyle/widgetstyle.h"

namespace {

// Pixels
constexpr int Width = 628;
constexpr int RowHeight = 36;
constexpr int Margin = 14;
constexpr int ValueWidth = 108; // ten digits
constexpr int UsbButtonWidth = 72;
constexpr int UsbButtonHeight = 48;

} // namespace

CStorageMonitor::CStorageMonitor(QWidget* parent)
    : CInfoPage(parent)
    , m_rowHeight(RowHeight)
{
    initialize();
}

void CStorageMonitor::initialize()
{
    setObjectName(QStringLiteral("storageMonitor"));
    m_pStorageInfoLabel = addLabel(QStringLiteral("disk"));
    m_pUSBDriveLabel = addLabel(QStringLiteral("usbd"));
    createRow(m_pDiskBlocksTitle, m_pDiskBlocksValue, "diskBlocks");
    createRow(m_pDiskUsedTitle, m_pDiskUsedValue, "diskUsed");
    createRow(m_pDiskAvailTitle, m_pDiskAvailValue, "diskAvail");
    createRow(m_pDiskUsedRatioTitle, m_pDiskUsedRatioValue, "diskUsedRatio");
    createRow(m_pUSBDBlocksTitle, m_pUSBDBlocksValue, "usbdBlocks");
    createRow(m_pUSBDUsedTitle, m_pUSBDUsedValue, "usbdUsed");
    createRow(m_pUSBDAvailTitle, m_pUSBDAvailValue, "usbdAvail");
    createRow(m_pUSBDUsedRatioTitle, m_pUSBDUsedRatioValue, "usbdUsedRatio");
    m_pSeparator = new CWidget(this);
    m_pInstallUSBDriver = new CPushButton(m_pBtnWidget);
    m_pInstallUSBDriver->setObjectName(QStringLiteral("usbDrive"));
    m_pInstallUSBDriver->setExtraAttribute(CPushButton::ReleaseBackground,
        QPixmap::fromImage(readPicture(QStringLiteral(":/images/remove_usb_release.png"))));
    m_pInstallUSBDriver->setExtraAttribute(CPushButton::PressBackground,
        QPixmap::fromImage(readPicture(QStringLiteral(":/images/remove_usb_pushed.png"))));
    connect(m_pInstallUSBDriver, &QAbstractButton::clicked, this, &CStorageMonitor::onUSBDrive);

    const int border = CResourceMan::getWidth(CResourceMan::DlgBorderWidth);
    dress(CResourceMan::getColor(CResourceMan::DlgBgColor),
        CResourceMan::getColor(CResourceMan::DlgBorderColor), border);
    m_pSeparator->setBackgroundColor(CResourceMan::getColor(CResourceMan::DlgBorderColor));
    m_pStorageInfoLabel->setBold(true);
    m_pUSBDriveLabel->setBold(true);

    const int groupHeight = (1 + static_cast<int>(diskRows().size())) * m_rowHeight;
    resize(Width, 2 * border + TitleHeight + Gap + groupHeight + Gap + UsbButtonHeight + 2 * Gap);
    translate();
    updateStorageStatus(m_status);
}

void CStorageMonitor::createRow(CLabel*& title, CLabel*& value, const char* objectName)
{
    title = addLabel(QLatin1String(objectName) + QLatin1String("Name"));
    value = addLabel(QLatin1String(objectName));
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

int CStorageMonitor::exec(const StorageStatus& status)
{
    translate();
    updateStorageStatus(status);
    return exec();
}

void CStorageMonitor::updateStorageStatus(const StorageStatus& status)
{
    m_status = status;
    const StorageView view = storageView(status);
    bIsUSBDiskMounted = view.bIsUSBDShown;
    showFigures(view.disk, diskRows());
    showFigures(view.usbd, usbdRows());
    m_pUSBDriveLabel->setText(tr(view.usbdState));
    for (const Row& row : usbdRows()) {
        row.title->setVisible(bIsUSBDiskMounted);
        row.value->setVisible(bIsUSBDiskMounted);
    }
    m_pInstallUSBDriver->setVisible(bIsUSBDiskMounted);
}

void CStorageMonitor::showFigures(const StorageFigures& figures, const Rows& rows)
{
    const QString* const texts[] = {&figures.blocks, &figures.used, &figures.avail, &figures.usedRatio};
    for (size_t i = 0; i < rows.size(); ++i)
        rows[i].value->setText(*texts[i]);
}

CStorageMonitor::Rows CStorageMonitor::diskRows() const
{
    return {{{m_pDiskBlocksTitle, m_pDiskBlocksValue}, {m_pDiskUsedTitle, m_pDiskUsedValue},
        {m_pDiskAvailTitle, m_pDiskAvailValue}, {m_pDiskUsedRatioTitle, m_pDiskUsedRatioValue}}};
}

CStorageMonitor::Rows CStorageMonitor::usbdRows() const
{
    return {{{m_pUSBDBlocksTitle, m_pUSBDBlocksValue}, {m_pUSBDUsedTitle, m_pUSBDUsedValue},
        {m_pUSBDAvailTitle, m_pUSBDAvailValue}, {m_pUSBDUsedRatioTitle, m_pUSBDUsedRatioValue}}};
}

void CStorageMonitor::setStorageTotal(int total)
{
    m_storeTotal = total;
    refresh();
}

void CStorageMonitor::setStorageUsed(int used)
{
    m_storeUsed = used;
    refresh();
}

void CStorageMonitor::refresh() { }

void CStorageMonitor::translate()
{
    m_pTitleLabel->setText(tr("Storage Information"));
    m_pStorageInfoLabel->setText(tr("Internal Storage"));
    m_pUSBDriveLabel->setText(tr("USB Drive detected"));
    m_pDiskBlocksTitle->setText(
        tr("Storage Information Loaded")); // never seen; the next text takes its place
    m_pDiskBlocksTitle->setText(tr("1K blocks"));
    m_pUSBDBlocksTitle->setText(tr("4K blocks"));
    for (const Rows& rows : {diskRows(), usbdRows()}) {
        rows[1].title->setText(tr("Used"));
        rows[2].title->setText(tr("Available"));
        rows[3].title->setText(tr("Used Ratio"));
    }
    m_pBtnOk->setText(tr("OK"));
    CDialog::translate();
    if (isVisible())
        updateStorageStatus(m_status);
}

void CStorageMonitor::onUSBDrive()
{
    if (bIsUSBDiskMounted)
        emit removeUSBDriveSig();
    else
        emit installUSBDriveSig();
}

void CStorageMonitor::resizeEvent(QResizeEvent* event)
{
    CDialog::resizeEvent(event);
    const QRect inner = innerRect();
    const int groupTop = inner.top() + TitleHeight + Gap;
    const int groupHeight = (1 + static_cast<int>(diskRows().size())) * m_rowHeight;
    const QSize groupSize((inner.width() - 4 * Margin) / 2, groupHeight);
    const int middle = inner.center().x();
    placeGroup(QRect(QPoint(inner.left() + Margin, groupTop), groupSize), m_pStorageInfoLabel, diskRows());
    placeGroup(QRect(QPoint(middle + Margin, groupTop), groupSize), m_pUSBDriveLabel, usbdRows());
    m_pSeparator->setGeometry(middle, groupTop + Gap, 1, groupHeight - Gap);

    placeFrame(groupTop + groupHeight + Gap, UsbButtonHeight);
    m_pInstallUSBDriver->setGeometry(
        inner.width() - Margin - UsbButtonWidth, 0, UsbButtonWidth, UsbButtonHeight);
}

void CStorageMonitor::placeGroup(const QRect& area, CLabel* heading, const Rows& rows)
{
    heading->setGeometry(area.left(), area.top(), area.width(), m_rowHeight);
    int top = area.top() + m_rowHeight;
    for (const Row& row : rows) {
        row.title->setGeometry(area.left(), top, area.width() - ValueWidth - Gap, m_rowHeight);
        row.value->setGeometry(area.right() + 1 - ValueWidth, top, ValueWidth, m_rowHeight);
        top += m_rowHeight;
    }
}
