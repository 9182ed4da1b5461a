#pragma once

#include <QThread>

#include <atomic>
#include <ctime>

class QFileSystemWatcher;

/**
 * Runs one short task at a time off the interface thread and reports with a queued signal, above all the 100
 * ms between showing the start window and loading a plug-in. Also counts the attached remote viewers by their
 * session mark file, whose directory may be removed and made again.
 *
 * The object lives on the interface thread and belongs to the main window; only run() is on the worker
 * thread.
 */
class CTaskManager : public QThread
{
    Q_OBJECT

public:
    enum AppCtrlCode { UIManagerNotify = 0, StartUtility = 1, NoCtrl = 2 };

    explicit CTaskManager(QObject* parent);
    ~CTaskManager() override;

    /** Asks for utilStarted(id) in 100 ms. A request made meanwhile takes the place of the earlier one. */
    void startUtil(int id);

    /** Reads the session count. @return true when at least one remote viewer is attached */
    bool isVNCClientAttached();
    int vncSessionCount() const { return m_vncSessionCount; }

    /** Sets the system clock to the current value of an empty local broken-down time; for platform use. */
    void setRTCTimeToSystem();
    /**
     * Sets the system clock.
     * @param utc the broken-down time is UTC, else local time
     * @return false when the clock refuses it (the shell then lacks the right)
     */
    bool applyToDatetime(bool utc, const std::tm* time, int n);

public slots:
    void finishTask();
    void dirChanged(const QString& path);

signals:
    void utilStarted(int id);
    void notifyClientWndState(int state);
    void vncSessionChanged(int count);

protected:
    void run() override;

private:
    void initFSWatcher();
    void startWithoutThread();
    void watchSessions();

    std::atomic<int> m_operCode{NoCtrl};
    std::atomic<int> m_clientWndState{0};
    std::atomic<int> m_utilID{-1}; // -1: nothing asked for
    QFileSystemWatcher* m_pFSWatcher = nullptr;
    int m_vncSessionCount = 0;
    QVector<quint64> m_watched; // which directories, by their numbers in the file system
};
