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
constexpr int TitleHeight = 48;
constexpr int TitleTextSize = 24;
constexpr int TextSize = 18;
constexpr int Margin = 24;
constexpr int NameWidth = 236;
constexpr int RowHeight = 40;
constexpr int PictureSize = 60;
constexpr int PictureInset = 4; // clear edge of the picture, so that its plate stands above the texts
constexpr int BarHeight = 29;
constexpr int Gap = 8;
constexpr int ButtonWidth = 120;
constexpr int ButtonHeight = 42;

} // namespace

CPowerMonitor::CPowerMonitor(QWidget* parent)
    : CDialog(parent)
{
    initialize();
}

void CPowerMonitor::initialize()
{
    setObjectName(QStringLiteral("powerMonitor"));
    m_pTitleLabel = addLabel("title");
    m_pPowerSrcNameLabel = addLabel("sourceName");
    m_pBattery = new CStatusIcon(this);
    m_pBattery->setObjectName(QStringLiteral("battery"));
    m_pBattery->setIconSize(PictureSize, PictureSize);
    m_pBattery->setAttribute(Qt::WA_TransparentForMouseEvents); // it tells and does nothing
    m_pBattStatNameLabel = addLabel("stateName");
    m_pBattStatLabel = addLabel("state");
    m_pPowerLvlBar = new CProgressBar(this);
    m_pPowerLvlBar->setObjectName(QStringLiteral("level"));
    m_pPowerLvlBar->setRange(0, 100);
    m_pBattCapNameLabel = addLabel("capacityName");
    m_pBattCapLabel = addLabel("capacity");
    m_pBattTimeTitle = addLabel("timeName");
    m_pBattTimeValue = addLabel("time");
    m_pBtnWidget = new CWidget(this);
    m_pBtnOk = new CPushButton(m_pBtnWidget);
    m_pBtnOk->setObjectName(QStringLiteral("ok"));
    connect(m_pBtnOk, &QAbstractButton::clicked, this, &CPowerMonitor::onOk);

    setBackgroundColor(CResourceMan::getColor(CResourceMan::DlgBgColor));
    setTextColor(CWidgetStyle::getColor(CWidgetStyle::ColorTextDark));
    setBorderColor(CResourceMan::getColor(CResourceMan::DlgBorderColor));
    setBorderWidth(CResourceMan::getWidth(CResourceMan::DlgBorderWidth));
    m_pTitleLabel->setTextSize(TitleTextSize);
    m_pTitleLabel->setBold(true);
    m_pTitleLabel->setAlignment(Qt::AlignCenter);
    m_pTitleLabel->setBackgroundColor(CWidgetStyle::ColorTitle);
    setTitleLabel(m_pTitleLabel);
    m_pTitleLabel->setTextColor(CWidgetStyle::ColorTextLight);
    m_pPowerLvlBar->setBorderColor(QColor(Qt::gray));
    m_pPowerLvlBar->setBarColor(CWidgetStyle::getColor(CWidgetStyle::ColorButton));
    m_pBtnOk->setQuiet();

    translate();
    updatePowerStatus(m_status);
}

CLabel* CPowerMonitor::addLabel(const char* objectName)
{
    auto* label = new CLabel(this);
    label->setObjectName(QLatin1String(objectName));
    label->setTextSize(TextSize);
    return label;
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

void CPowerMonitor::setBackgroundColor(const QColor& color)
{
    CDialog::setBackgroundColor(color);
    for (CLabel* label : findChildren<CLabel*>())
        label->setBackgroundColor(color);
}

void CPowerMonitor::setTextColor(const QColor& color)
{
    for (CLabel* label : findChildren<CLabel*>())
        label->setTextColor(color);
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

void CPowerMonitor::onOk()
{
    accept();
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
    int top = inner.top();
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

    m_pTitleLabel->setGeometry(inner.left(), top, inner.width(), TitleHeight);
    top += TitleHeight + Gap;
    placeRow(m_pPowerSrcNameLabel, m_pBattery, PictureSize);
    placeRow(m_pBattStatNameLabel, m_pBattStatLabel, RowHeight);
    if (!m_pPowerLvlBar->isHidden()) {
        m_pPowerLvlBar->setGeometry(nameLeft, top + Gap / 2, right - nameLeft, BarHeight);
        top += BarHeight + Gap;
    }
    placeRow(m_pBattCapNameLabel, m_pBattCapLabel, RowHeight);
    placeRow(m_pBattTimeTitle, m_pBattTimeValue, RowHeight);
    top += Gap;
    m_pBtnWidget->setGeometry(inner.left(), top, inner.width(), ButtonHeight + 2 * Gap);
    m_pBtnOk->setGeometry((inner.width() - ButtonWidth) / 2, 0, ButtonWidth, ButtonHeight);
    return top + ButtonHeight + 2 * Gap + (rect().bottom() - inner.bottom());
}
