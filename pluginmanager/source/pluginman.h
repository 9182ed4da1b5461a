#pragma once

#include "utilityid.h"

#include <QObject>
#include <QString>
#include <QVector>

class QPluginLoader;
class UtilInterface;

/**
 * Finds, loads and drives the utility plug-ins. One is current at a time: the one loaded last. Libraries stay
 * mapped for the life of the process, so leaving a plug-in only stops it.
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

private:
    bool isPluginLoaded() const;

    QPluginLoader* m_pPluginLoader; // child of the manager
    UtilInterface* m_pCurPlugin = nullptr; // of the library loaded last; belongs to the loader
    bool bIsError = false;
    QString m_errorString;
    QVector<UtilityID> m_notAccomplishList;
    QVector<UtilityID> m_innerModule;
};
