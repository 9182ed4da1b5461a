#pragma once

#include "devicestatus.h"
#include "focussearch.h"
#include "innerpages.h"
#include "languagecode.h"
#include "menustack.h"
#include "services/sysfailureserv.h"
#include "statuscodes.h"
#include "touchcontrol.h"
#include "transitions.h"
#include "utilityid.h"
#include "widgets/keywatch/keywatch.h"
#include "widgets/widget/widget.h"
#include "windowhost.h"

#include <QElapsedTimer>
#include <QPointer>

#include <memory>
#include <optional>

class CAdvanceMenu;
class CBacklight;
class CDeviceMonitor;
class CFakeDesktop;
class CHomePage;
class CInfoPages;
class CPluginManager;
class CScreenshots;
class CSettingMoreMenu;
class CStartUtilWindow;
class CSwitchAppWindow;
class CSystemSettingsMenu;
class CTaskManager;
class CToolBox;
class CTopBar;
class QSocketNotifier;
class QTimer;
class QTranslator;

/**
 * The shell's one window: top bar, tool box, page area and the overlays of a switch. It shows exactly one
 * current utility (the home page, a built-in page or a plug-in's page), and steps aside while a test
 * application is in front.
 *
 * It composes: what locks the screen and who gets the touches (CTouchControl), the backlight's times
 * (CBacklight), screenshots (CScreenshots), the information pages (CInfoPages), the boxes (execShellBox()),
 * the focus search (CFocusSearch) and the menu path (CMenuStack) are on their own, and reach back by signals
 * or CWindowHost. What is left here is wiring, the switch of utilities, and stepping aside for a test
 * application. Operations whose name another part of the system uses stay, and hand on.
 *
 * It owns every page, bar and manager it makes, for the life of the process. Interface thread only, but for
 * signalHandler(). Its files: mainwindow.cpp (construction and wiring), _menu, _switching, _visibility,
 * _launch, _language, _signals, _navigation, _devices (what only hands on).
 *
 * Whatever changes the page, the language or who has the screen is a transition, one at a time
 * (CTransitions).
 *
 * A new built-in page is one line in createPages(); for a utility without one a box says so.
 */
class CMainWindow : public CWidget, private CWindowHost
{
    Q_OBJECT

public:
    enum VisibleReason { TestAppForeground = 0, TestAppBackground = 1, OtherReason = 2 };
    enum TestAppAction { ActionLoad = 0, ActionRelease = 1, ActionNone = 2 };
    Q_ENUM(TestAppAction)
    using DetectDirection = CFocusSearch::DetectDirection;
    using DetectType = CFocusSearch::DetectType;
    using NonInteractiveRegionType = CTouchControl::NonInteractiveRegionType;

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
    void moveToWorkingAreaCenter(QWidget* widget) override;
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
    /**
     * What the switching service is doing with a test application. The overlay that says so comes with the
     * shell's next return to the screen; ActionNone ends it.
     */
    void setTestAppAction(CMainWindow::TestAppAction action);
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
    void dlgPopon(int windowID);
    void dlgPopoff(int windowID);
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
    void createParts();
    template <typename Page> Page* addInnerPage(UtilityID id, Page* page);
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

    // Late start-up and shutdown
    void waitForFirstPaint();
    /** What has been painted is on the screen when this returns; comes before every step that blocks. */
    static void flushScreen();
    void autoLoadPlugins();
    void saveSysSettings();

    // Checks
    static bool isFSCaptureRunning();
    static bool isWSARunning();

    // What hands on
    void lockScreen();
    void setScreenLocked(bool locked);
    bool isDlgPopupOnTestApp() const;
    void reportFailure();
    void restoreLastUtilState();

    // CWindowHost
    QWidget* dialogParent() override { return this; }
    bool isTestAppInFront() const override { return m_winVisibleReason == TestAppForeground; }
    bool isCaptureRunning() const override { return isFSCaptureRunning() || isWSARunning(); }
    bool isEnding() const override { return m_isTerminating; }

    // Focus
    void tapFocusWidget();
    void moveFocus(DetectDirection direction);
    QWidget* firstFocusWidget();
    bool hasWidgetDetected(DetectDirection direction, DetectType type);
    void setWidgetFocus(QObject* widget, bool on);
    void clearFocusWidget();
    void resetFocusWidget();

    static int signalFd[2]; // 0: written by the signal handler, 1: read by the event loop
    std::unique_ptr<QSocketNotifier> snTerminate;

    int m_appIndex = -1;
    UtilityID m_CallerID = UTILITY_ID_BEGIN;
    UtilityID m_prevUtilID = UTILITY_ID_BEGIN;
    UtilityID m_curUtilID = UTILITY_ID_BEGIN;
    LanguageCode m_prevLangCode = LANGUAGE_BEGIN;
    VisibleReason m_winVisibleReason = TestAppBackground;
    TestAppAction m_testAppAction = ActionNone;
    // As published; nothing here reads them.
    NonInteractiveRegionType m_nonInteractiveType = CTouchControl::RegionNone;
    QRect m_nonInteractiveRegion;
    bool bIsUILocked = false;
    bool bIsAutoTSCal = false;
    bool bIsClientInBackWithPopup = false; // an information page waits while a test application is in front
    bool bIsShouldFakeDesktopShown = false;
    InquireSysStatCode m_pInqSysStatCode = INQUIRE_SYS_STAT_NONE; // the page that waits
    int m_saveScreenCount = 0; // screenshots asked for since the start
    QString m_saveScreenDirPath = QStringLiteral("/home/arvo/screen");

    PowerStatus m_powerStat;
    StorageStatus m_storeStat;
    WIFIStatus m_wifiStat;

    QTranslator* m_pTrans = nullptr;
    std::unique_ptr<CMenuStack> m_pMenuStack;
    QPointer<QWidget> m_pPrevFocusWidget; // carries the focus marker
    QElapsedTimer m_keyEventTime; // since the last key press seen
    KeyMoment m_lastPress; // by which one that comes a second time is told
    int m_arrowKeyStepLen = 50; // pixels of one search step

    CTopBar* m_pTopBar = nullptr;
    CToolBox* m_pToolBox = nullptr;
    CWidget* m_pInnerUtilpage = nullptr; // the one now shown, null while a plug-in is
    CHomePage* m_pHomePage = nullptr;
    CAdvanceMenu* m_pAdvMenu = nullptr;
    CSystemSettingsMenu* m_pSettingMenu = nullptr;
    CSettingMoreMenu* m_pSettingMoreMenu = nullptr;
    CStartUtilWindow* m_pStartUtilWnd = nullptr;
    CSwitchAppWindow* m_pSwitchAppWnd = nullptr;
    CFakeDesktop* m_pFakeDesk = nullptr;

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

    // The window's own; everything above has its name from elsewhere.
    CTransitions m_transitions;
    CTouchControl* m_pTouches = nullptr;
    std::unique_ptr<CBacklight> m_pBacklight;
    CInfoPages* m_pInfoPages = nullptr;
    std::unique_ptr<CScreenshots> m_pScreenshots;
    CInnerPages m_innerPages;
    bool m_isTerminating = false;
    bool m_isPainted = false; // the first complete frame
    /** Of the utility now shown: not a plug-in, or one that failed; the start window is up; its page is. */
    enum class PluginState { None, Starting, Up } m_pluginState = PluginState::None;
};
