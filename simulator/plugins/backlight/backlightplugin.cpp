#include "backlightplugin.h"

#include "backlightpage.h"

CWidget* CBacklightPlugin::createPage(QWidget* parent)
{
    return new CBacklightPage(parent);
}
