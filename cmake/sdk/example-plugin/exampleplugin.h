#pragma once

#include "utilinterface.h"

#include <QObject>
#include <QPointer>

class CLabel;
class CPushButton;
class CWidget;

/** A page with a text and a button that leads back to the home page. */
class CExamplePlugin : public QObject, public UtilInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID UtilInterface_iid)
    Q_INTERFACES(UtilInterface)

public:
    ~CExamplePlugin() override;

    QString getPluginID() override { return QStringLiteral("example"); }
    QString getPluginName() override { return tr("Example"); }
    QString getPluginVersion() override { return QStringLiteral("1.0"); }
    QString getPluginBuilder() override { return QStringLiteral("mainframe SDK"); }
    bool bkgRun(QWidget*) override { return true; }
    bool start(QWidget* parent) override;
    bool stop() override;
    void terminate() override { }
    void show() override;
    void hide() override;
    void update() override;
    QObject* getObject() override { return this; }
    void setCallerID(int callerId) override { m_callerId = callerId; }

signals:
    void requestToClose();

private:
    QPointer<CWidget> m_page; // made by start(), gone after stop(), or earlier when the shell's window goes
    CLabel* m_label = nullptr; // both on the page
    CPushButton* m_close = nullptr;
};
