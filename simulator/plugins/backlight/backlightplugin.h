#pragma once

#include "pageplugin.h"

/** The utility "Backlight". */
class CBacklightPlugin : public CPagePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID UtilInterface_iid)

public:
    QString getPluginID() override { return QStringLiteral("settingBacklight"); }
    QString getPluginName() override { return tr("Backlight"); }
    QString getPluginVersion() override { return QStringLiteral("1.0"); }

protected:
    CWidget* createPage(QWidget* parent) override;
};
