#pragma once

#include "devicestatus.h"
#include "focussearch.h"
#include "languagecode.h"
#include "menustack.h"
#include "services/sysfailureserv.h"
#include "statuscodes.h"
#include "touchstate.h"
#include "transitions.h"
#include "utilityid.h"
#include "widgets/widget/widget.h"

#include <QElapsedTimer>
#include <QHash>
#include <QPointer>

#include <functional>
#include <memory>
#include <optional>

class CAdvanceMenu;
class CDeviceMonitor;
class CFakeDesktop;
class CHomePage;
class CMessageBox;
class CPluginManager;
class CPointerGrab;
class CPowerMonitor;
class CSettingMoreMenu;
class CStartUtilWindow;
class CStorageMeter;
class CStorageMonitor;
class CSwitchAppWindow;
class CSystemSettingsMenu;
class CTaskManager;
class CToolBox;
class CTopBar;
class CTouchWatch;
class QSocketNotifier;
class QTimer;
class QTranslator;

/**
 * The shell's one window: top bar, tool box, page area and the overlays of a switch. It shows exactly one
 * current utility (the home page, a built-in page or a plug-in's page), and steps aside while a test
 * application is in front.
 *
 * It owns every page, bar and manager it makes, for the life of the process. Interface thread only, but for
 * signalHandler(). The class is spread over several files by concern: mainwindow.cpp (construction and
 * wiring), _menu, _switching, _visibility, _launch, _language, _signals, _navigation, _lock, _devices,
 * _screen.
 *
 * Whatever changes the page or the screen is a transition, one at a time (transitions.h). Who gets a touch is
 * one rule over one record (touchstate.h), applied by updateTouchOwner() after every change of the record.
 *
 * A new built-in page is one line in createPages(); for a utility without one a box says so.
 */
class CMainWindow : public CWidget
{
    Q_OBJECT

public:
    enum VisibleReason { TestAppForeground = 0, TestAppBackground = 1, OtherReason = 2 };
    enum TestAppAction { ActionLoad = 0, ActionRelease = 1, ActionNone = 2 };
    using DetectDirection = CFocusSearch::DetectDirection;
    using DetectType = CFocusSearch::DetectType;
    enum NonInteractiveRegionType {
        FullScreen = 0,
        ExcludeBottomBar = 1,
        CutomizeRegion = 2,
        RegionNone = 3
    };

    explicit CMainWindow(QWidget* parent);
    ~CMainWindow() override;

    /** Writes the index of the application this window stands for into its X property "_TAVOPROP_APPINDEX".
     */
    void markAppIndex(int index);
    /** Tells the platform's language switching service about a language; a failure prints an error line. */
    void changeLanguageMiniGui(LanguageCode code);

    /** Handler of SIGHUP and SIGTERM: wakes the event loop, which ends the process in order.
     * Async-signal-safe. */
    static void signalHandler(int sig);

    /** The utility now shown; UTILITY_ID_BEGIN is the home page. */
    UtilityID currentUtil() const { return m_prevUtilID; }

    /** Centre of the screen, and placement of dialogs on the page frame and on the working area. */
    static QPoint screenCenter();
    void moveToScreenCenter(QWidget* widget);
    void moveToWorkingAreaCenter(QWidget* widget);
    /** Frames a page and makes it fill the working area. */
    void moveToWorkingArea(CWidget* widget);

    /**
     * Asks for a region of the screen in which touches are dropped, in this process and, for the whole
     * screen, by a pointer grab. It holds while nothing else decides about touches (touchstate.h).
     * @param region the region for CutomizeRegion, in screen pixels; else ignored
     */
    void setNonInteractiveRegion(NonInteractiveRegionType type, const QRect& region);
    /** False while a test application is in front. */
    bool isNeedInteractive() const { return m_winVisibleReason != TestAppForeground; }

    /** True when the touch screen has never been calibrated. */
    static bool isNeedTSCalibrate();
    /** Opens the calibration without asking first. */
    void autoTSCalibrate();

public slots:
    /** Shows utility `id`: a built-in page at once, a plug-in after its start window had 100 ms to appear. */
    void changeCurrentUtil(int id);
    /** Hides the shell for a test application in front (false) and brings it back (true). */
    void setWindowVisible(bool visible);
    void changeLanguage(LanguageCode code);
    void translate() override;
    void triggerHome();
    void triggerClose();
    /** The information pages; over a test application only noted, for inquireSystemState(). */
    void showPowerInfo();
    void showStorageInfo();
    void showBTInfo();
    /** Shows the information page that was asked for while a test application was in front. */
    void inquireSystemState();
    /** Takes over backlight times that were changed in the settings. */
    void checkSystemSettings();
    /** Backlight on and its time started again; every touch does that. */
    void wakeupScreen();

signals:
    /** Raised by the test application switching: false when one takes the screen, true when it gives it back.
     */
    void windowVisibleChanged(bool visible);
    void lockStateChanged(bool locked);
    /** The first complete frame is on the screen. */
    void firstPainted();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    /** The shell stays, whoever asks for its window to be closed; only a signal ends it. */
    void closeEvent(QCloseEvent* event) override;

private slots:
    void itemChanged(int id);
    void utilReady(int id);
    void pluginRequestToClose();
    void procDelayUnlock();
    void postLaunch();
    void handleSignal();
    void backlightTimeout();
    void dlgPopon();
    void dlgPopoff();
    void installUSBDrive();
    void removeUSBDrive();
    void updatePowerStatus(const PowerStatus& status);
    void updateStorageStatus(const StorageStatus& status);
    void updateWIFIStatus(const WIFIStatus& status);
    void selftestPopup();

private:
    // Construction
    void initialize();
    void signalInit();
    void loadSysSettings();
    void setupToolBox();
    void createPages();
    void createDeviceMonitor();
    void createTimers();
    template <typename Page> Page* addInnerPage(UtilityID id, Page* page);
    /** The built-in page of a utility, made now if need be; null if there is none. */
    CWidget* innerPage(UtilityID id);

    // Menu path and top bar
    void updateNavigateInfo(UtilityID id);
    void pushMenuEntry(int id, int level);
    void popMenuEntry();
    void popAllMenuEntry();
    void updateTopBarButtonState();
    void markToolBoxItem();
    void setTopBarButtonStatus(bool home, bool close);

    // Switching
    bool isUtilAvailable(UtilityID id) const;
    bool confirmCalibration();
    void tellNotAvailable(UtilityID id);
    void chooseItem(int id);
    void openUtil(UtilityID id, bool isAsking);
    // The transitions themselves, whoever asked for them.
    void switchTo(UtilityID id);
    void goHome();
    void closeCurrent();
    /** @return what to tell the user, nothing when the plug-in is up */
    std::optional<QString> loadAndStart(UtilityID id);
    void applyVisible(bool visible);
    void applyLanguage(LanguageCode code);

    void showInnerPage(CWidget* page);
    void showHomePage();
    void leaveUtilPage(UtilityID id);
    void leavePlugin();
    void startPlugin(UtilityID id);
    void connectPluginSignals(QObject* object);
    void showPluginError(const QString& text);
    QString switchMessage() const;
    void showCurrentUtilPage();
    void hideCurrentUtilPage();
    void updateCurrentUtilPage();

    // Visibility
    void setVisibleReason(VisibleReason reason);
    void setWindowHidden(VisibleReason reason);
    void setWindowShown(VisibleReason reason);
    void setBarsVisible(bool visible);
    void setDialogsAside(bool aside);
    void blockAppAreaUpdate();
    void recoverAppAreaUpdate();
    /** What was shown and hidden so far is on the screen when this returns. */
    void paintNow();
    void grabFakeDesktop();
    void setFakeDesktopVisible(bool visible);

    // Touches
    void updateTouchOwner();
    void publishRegion(NonInteractiveRegionType type);

    // Late start-up and shutdown
    void waitForFirstPaint();
    /** What has been painted is on the screen when this returns; comes before every step that blocks. */
    static void flushScreen();
    void autoLoadPlugins();
    void saveSysSettings();

    // Checks
    static bool isFSCaptureRunning();
    static bool isWSARunning();

    // Lock and screenshots
    void lockScreen();
    void setScreenLocked(bool locked);
    void saveScreen();
    void reportScreenLimit();

    // Information pages
    bool isDlgPopupOnTestApp() const;
    void askForInfoPage(InquireSysStatCode code);
    // What the slots ask for, once no transition is under way.
    void openPowerInfo();
    void openStorageInfo();
    void serveInquiry();
    void reportFailure();
    /** An information page is made when it is first asked for: building them takes a part of the start-up. */
    template <typename Page> Page* makeInfoPage(int windowID);
    void execPowerPage();
    void execStoragePage();
    void showMeasuredStorage(const StorageStatus& status);
    void restoreLastUtilState();
    void endInquiry();

    // Focus
    void tapFocusWidget();
    void moveFocus(DetectDirection direction);
    QWidget* firstFocusWidget();
    bool hasWidgetDetected(DetectDirection direction, DetectType type);
    void setWidgetFocus(QObject* widget, bool on);
    void clearFocusWidget();
    void resetFocusWidget();

    /** Runs a box of the shell's own look, centred on the working area. @return its answer */
    int execBox(CMessageBox& box);

    static int signalFd[2]; // 0: written by the signal handler, 1: read by the event loop
    std::unique_ptr<QSocketNotifier> snTerminate;
    bool m_isTerminating = false;

    int m_appIndex = -1;
    UtilityID m_CallerID = UTILITY_ID_BEGIN;
    UtilityID m_prevUtilID = UTILITY_ID_BEGIN;
    UtilityID m_curUtilID = UTILITY_ID_BEGIN;
    LanguageCode m_prevLangCode = LANGUAGE_BEGIN;
    VisibleReason m_winVisibleReason = TestAppBackground;
    TestAppAction m_testAppAction = ActionNone;
    CTransitions m_transitions;
    TouchState m_touchState;
    NonInteractiveRegionType m_nonInteractiveType = RegionNone; // as published
    QRect m_nonInteractiveRegion;
    NonInteractiveRegionType m_requestedType = RegionNone; // asked for by setNonInteractiveRegion()
    QRect m_requestedRegion;
    CTouchWatch* m_pTouchWatch = nullptr;
    CPointerGrab* m_pPointerGrab = nullptr;
    bool bIsUILocked = false;
    bool bIsAutoTSCal = false;
    bool bIsClientInBackWithPopup = false; // an information page waits while a test application is in front
    bool bIsShouldFakeDesktopShown = false;
    InquireSysStatCode m_pInqSysStatCode = INQUIRE_SYS_STAT_NONE; // the page that waits
    bool m_isInquiryServed = false; // it is open, over the fake desktop
    bool m_isPainted = false;
    int m_saveScreenCount = 0; // screenshots asked for since the start
    bool m_isLimitReported = false; // the box about their limit is up, or waits for the screen
    bool m_isUtilStarting = false; // the start window is up and the plug-in not loaded yet
    QString m_saveScreenDirPath = QStringLiteral("/home/arvo/screen");

    PowerStatus m_powerStat;
    StorageStatus m_storeStat;
    WIFIStatus m_wifiStat;

    QTranslator* m_pTrans = nullptr;
    std::unique_ptr<CMenuStack> m_pMenuStack;
    QPointer<QWidget> m_pPrevFocusWidget; // carries the focus marker
    QElapsedTimer m_keyEventTime; // since the last key press seen
    int m_arrowKeyStepLen = 50; // pixels of one search step

    CTopBar* m_pTopBar = nullptr;
    CToolBox* m_pToolBox = nullptr;
    QHash<int, CWidget*> m_innerPages; // built-in pages by UtilityID, the home page included
    QHash<int, std::function<CWidget*()>> m_pageMakers; // of the built-in pages that nobody opened yet
    CWidget* m_pInnerUtilpage = nullptr; // the one now shown, null while a plug-in is
    CHomePage* m_pHomePage = nullptr;
    CAdvanceMenu* m_pAdvMenu = nullptr;
    CSystemSettingsMenu* m_pSettingMenu = nullptr;
    CSettingMoreMenu* m_pSettingMoreMenu = nullptr;
    CStartUtilWindow* m_pStartUtilWnd = nullptr;
    CSwitchAppWindow* m_pSwitchAppWnd = nullptr;
    CFakeDesktop* m_pFakeDesk = nullptr;

    CPowerMonitor* m_pPowerMonitor = nullptr;
    CStorageMonitor* m_pStorageMonitor = nullptr;
    CStorageMeter* m_pStorageMeter = nullptr;

    serv::CSysFailureServ FailureServ;
    CDeviceMonitor* m_pDevMonitor = nullptr;
    CTaskManager* m_pTaskMan = nullptr;
    CPluginManager* m_pPluginMan = nullptr;

    QTimer* m_pSystemTimer = nullptr;
    QTimer* m_pPowerOffTimer = nullptr;
    QTimer* m_pFailureServTimer = nullptr;
    QTimer* m_pAppLaunchTimer = nullptr;
    QTimer* m_pSwitchDelayTimer = nullptr;
    QTimer* m_pBatBacklightTimer = nullptr;
    QTimer* m_pACBacklightTimer = nullptr;
};
