#include "appswitcher.h"

#include "apptab.h"
#include "sigtransfer.h"
#include "systemsettings.h"

#include <QMouseEvent>

namespace {

constexpr int SWITCHER_WIDTH = 140;
constexpr int SWITCHER_HEIGHT = 60;

} // namespace

CAppSwitcher::CAppSwitcher(QWidget* parent)
    : CWidget(parent)
{
    initialize();
}

void CAppSwitcher::initialize()
{
    setObjectName(QStringLiteral("appSwitcher"));
    const auto addTab = [this](unsigned int index, CSystemSettings::SystemAttribute presence) {
        auto* tab = new CAppTab(this);
        tab->setObjectName(QStringLiteral("appTab%1").arg(index));
        tab->setIndex(index);
        tab->setStatus(CResourceMan::AppUnuseRelease);
        tab->setModuleExists(CSystemSettings::globalSettings()->getAttribute(presence).toBool());
        tab->installEventFilter(this);
        return tab;
    };
    // Crossed on purpose: the slots are counted from the other side of the unit.
    m_pApp1Tab = addTab(0, CSystemSettings::Exist_Module_2);
    m_pApp2Tab = addTab(1, CSystemSettings::Exist_Module_1);

    if (g_pSigTransfer)
        connect(g_pSigTransfer, &CSigTransfer::appStateChanged, this, &CAppSwitcher::changeAppState);
    setFixedSize(SWITCHER_WIDTH, SWITCHER_HEIGHT);
}

CAppTab* CAppSwitcher::getAppButton(int index) const
{
    return index == 0 ? m_pApp1Tab : index == 1 ? m_pApp2Tab : nullptr;
}

void CAppSwitcher::changeAppState(const AppInfo&) { }

void CAppSwitcher::choose(CAppTab* tab, CAppTab* other)
{
    if (!tab->isModuleExists() || !tab->isLocalApp())
        return;
    other->setChecked(false);
    tab->setChecked(true);
    emit currentAppChanged(int(tab->getIndex()));
}

bool CAppSwitcher::eventFilter(QObject* watched, QEvent* event)
{
    // The second of two quick presses comes as a double click.
    const bool isPress
        = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (isPress && isEnabled() && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        if (watched == m_pApp1Tab)
            choose(m_pApp1Tab, m_pApp2Tab);
        else if (watched == m_pApp2Tab)
            choose(m_pApp2Tab, m_pApp1Tab);
    }
    return CWidget::eventFilter(watched, event);
}

void CAppSwitcher::resizeEvent(QResizeEvent* event)
{
    CWidget::resizeEvent(event);
    m_pApp1Tab->move(0, 0);
    m_pApp2Tab->move(m_pApp1Tab->width(), 0);
}
