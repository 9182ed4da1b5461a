#include "powermonitor.h"

#include "powerview.h"
#include "resourceman.h"
#include "widgets/label/label.h"
#include "widgets/progressbar/progressbar.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/statusicon/statusicon.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <algorithm>

namespace {

// Pixels
constexpr int Width = 540;
constexpr int Margin = 24;
constexpr int NameWidth = 236;
constexpr int RowHeight = 40;
constexpr int PictureSize = 60;
constexpr int PictureInset = 4; // clear edge of the picture, so that its plate stands above the texts
constexpr int BarHeight = 29;

} // namespace

CPowerMonitor::CPowerMonitor(QWidget* parent)
    : CInfoPage(parent)
{
    initialize();
}

void CPowerMonitor::initialize()
{
    setObjectName(QStringLiteral("powerMonitor"));
    m_pPowerSrcNameLabel = addLabel(QStringLiteral("sourceName"));
    m_pBattery = new CStatusIcon(this);
    m_pBattery->setObjectName(QStringLiteral("battery"));
    m_pBattery->setIconSize(PictureSize, PictureSize);
    m_pBattery->setAttribute(Qt::WA_TransparentForMouseEvents); // it tells and does nothing
    m_pBattStatNameLabel = addLabel(QStringLiteral("stateName"));
    m_pBattStatLabel = addLabel(QStringLiteral("state"));
    m_pPowerLvlBar = new CProgressBar(this);
    m_pPowerLvlBar->setObjectName(QStringLiteral("level"));
    m_pPowerLvlBar->setRange(0, 100);
    m_pBattCapNameLabel = addLabel(QStringLiteral("capacityName"));
    m_pBattCapLabel = addLabel(QStringLiteral("capacity"));
    m_pBattTimeTitle = addLabel(QStringLiteral("timeName"));
    m_pBattTimeValue = addLabel(QStringLiteral("time"));

    dress(CResourceMan::getColor(CResourceMan::DlgBgColor),
        CResourceMan::getColor(CResourceMan::DlgBorderColor),
        CResourceMan::getWidth(CResourceMan::DlgBorderWidth));
    m_pPowerLvlBar->setBorderColor(Qt::gray);
    m_pPowerLvlBar->setBarColor(CWidgetStyle::ColorButton);

    translate();
    updatePowerStatus(m_status);
}

int CPowerMonitor::exec(const PowerStatus& status)
{
    translate();
    updatePowerStatus(status);
    return exec();
}

void CPowerMonitor::updatePowerStatus(const PowerStatus& status)
{
    m_status = status;
    setPowerSource(status.bIsBat);
    setPowerCapacity(status);
}

void CPowerMonitor::setPowerSource(bool) { }

void CPowerMonitor::setPowerCapacity(const PowerStatus& status)
{
    const PowerView view = powerView(status);
    bIsACPower = !status.bIsBat;
    for (QWidget* widget : {static_cast<QWidget*>(m_pPowerLvlBar), static_cast<QWidget*>(m_pBattCapNameLabel),
             static_cast<QWidget*>(m_pBattCapLabel), static_cast<QWidget*>(m_pBattStatNameLabel),
             static_cast<QWidget*>(m_pBattStatLabel)})
        widget->setVisible(view.bIsLevelShown);
    m_pBattTimeTitle->setVisible(view.bIsTimeShown);
    m_pBattTimeValue->setVisible(view.bIsTimeShown);
    m_pBattery->setIcon(CResourceMan::getBatteryStatus(view.battery).icoNormal);
    if (view.bIsLevelShown) {
        setPowerRemainTime(status.remainTime);
        m_powerLevel = view.level;
        m_pPowerLvlBar->setValue(std::max(0, m_powerLevel));
        m_pBattCapLabel->setText(QStringLiteral("%1%").arg(m_powerLevel));
        m_pBattStatLabel->setText(tr(view.state));
    }
    fitToRows();
}

void CPowerMonitor::setPowerRemainTime(int minutes)
{
    m_pBattTimeValue->setText(remainTimeText(minutes));
}

void CPowerMonitor::translate()
{
    m_pTitleLabel->setText(tr("Power Information"));
    m_pPowerSrcNameLabel->setText(tr("Power Source"));
    m_pBattStatNameLabel->setText(tr("Battery Status"));
    m_pBattStatLabel->setText(tr("Fully Charged"));
    m_pBattCapNameLabel->setText(tr("Remaining Capacity"));
    m_pBattTimeTitle->setText(tr("Remaining Time"));
    m_pBtnOk->setText(tr("OK"));
    CDialog::translate();
    if (isVisible())
        updatePowerStatus(m_status);
}

void CPowerMonitor::resizeEvent(QResizeEvent* event)
{
    CDialog::resizeEvent(event);
    layoutRows();
}

void CPowerMonitor::fitToRows()
{
    const QPoint center = geometry().center();
    resize(Width, layoutRows());
    // An owner that has placed the page, or sees it, finds its middle where it was.
    if (isVisible() || testAttribute(Qt::WA_Moved))
        move(center - rect().center());
}

int CPowerMonitor::layoutRows()
{
    const QRect inner = innerRect();
    const int nameLeft = inner.left() + Margin;
    const int valueLeft = nameLeft + NameWidth;
    const int right = inner.right() + 1 - Margin;
    int top = inner.top() + TitleHeight + Gap;
    const auto placeRow = [&](QWidget* name, QWidget* value, int height) {
        if (name->isHidden())
            return;
        name->setGeometry(nameLeft, top, valueLeft - nameLeft - Gap, height);
        if (value == m_pBattery)
            value->move(valueLeft - PictureInset, top);
        else
            value->setGeometry(valueLeft, top, right - valueLeft, height);
        top += height;
    };

    placeRow(m_pPowerSrcNameLabel, m_pBattery, PictureSize);
    placeRow(m_pBattStatNameLabel, m_pBattStatLabel, RowHeight);
    if (!m_pPowerLvlBar->isHidden()) {
        m_pPowerLvlBar->setGeometry(nameLeft, top + Gap / 2, right - nameLeft, BarHeight);
        top += BarHeight + Gap;
    }
    placeRow(m_pBattCapNameLabel, m_pBattCapLabel, RowHeight);
    placeRow(m_pBattTimeTitle, m_pBattTimeValue, RowHeight);
    return placeFrame(top + Gap);
}
