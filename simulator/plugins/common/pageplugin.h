#pragma once

#include "utilinterface.h"

#include <QObject>
#include <QPointer>

class CWidget;

/**
 * A utility that is nothing but one page while it is open: a plug-in's root class derives from it and makes
 * the page.
 *
 * It keeps what the shell counts on: the page fills the working area with the frame of the other pages, there
 * is at most one, and it is gone after stop(), or earlier when the shell's window goes.
 */
class CPagePlugin : public QObject, public UtilInterface
{
    Q_OBJECT
    Q_INTERFACES(UtilInterface)

public:
    ~CPagePlugin() override;

    QString getPluginBuilder() override { return QStringLiteral("mainframe"); }
    bool bkgRun(QWidget*) override { return true; } // nothing runs without the page
    /** A page still there is replaced. @return false without a parent */
    bool start(QWidget* parent) override;
    /** @return false when there is no page */
    bool stop() override;
    void terminate() override { }
    void show() override;
    void hide() override;
    void update() override;
    QObject* getObject() override { return this; }
    void setCallerID(int callerId) override { m_callerId = callerId; }

protected:
    /** Makes the page as a child of `parent`; place, frame and visibility are set afterwards. */
    virtual CWidget* createPage(QWidget* parent) = 0;

private:
    QPointer<CWidget> m_page; // owned by the plug-in, child of the shell's window
};
