#pragma once

#include "utilityid.h"

#include <QObject>
#include <QString>
#include <QVector>

#include <functional>

class QPluginLoader;
class QWidget;
class UtilInterface;

/**
 * Finds, loads and drives the utility plug-ins. One is current at a time: the one loaded last. Libraries stay
 * mapped for the life of the process, so leaving a plug-in only stops it.
 *
 * Every call into a plug-in is made here. What a plug-in throws ends here too: it is logged with the
 * library's name, and the call counts as failed.
 *
 * Interface thread. Owned by the main window; the plug-ins' root objects belong to the loader.
 */
class CPluginManager : public QObject
{
    Q_OBJECT

public:
    explicit CPluginManager(QObject* parent = nullptr);

    static QString getPluginDirPath();
    /** Full path of the utility's library; empty, with the error set, for a utility that has none. */
    QString getPluginFileName(UtilityID id);
    /** Root object of the utility's library, loaded if need be; null when that failed. */
    QObject* getPluginInstance(UtilityID id);

    /** Loads the utility's library and makes it the current plug-in. @return null when that failed, see
     * errorString() */
    UtilInterface* loadPlugin(UtilityID id);
    /** Starts the current plug-in for the utility that was shown before. @return its answer, false when none
     * is loaded */
    bool startPlugin(QWidget* host, UtilityID caller);
    /** Starts the current plug-in without showing it. @return its answer, false when none is loaded */
    bool runPluginInBackground(QWidget* host);
    /** The object whose signals the current plug-in offers; null when it has none. */
    QObject* getPluginObject();
    /** Stops the current plug-in. @return its answer, false when none is loaded */
    bool unloadPlugin();
    /** Ends the background work of the plug-ins that have any. @return true when all of them could be loaded
     */
    bool terminatePlugin();

    void updatePluginWindow();
    void setPluginWindowVisible(bool visible);

    /** True for a utility whose page is a menu of further utilities. */
    bool hasSubPlugin(UtilityID id) const;
    bool isPluginReleased(UtilityID id) const;
    /** False for the utilities built into the shell. */
    bool isPlugin(UtilityID id) const;
    /** Display name; empty for a utility without one. */
    QString getPluginName(UtilityID id) const;

    /** The manager's own error if one is set, else the loader's. The own error stays until clearError(). */
    QString errorString() const;
    void setError(const QString& text);
    void clearError();

    /** File name of the library loaded last; empty before. */
    QString currentLibrary() const { return QString::fromLatin1(m_pCurLibrary); }
    /** File name of the plug-in's library that the class is from; empty for every other class. Any thread. */
    static QString libraryOf(const QMetaObject* type);
    /** File name of the library that the shell is in a call of; null for none. For signal context. */
    static const char* callInProgress();

private:
    bool isPluginLoaded() const;
    QObject* instantiate(UtilityID id);
    bool callCurrent(const std::function<void()>& call) const;

    QPluginLoader* m_pPluginLoader; // child of the manager
    UtilInterface* m_pCurPlugin = nullptr; // of the library loaded last; belongs to the loader
    const char* m_pCurLibrary = ""; // its file name
    bool bIsError = false;
    QString m_errorString;
    QVector<UtilityID> m_notAccomplishList;
    QVector<UtilityID> m_innerModule;
};
