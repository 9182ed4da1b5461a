#include "iptoolsplugin.h"

#include "iptoolspage.h"

bool CIpToolsPlugin::stop()
{
    if (!m_probe.isBackground())
        m_probe.kill();
    return CPagePlugin::stop();
}

void CIpToolsPlugin::terminate()
{
    m_probe.kill();
}

CWidget* CIpToolsPlugin::createPage(QWidget* parent)
{
    return new CIpToolsPage(&m_probe, parent);
}
