#pragma once

#include "probe.h"
#include "utilinterface.h"

#include <QObject>

#include <memory>

class CIpToolsPage;

/**
 * IP Tools: ping and trace of a typed address with live output. A run marked as a background run outlives the
 * page and shows again when the page is opened; it ends with terminate().
 */
class CIpToolsPlugin : public QObject, public UtilInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID UtilInterface_iid)
    Q_INTERFACES(UtilInterface)

public:
    CIpToolsPlugin();
    ~CIpToolsPlugin() override;

    QString getPluginID() override { return QStringLiteral("iptools"); }
    QString getPluginName() override;
    QString getPluginVersion() override { return QStringLiteral("1.0"); }
    QString getPluginBuilder() override { return QStringLiteral("mainframe"); }
    bool bkgRun(QWidget* parent) override;
    bool start(QWidget* parent) override;
    bool stop() override;
    void terminate() override;
    void show() override;
    void hide() override;
    void update() override;
    QObject* getObject() override { return this; }
    void setCallerID(int callerId) override { m_callerId = callerId; }

signals:
    void requestToClose();
    void requestToLaunchUtil(int id);

private:
    CProbe m_probe;
    bool m_isBackgroundRun = false;
    std::unique_ptr<CIpToolsPage> m_page; // also a child of the shell's window
};
