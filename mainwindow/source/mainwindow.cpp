#include "mainwindow.h"

#include "advancemenu.h"
#include "backlight.h"
#include "defaultsettings.h"
#include "fakedesktop.h"
#include "globalsettings.h"
#include "homepage.h"
#include "infopages.h"
#include "pluginman.h"
#include "screenarea.h"
#include "screenshots.h"
#include "settingmoremenu.h"
#include "sigtransfer.h"
#include "startutilwindow.h"
#include "switchappwindow.h"
#include "systemsettingsmenu.h"
#include "taskmanager.h"
#include "topbar.h"
#include "usbdmonitor.h"
#include "widgets/toolbox/toolbox.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPainter>
#include <QSocketNotifier>
#include <QTimer>
#include <QTranslator>

#include <unistd.h>
#include <utility>

namespace {

constexpr int CENTRE_SHIFT = 4; // dialogs stand a little to the right of the exact centre
constexpr int FAILURE_CHECK_PERIOD = 5000; // ms
constexpr int SETTINGS_CHECK_PERIOD = 1000; // ms
constexpr int APP_LAUNCH_PERIOD = 500; // ms

void moveToCentre(QWidget* widget, int region)
{
    if (!widget)
        return;
    const QRect area = CWidgetStyle::getScreenRegion(region);
    const QPoint centre(area.x() + area.width() / 2, area.y() + area.height() / 2);
    widget->move(centre.x() - widget->width() / 2 + CENTRE_SHIFT, centre.y() - widget->height() / 2);
}

} // namespace

CMainWindow::CMainWindow(QWidget* parent)
    : CWidget(parent)
{
    initialize();
}

CMainWindow::~CMainWindow()
{
    if (bIsUILocked)
        setScreenLocked(false); // nobody is there to lift it
    // The monitor's thread ends first. The bars and menus that listen to the relay go before the relay.
    delete m_pDevMonitor;
    qDeleteAll(findChildren<CWidget*>(QString(), Qt::FindDirectChildrenOnly));
    delete g_pSigTransfer;
    snTerminate.reset();
    for (int& fd : signalFd)
        ::close(std::exchange(fd, 0));
}

void CMainWindow::initialize()
{
    signalInit();
    loadSysSettings();
    m_pTouches = new CTouchControl(this);
    connect(m_pTouches, &CTouchControl::regionChanged, this,
        [this](NonInteractiveRegionType type, const QRect& region) {
            m_nonInteractiveType = type;
            m_nonInteractiveRegion = region;
        });
    setScreenLocked(false); // an earlier run may have ended locked, and left its mark

    m_pTrans = new QTranslator(this);
    m_pMenuStack = std::make_unique<CMenuStack>();

    g_pSigTransfer = new CSigTransfer;
    connect(g_pSigTransfer, &CSigTransfer::currentUtilChanged, this, &CMainWindow::changeCurrentUtil);
    connect(g_pSigTransfer, &CSigTransfer::queryPowerInfo, this, &CMainWindow::showPowerInfo);
    connect(g_pSigTransfer, &CSigTransfer::queryStorageInfo, this, &CMainWindow::showStorageInfo);
    connect(g_pSigTransfer, &CSigTransfer::queryBTInfo, this, &CMainWindow::showBTInfo);
    connect(this, &CMainWindow::lockStateChanged, g_pSigTransfer, &CSigTransfer::lockStateChanged);

    resize(areaAboveBottomBar().size());
    setBackgroundColor(CWidgetStyle::ColorScreen);

    m_pTopBar = new CTopBar(this);
    m_pTopBar->move(0, 0);
    connect(m_pTopBar, &CTopBar::homeTriggered, this, &CMainWindow::triggerHome);
    connect(m_pTopBar, &CTopBar::closeTriggered, this, &CMainWindow::triggerClose);
    connect(m_pTopBar, &CTopBar::powerTriggered, this, &CMainWindow::showPowerInfo);
    connect(m_pTopBar, &CTopBar::storageTriggered, this, &CMainWindow::showStorageInfo);
    connect(m_pTopBar, &CTopBar::wifiWiziTriggered, this, [this] { itemChanged(UTILITY_ID_WIFI_WIZARD); });

    setupToolBox();
    createPages();
    popAllMenuEntry(); // the caption and buttons of the home page

    m_pTaskMan = new CTaskManager(this);
    qRegisterMetaType<AppInfo>("AppInfo");
    connect(m_pTaskMan, &CTaskManager::utilStarted, this, &CMainWindow::utilReady, Qt::QueuedConnection);

    createDeviceMonitor();
    m_pPluginMan = new CPluginManager(this);
    createTimers();
    createParts();

    QTimer::singleShot(0, this, &CMainWindow::postLaunch);
    setBackgroundColor(CWidgetStyle::ColorScreen);
}

void CMainWindow::loadSysSettings()
{
    CSystemSettings* settings = CSystemSettings::globalSettings();
    for (const DefaultSetting& setting : defaultSettings())
        settings->setAttribute(setting.attribute, setting.value, false);
    settings->loadDefAttribute();
}

void CMainWindow::createTimers()
{
    m_pSystemTimer = new QTimer(this);
    m_pSystemTimer->setInterval(SETTINGS_CHECK_PERIOD);
    connect(m_pSystemTimer, &QTimer::timeout, this, &CMainWindow::checkSystemSettings);
    m_pPowerOffTimer = new QTimer(this);
    m_pFailureServTimer = new QTimer(this);
    m_pFailureServTimer->setInterval(FAILURE_CHECK_PERIOD);
    connect(m_pFailureServTimer, &QTimer::timeout, this, &CMainWindow::selftestPopup);
    m_pAppLaunchTimer = new QTimer(this);
    m_pAppLaunchTimer->setInterval(APP_LAUNCH_PERIOD);
    m_pSwitchDelayTimer = new QTimer(this);
    m_pSwitchDelayTimer->setSingleShot(true);
    connect(m_pSwitchDelayTimer, &QTimer::timeout, this, &CMainWindow::procDelayUnlock);
    m_pBatBacklightTimer = new QTimer(this);
    m_pACBacklightTimer = new QTimer(this);
    connect(this, &CMainWindow::windowVisibleChanged, this, &CMainWindow::setWindowVisible);
}

void CMainWindow::createParts()
{
    CWindowHost& host = *this; // not everybody's base
    m_pScreenshots = std::make_unique<CScreenshots>(host, m_transitions);
    m_pBacklight = std::make_unique<CBacklight>(m_pDevMonitor, m_pBatBacklightTimer, m_pACBacklightTimer);
    for (QTimer* timer : {m_pBatBacklightTimer, m_pACBacklightTimer})
        connect(timer, &QTimer::timeout, this, &CMainWindow::backlightTimeout);
    // Touches on the controls do not come to the window itself, and wake the screen all the same.
    connect(m_pTouches, &CTouchControl::touched, this, &CMainWindow::wakeupScreen);

    const InfoFields fields{
        m_powerStat, m_storeStat, m_pInqSysStatCode, bIsClientInBackWithPopup, bIsShouldFakeDesktopShown};
    m_pInfoPages = new CInfoPages(host, m_transitions, fields, this);
    connect(m_pInfoPages, &CInfoPages::opened, this, &CMainWindow::dlgPopon);
    connect(m_pInfoPages, &CInfoPages::closed, this, &CMainWindow::dlgPopoff);
    connect(m_pInfoPages, &CInfoPages::installUSBDriveSig, this, &CMainWindow::installUSBDrive);
    connect(m_pInfoPages, &CInfoPages::removeUSBDriveSig, this, &CMainWindow::removeUSBDrive);
    connect(m_pInfoPages, &CInfoPages::fakeDesktopWanted, this, &CMainWindow::grabFakeDesktop);
    connect(m_pInfoPages, &CInfoPages::fakeDesktopShown, this, &CMainWindow::setFakeDesktopVisible);
    connect(m_pInfoPages, &CInfoPages::testAppWanted, this, [this] {
        setWindowVisible(false);
        restoreLastUtilState();
    });
}

template <typename Page> Page* CMainWindow::addInnerPage(UtilityID id, Page* page)
{
    page->hide();
    moveToWorkingArea(page);
    m_innerPages.add(id, page);
    return page;
}

CWidget* CMainWindow::innerPage(UtilityID id)
{
    return m_innerPages.page(id);
}

void CMainWindow::createPages()
{
    m_pFakeDesk = new CFakeDesktop(this);
    m_pFakeDesk->hide();
    m_pStartUtilWnd = new CStartUtilWindow(this);
    m_pStartUtilWnd->hide();
    moveToWorkingArea(m_pStartUtilWnd);

    // The built-in pages, one line each.
    m_pAdvMenu = addInnerPage(UTILITY_ID_ADVTOOL, new CAdvanceMenu(this));
    m_pSettingMenu = addInnerPage(UTILITY_ID_SETTINGS, new CSystemSettingsMenu(this));
    m_pSettingMoreMenu = addInnerPage(UTILITY_ID_SETTING_MORE, new CSettingMoreMenu(this));

    // Those that are made when they are first opened: most starts get by without them.
    m_innerPages.addLater(UTILITY_ID_GLOBAL, [this] {
        auto* page = new CGlobalSettings(this);
        connect(page, &CGlobalSettings::currentLanguageChanged, this, &CMainWindow::changeLanguage);
        return addInnerPage(UTILITY_ID_GLOBAL, page);
    });
    m_innerPages.addLaunchWork(&CGlobalSettings::applyAtStart);

    m_pSwitchAppWnd = new CSwitchAppWindow(this);
    m_pSwitchAppWnd->hide();
    m_pSwitchAppWnd->move(CWidgetStyle::getScreenRegion(CWidgetStyle::RegionPageFrame).topLeft());

    m_pHomePage = addInnerPage(UTILITY_ID_BEGIN, new CHomePage(this));
    m_pHomePage->show();
    m_pInnerUtilpage = m_pHomePage;
}

void CMainWindow::createDeviceMonitor()
{
    m_pDevMonitor = new CUsbdMonitor(this);
    registerStatusTypes();

    using Monitor = CDeviceMonitor;
    using Relay = CSigTransfer;
    connect(m_pDevMonitor, &Monitor::powerStatusChanged, this, &CMainWindow::updatePowerStatus);
    connect(m_pDevMonitor, &Monitor::storageStatusChanged, this, &CMainWindow::updateStorageStatus);
    connect(m_pDevMonitor, &Monitor::wifiStatusChanged, this, &CMainWindow::updateWIFIStatus);
    connect(m_pDevMonitor, &Monitor::powerStatusChanged, g_pSigTransfer, &Relay::powerStatusChanged);
    connect(m_pDevMonitor, &Monitor::bluetoothStatusChanged, g_pSigTransfer, &Relay::bluetoothStatusChanged);
    connect(m_pDevMonitor, &Monitor::storageStatusChanged, g_pSigTransfer, &Relay::storageStatusChanged);
    connect(m_pDevMonitor, &Monitor::wifiStatusChanged, g_pSigTransfer, &Relay::wifiStatusChanged);
    connect(m_pDevMonitor, &Monitor::opmStatusChanged, g_pSigTransfer, &Relay::opmStatusChanged);
    connect(m_pDevMonitor, &Monitor::gpsStatusChanged, g_pSigTransfer, &Relay::gpsStatusChanged);
    connect(m_pDevMonitor, &Monitor::dataCardStatusChanged, g_pSigTransfer, &Relay::dataCardStatusChanged);
}

QPoint CMainWindow::screenCenter()
{
    const QRect screen = screenArea();
    return {screen.x() + screen.width() / 2, screen.y() + screen.height() / 2};
}

void CMainWindow::moveToScreenCenter(QWidget* widget)
{
    moveToCentre(widget, CWidgetStyle::RegionPageFrame);
}

void CMainWindow::moveToWorkingAreaCenter(QWidget* widget)
{
    moveToCentre(widget, CWidgetStyle::RegionWorkingArea);
}

void CMainWindow::moveToWorkingArea(CWidget* widget)
{
    const QRect area = CWidgetStyle::getScreenRegion(CWidgetStyle::RegionWorkingArea);
    widget->setBorderWidth(0, 1, 1, 1);
    widget->resize(area.size());
    widget->move(area.topLeft());
}

void CMainWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
}

void CMainWindow::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    if (m_winVisibleReason != TestAppForeground) {
        QPainter painter(this);
        painter.setPen(Qt::white);
        const QRect frame = CWidgetStyle::getScreenRegion(CWidgetStyle::RegionPageFrame);
        painter.drawRect(frame.x(), frame.y(), frame.width() - 1, frame.height() - 1);
    }
    if (!m_isPainted) {
        m_isPainted = true;
        emit firstPainted();
    }
}
