#pragma once

#include "devicestatus.h"
#include "statuscodes.h"

#include <QObject>
#include <QSet>

#include <functional>

class CDialog;
class CPowerMonitor;
class CStorageMeter;
class CStorageMonitor;
class CTransitions;
class CWindowHost;

/** Fields of the main window that the information pages read and write. */
struct InfoFields
{
    const PowerStatus& power;
    const StorageStatus& storage;
    InquireSysStatCode& code; ///< the page that was asked for while a test application was in front
    bool& isPending; ///< there is such a request
    bool& isFakeDesktopWanted;
};

/**
 * The power and the storage page: opening them, their records, and the request for one that came while a test
 * application was in front. The pages are made when they are first asked for: building them takes a part of
 * the start-up.
 *
 * Interface thread. Owned by the main window, which owns the pages too.
 */
class CInfoPages : public QObject
{
    Q_OBJECT

public:
    CInfoPages(CWindowHost& host, CTransitions& transitions, const InfoFields& fields, QObject* parent);

    void showPower();
    void showStorage();
    /** Shows the page that was asked for while a test application was in front. */
    void serveRequest();
    /** The test application has gone, or its page: nothing is served any longer. */
    void endRequest();

    /** The record has changed: a page that is up takes it over. */
    void updatePower();
    void updateStorage();

signals:
    /** A page is to be shown later: the screen of now takes the place of the test application then. */
    void fakeDesktopWanted();
    void fakeDesktopShown(bool shown);
    /** A page came up, and went. @param windowID PopupWindowID */
    void opened(int windowID);
    void closed(int windowID);
    /** The storage page's button. */
    void installUSBDriveSig();
    void removeUSBDriveSig();
    /** The page over a test application has gone: the application gets the screen back. */
    void testAppWanted();

private:
    void openPower();
    void openStorage();
    void openRequested();
    bool askForLater(InquireSysStatCode code);
    template <typename Page> Page* make(int windowID);
    void pageClosed(int windowID);
    void run(CDialog* page, const std::function<void()>& exec);
    void execPower();
    void execStorage();
    void showMeasured(const StorageStatus& status);

    CWindowHost& m_host;
    CTransitions& m_transitions;
    InfoFields m_fields;
    bool m_isServed = false; // the page that was asked for is open, over the fake desktop
    QSet<CDialog*> m_running; // in their event loops
    CPowerMonitor* m_pPowerPage = nullptr;
    CStorageMonitor* m_pStoragePage = nullptr;
    CStorageMeter* m_pMeter = nullptr;
};
