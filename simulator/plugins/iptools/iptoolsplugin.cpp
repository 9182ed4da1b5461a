#include "iptoolsplugin.h"

#include "iptoolspage.h"
#include "widgets/widgetstyle/widgetstyle.h"

CIpToolsPlugin::CIpToolsPlugin() = default;
CIpToolsPlugin::~CIpToolsPlugin() = default;

QString CIpToolsPlugin::getPluginName()
{
    return tr("IP Tools");
}

bool CIpToolsPlugin::bkgRun(QWidget* parent)
{
    // Nothing runs until the user starts it; being loaded is what lets a run outlive its page.
    Q_UNUSED(parent)
    return true;
}

bool CIpToolsPlugin::start(QWidget* parent)
{
    m_page = std::make_unique<CIpToolsPage>(&m_probe, parent);
    m_page->setGeometry(CWidgetStyle::getScreenRegion(CWidgetStyle::RegionWorkingArea));
    m_page->setBackgroundRun(m_isBackgroundRun);
    m_page->show();
    m_page->raise();
    bIsStarted = true;
    return true;
}

bool CIpToolsPlugin::stop()
{
    if (!m_page)
        return false;
    m_isBackgroundRun = m_page->isBackgroundRun();
    m_page.reset();
    if (!m_isBackgroundRun)
        m_probe.kill();
    bIsStarted = false;
    return true;
}

void CIpToolsPlugin::terminate()
{
    m_probe.kill();
}

void CIpToolsPlugin::show()
{
    if (m_page)
        m_page->show();
}

void CIpToolsPlugin::hide()
{
    if (m_page)
        m_page->hide();
}

void CIpToolsPlugin::update()
{
    if (m_page)
        m_page->translate();
}
