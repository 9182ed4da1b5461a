#include "appstatusindicator.h"

#include "resourceman.h"
#include "sigtransfer.h"
#include "widgets/picture/picture.h"
#include "widgets/statusicon/statusicon.h"

namespace {

constexpr int INDICATOR_WIDTH = 300;
constexpr int RIGHT_MARGIN = 3;

// Rows of the strip, by y.
constexpr int WIFI_NOT_CONNECTED = 240;
constexpr int WIFI_FULL = 600;
constexpr struct
{
    int strongest; // signal strength up to which the row holds
    int y;
} WIFI_ROWS[] = {{0, 300}, {10, 360}, {25, 420}, {50, 480}, {75, 540}};
constexpr int WIFI_SLICE = 60;

void setPictures(CStatusIcon* icon, const QPixmap& press, const QPixmap& release, const QPixmap& select)
{
    icon->setExtraAttribute(CPushButton::PressBackground, press);
    icon->setExtraAttribute(CPushButton::ReleaseBackground, release);
    icon->setExtraAttribute(CPushButton::SelectBackground, select);
}

} // namespace

CAppStatusIndicator::CAppStatusIndicator(QWidget* parent)
    : CWidget(parent)
{
    initialize();
}

CStatusIcon* CAppStatusIndicator::addIcon(const char* name, void (CAppStatusIndicator::*triggered)())
{
    auto* icon = new CStatusIcon(this);
    icon->setObjectName(QLatin1String(name));
    icon->setIconSize(m_iconSize.width(), m_iconSize.height());
    icon->hide();
    connect(icon, &CStatusIcon::triggered, this, triggered);
    return icon;
}

void CAppStatusIndicator::initialize()
{
    setObjectName(QStringLiteral("statusIndicator"));

    m_pHomeIcon = addIcon("homeButton", &CAppStatusIndicator::homeTriggered);
    m_pHomeIcon->setBackgroundImage(CResourceMan::getHomeStatus(CResourceMan::HomeDefault));
    setPictures(m_pHomeIcon, CResourceMan::getHomeStatus(CResourceMan::HomePress),
        CResourceMan::getHomeStatus(CResourceMan::HomeRelease),
        CResourceMan::getHomeStatus(CResourceMan::HomeSelect));

    m_pCloseIcon = addIcon("closeButton", &CAppStatusIndicator::closeTriggered);
    m_pCloseIcon->setBackgroundImage(CResourceMan::getCloseStatus(CResourceMan::CloseDefault));
    setPictures(m_pCloseIcon, CResourceMan::getCloseStatus(CResourceMan::ClosePress),
        CResourceMan::getCloseStatus(CResourceMan::CloseRelease),
        CResourceMan::getCloseStatus(CResourceMan::CloseSelect));

    m_pWifiWizIcon = addIcon("wifiWizardButton", &CAppStatusIndicator::wifiWiziTriggered);

    if (g_pSigTransfer) {
        connect(g_pSigTransfer, &CSigTransfer::lockStateChanged, this, &CAppStatusIndicator::setUILocked);
        connect(g_pSigTransfer, &CSigTransfer::wifiStatusChanged, this,
            &CAppStatusIndicator::updateWifiWizStatus);
    }
    setFixedSize(INDICATOR_WIDTH, m_iconSize.height());
}

void CAppStatusIndicator::setStatusVisible(StatusType type, bool visible)
{
    if (type == StatusClose)
        m_pCloseIcon->setVisible(visible);
    else if (type == StatusHome)
        m_pHomeIcon->setVisible(visible);
    update();
}

bool CAppStatusIndicator::isStatusVisible(StatusType type) const
{
    return (type == StatusClose && !m_pCloseIcon->isHidden())
        || (type == StatusHome && !m_pHomeIcon->isHidden());
}

void CAppStatusIndicator::setIconSize(int w, int h)
{
    m_iconSize = QSize(w, h);
}

void CAppStatusIndicator::setUILocked(bool locked)
{
    setStatusVisible(StatusUILock, locked);
}

int CAppStatusIndicator::wifiRow(const WIFIStatus& status)
{
    if (!status.bIsConnected)
        return WIFI_NOT_CONNECTED;
    for (const auto& row : WIFI_ROWS) {
        if (status.signalStrength <= row.strongest)
            return row.y;
    }
    return WIFI_FULL;
}

void CAppStatusIndicator::updateWifiWizStatus(const WIFIStatus& status)
{
    m_pWifiWizIcon->setVisible(status.bIsPlugged);
    if (!status.bIsPlugged)
        return;
    // A record comes every second: without a change it must cost neither a decoded picture nor a repaint.
    const int y = wifiRow(status);
    if (y == m_wifiRow)
        return;
    m_wifiRow = y;

    const QImage row = readPicture(
        QStringLiteral(":/images/TB_WIFI_11states.png"), QRect(0, y, 3 * WIFI_SLICE, WIFI_SLICE));
    const auto slice = [&row](int column) {
        return QPixmap::fromImage(row.copy(column * WIFI_SLICE, 0, WIFI_SLICE, WIFI_SLICE));
    };
    m_pWifiWizIcon->setIcon(slice(0));
    setPictures(m_pWifiWizIcon, slice(1), slice(0), slice(2));
    // The button takes over the pictures of its focus state when that state is set.
    m_pWifiWizIcon->setArrowKeyFocus(m_pWifiWizIcon->hasArrowKeyFocus());
}

void CAppStatusIndicator::resizeEvent(QResizeEvent* event)
{
    CWidget::resizeEvent(event);
    CStatusIcon* const fromRight[] = {m_pCloseIcon, m_pHomeIcon, m_pWifiWizIcon};
    int x = rect().right() - RIGHT_MARGIN;
    for (CStatusIcon* icon : fromRight) {
        x -= m_iconSize.width();
        icon->setIconSize(m_iconSize.width(), m_iconSize.height());
        icon->move(x, 0);
    }
}
