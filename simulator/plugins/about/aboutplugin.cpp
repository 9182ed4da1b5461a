#include "aboutplugin.h"

#include "aboutpage.h"

CWidget* CAboutPlugin::createPage(QWidget* parent)
{
    return new CAboutPage(getPluginVersion(), parent);
}
