#pragma once

#include "pageplugin.h"
#include "probe.h"

/**
 * IP Tools: ping and trace of a typed address with live output. A run marked as a background run outlives the
 * page and shows again when the page is opened; it ends with terminate().
 */
class CIpToolsPlugin : public CPagePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID UtilInterface_iid)

public:
    QString getPluginID() override { return QStringLiteral("iptools"); }
    QString getPluginName() override { return tr("IP Tools"); }
    QString getPluginVersion() override { return QStringLiteral("1.0"); }
    /** Ends the run too, unless it is a background run. */
    bool stop() override;
    void terminate() override;

protected:
    CWidget* createPage(QWidget* parent) override;

private:
    CProbe m_probe;
};
