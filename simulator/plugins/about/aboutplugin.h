#pragma once

#include "pageplugin.h"

/** The utility "About". */
class CAboutPlugin : public CPagePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID UtilInterface_iid)

public:
    QString getPluginID() override { return QStringLiteral("settingAbout"); }
    QString getPluginName() override { return tr("About"); }
    QString getPluginVersion() override { return QStringLiteral("1.0"); }

protected:
    CWidget* createPage(QWidget* parent) override;
};
