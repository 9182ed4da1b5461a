#include "iptoolspage.h"

#include "hostaddress.h"
#include "outputview.h"
#include "widgets/checkbox/checkbox.h"
#include "widgets/label/label.h"
#include "widgets/messagebox/messagebox.h"
#include "widgets/parmlineedit/parmlineedit.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/widgetstyle/widgetstyle.h"

namespace {

constexpr int ADDRESS_LIMIT = 253; // characters of the longest host name

// Geometry in the working area, 640 by 400.
const QRect ADDRESS(16, 12, 608, 44);
const QRect PING(16, 66, 108, 44);
const QRect TRACE(134, 66, 108, 44);
const QRect STOP(252, 66, 108, 44);
const QRect BACKGROUND(376, 66, 248, 44);
const QRect OUTPUT(16, 120, 548, 234);
const QRect PAGE_UP(576, 120, 48, 112);
const QRect PAGE_DOWN(576, 242, 48, 112);
const QRect STATE(16, 360, 608, 28);
constexpr int ARROW_SIZE = 22;

} // namespace

CIpToolsPage::CIpToolsPage(CProbe* probe, QWidget* parent)
    : CWidget(parent)
    , m_pProbe(probe)
    , m_pAddress(new CParmLineEdit(QString(), probe->address(), this))
    , m_pBackground(new CCheckBox(this))
    , m_pPing(new CPushButton(this))
    , m_pTrace(new CPushButton(this))
    , m_pStop(new CPushButton(this))
    , m_pState(new CLabel(this))
    , m_pOutput(new COutputView(this))
    , m_pPageUp(new CPushButton(QStringLiteral("\u25b2"), this))
    , m_pPageDown(new CPushButton(QStringLiteral("\u25bc"), this))
{
    setObjectName(QStringLiteral("ipToolsPage"));

    const struct
    {
        QWidget* widget;
        const char* name;
        QRect geometry;
    } parts[] = {
        {m_pAddress, "address", ADDRESS},
        {m_pBackground, "background", BACKGROUND},
        {m_pPing, "ping", PING},
        {m_pTrace, "trace", TRACE},
        {m_pStop, "stop", STOP},
        {m_pState, "state", STATE},
        {m_pOutput, "output", OUTPUT},
        {m_pPageUp, "pageUp", PAGE_UP},
        {m_pPageDown, "pageDown", PAGE_DOWN},
    };
    for (const auto& part : parts) {
        part.widget->setObjectName(QLatin1String(part.name));
        part.widget->setGeometry(part.geometry);
    }
    m_pAddress->setSKPType(CKeyPadFactory::KeyPadAddress);
    m_pAddress->setMaxLength(ADDRESS_LIMIT);
    m_pState->setTextColor(CWidgetStyle::ColorTextMuted);
    m_pPageUp->setTextSize(ARROW_SIZE);
    m_pPageDown->setTextSize(ARROW_SIZE);
    m_pBackground->setChecked(probe->isBackground());

    connect(m_pBackground, &CCheckBox::toggled, m_pProbe, &CProbe::setBackground);
    connect(m_pPing, &CPushButton::clicked, this, [this] { run(CProbe::Ping); });
    connect(m_pTrace, &CPushButton::clicked, this, [this] { run(CProbe::Trace); });
    connect(m_pStop, &CPushButton::clicked, m_pProbe, &CProbe::stop);
    connect(m_pPageUp, &CPushButton::clicked, this, [this] { m_pOutput->scrollPages(-1); });
    connect(m_pPageDown, &CPushButton::clicked, this, [this] { m_pOutput->scrollPages(1); });
    connect(m_pOutput, &COutputView::scrolled, this, [this] {
        m_pPageUp->setEnabled(m_pOutput->canScrollBack());
        m_pPageDown->setEnabled(m_pOutput->canScrollOn());
    });
    connect(m_pProbe, &CProbe::changed, this, &CIpToolsPage::showRun);
    translate();
}

void CIpToolsPage::translate()
{
    m_pAddress->setCaption(tr("Address"));
    m_pBackground->setText(tr("Run in background"));
    m_pPing->setText(tr("Ping"));
    m_pTrace->setText(tr("Trace"));
    m_pStop->setText(tr("Stop"));
    CWidget::translate();
    showRun();
}

void CIpToolsPage::run(CProbe::Tool tool)
{
    const QString address = m_pAddress->text().trimmed();
    if (!isHostAddress(address)) {
        // A child of the window: the shell may take the page away while the box is up.
        CMessageBox box(
            tr("IP Tools"), tr("Please enter an IP address or a host name."), CMessageBox::Ok, window());
        box.setTitleBackgroundColor(CWidgetStyle::ColorAlert);
        box.exec();
        return;
    }
    m_pProbe->start(tool, address);
}

QString CIpToolsPage::stateText() const
{
    if (!m_pProbe->isRunning())
        return m_pProbe->lineCount() == 0 ? tr("Enter an address, then touch Ping or Trace.")
                                          : tr("Finished");
    const QString address = m_pProbe->address();
    return m_pProbe->tool() == CProbe::Ping ? tr("Ping of %1 runs").arg(address)
                                            : tr("Trace to %1 runs").arg(address);
}

void CIpToolsPage::showRun()
{
    const bool isRunning = m_pProbe->isRunning();
    m_pPing->setEnabled(!isRunning);
    m_pTrace->setEnabled(!isRunning);
    m_pStop->setEnabled(isRunning);
    m_pState->setText(stateText());
    m_pOutput->setLines(m_pProbe->lines(), m_pProbe->lineCount());
}
