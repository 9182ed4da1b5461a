#pragma once

#include <QString>
#include <QtPlugin>

class QObject;
class QWidget;

/**
 * What every utility plug-in's root object implements.
 *
 * The shell loads the library, takes its root object and calls, always on the interface thread:
 *   bkgRun()                   once after start-up, only for the resident plug-ins
 *   setCallerID(), start()     the user opened the utility
 *   hide(), show(), update()   the screen goes to a test application and comes back; the language changed
 *   stop()                     the user left the utility
 *   terminate()                before power-off or restart
 * The library stays mapped for the life of the process, so start() and stop() alternate on one object.
 *
 * Ownership: the root object belongs to the loader. The page that start() makes belongs to the plug-in, is a
 * child of the given parent, and is gone after stop(). Whatever outlives the page (a background run) ends in
 * terminate().
 *
 * A plug-in never leaves a child process of its own behind: long-lived helpers are started detached.
 *
 * The object given by getObject() may offer the signals requestToClose() (back to the home page) and
 * requestToLaunchUtil(int) (open another utility by its UtilityID).
 *
 * A complete plug-in:
 *
 *     class CHello : public QObject, public UtilInterface
 *     {
 *         Q_OBJECT
 *         Q_PLUGIN_METADATA(IID UtilInterface_iid)
 *         Q_INTERFACES(UtilInterface)
 *     public:
 *         QString getPluginID() override { return QStringLiteral("hello"); }
 *         QString getPluginName() override { return tr("Hello"); }
 *         QString getPluginVersion() override { return QStringLiteral("1.0"); }
 *         QString getPluginBuilder() override { return QStringLiteral("Example"); }
 *         bool bkgRun(QWidget *) override { return true; }
 *         bool start(QWidget *parent) override;  // makes m_page in parent's working area, shows it
 *         bool stop() override;                  // deletes m_page
 *         void terminate() override {}
 *         void show() override;
 *         void hide() override;
 *         void update() override;
 *         QObject *getObject() override { return this; }
 *         void setCallerID(int id) override { m_callerId = id; }
 *     signals:
 *         void requestToClose();
 *     };
 */
class UtilInterface
{
public:
    virtual ~UtilInterface() = default;

    // The order of the operations is the binary interface: add at the end only, under a new identifier.
    virtual QString getPluginID() = 0; ///< identifier of the plug-in
    virtual QString getPluginName() = 0; ///< name for the user
    virtual QString getPluginVersion() = 0;
    virtual QString getPluginBuilder() = 0; ///< who built it
    virtual bool bkgRun(QWidget* parent) = 0; ///< start without showing; false when that failed
    virtual bool start(QWidget* parent)
        = 0; ///< make the page under `parent`, the shell's window, and show it
    virtual bool stop() = 0; ///< stop and release the page; false when that failed
    virtual void terminate() = 0; ///< end all background work
    virtual void show() = 0;
    virtual void hide() = 0;
    virtual void update() = 0; ///< refresh texts and contents
    virtual QObject* getObject() = 0; ///< for signal connections; may be null
    virtual void setCallerID(int callerId) = 0; ///< the UtilityID that was current before this one

    bool bIsStarted = false; ///< a page exists; kept by the plug-in
    int m_callerId = 0;
};

#define UtilInterface_iid "com.zentra.CommonUtil.UtilInterface/1.0"
Q_DECLARE_INTERFACE(UtilInterface, UtilInterface_iid)
