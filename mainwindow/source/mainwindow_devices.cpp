// Backlight, the information pages, and the failures that the platform reports.

#include "mainwindow.h"

#include "commutils.h"
#include "devicemonitor.h"
#include "powermonitor.h"
#include "storagemeter.h"
#include "storagemonitor.h"
#include "systemsettings.h"
#include "widgets/messagebox/messagebox.h"

#include <QDebug>
#include <QFile>
#include <QSignalBlocker>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace {

// The storage page shows the figures that are there when new ones take longer than this, in ms.
constexpr int STORAGE_WAIT = 200; // when it opens
constexpr int STORAGE_REFRESH_WAIT = 20; // with each record
constexpr const char FAILURE_INDICATOR[] = "/tmp/.sysfail_indicator";

/** What belongs to one power source: its settings, and its number at the device monitor. */
struct BacklightSource
{
    CSystemSettings::SystemAttribute enabled;
    CSystemSettings::SystemAttribute time; // seconds
    CSystemSettings::SystemAttribute brightness;
    CSystemSettings::SystemAttribute changed;
    bool isBattery;
};

constexpr BacklightSource AC_SOURCE = {CSystemSettings::ACBacklightEnabled, CSystemSettings::ACBacklightTime,
    CSystemSettings::ACBrightness, CSystemSettings::ACBacklightChanged, false};
constexpr BacklightSource BATTERY_SOURCE
    = {CSystemSettings::BatteryBacklightEnabled, CSystemSettings::BatteryBacklightTime,
        CSystemSettings::BatteryBrightness, CSystemSettings::BatteryBacklightChanged, true};

QVariant setting(CSystemSettings::SystemAttribute attribute)
{
    return CSystemSettings::globalSettings()->getAttribute(attribute);
}

} // namespace

void CMainWindow::wakeupScreen()
{
    const BacklightSource& source = m_powerStat.bIsBat ? BATTERY_SOURCE : AC_SOURCE;
    QTimer* timer = m_powerStat.bIsBat ? m_pBatBacklightTimer : m_pACBacklightTimer;
    if (!setting(source.enabled).toBool())
        return;
    m_pDevMonitor->wakeupScreen(source.isBattery, setting(source.brightness).toInt());
    const QSignalBlocker blocker(timer);
    timer->stop();
    // The source may have changed a moment ago: a time never taken over would be none, and end at once.
    if (timer->interval() == 0)
        timer->setInterval(setting(source.time).toInt() * 1000);
    timer->start();
}

void CMainWindow::backlightTimeout()
{
    if (sender() == m_pACBacklightTimer) {
        if (setting(CSystemSettings::ACBacklightEnabled).toBool())
            m_pDevMonitor->sleepScreen(false, 1);
    } else if (setting(CSystemSettings::BatteryBacklightEnabled).toBool()) {
        m_pDevMonitor->sleepScreen(true, 1);
    }
}

void CMainWindow::checkSystemSettings()
{
    const BacklightSource& source = m_powerStat.bIsBat ? BATTERY_SOURCE : AC_SOURCE;
    QTimer* timer = m_powerStat.bIsBat ? m_pBatBacklightTimer : m_pACBacklightTimer;
    const QSignalBlocker blocker(timer);
    if (!setting(source.enabled).toBool()) {
        timer->stop();
        return;
    }
    const int seconds = setting(source.time).toInt();
    if (setting(source.changed).toBool()) {
        CSystemSettings::globalSettings()->setAttribute(source.changed, false, false);
        timer->start(seconds * 1000);
    }
}

bool CMainWindow::isDlgPopupOnTestApp() const
{
    return m_winVisibleReason == TestAppForeground;
}

void CMainWindow::askForInfoPage(InquireSysStatCode code)
{
    m_pInqSysStatCode = code;
    grabFakeDesktop();
    bIsClientInBackWithPopup = true;
    bIsShouldFakeDesktopShown = true;
}

void CMainWindow::showPowerInfo()
{
    if (CUICommUtils::isTestAppDlgPopup())
        return;
    if (isDlgPopupOnTestApp()) {
        // Recorded as the Wi-Fi page, which inquireSystemState() shows nothing for: only the storage page is
        // served over a test application.
        askForInfoPage(INQUIRE_SYS_STAT_WIFI);
        return;
    }
    m_pInqSysStatCode = INQUIRE_SYS_STAT_NONE;
    bIsShouldFakeDesktopShown = false;
    execPowerPage();
}

void CMainWindow::showStorageInfo()
{
    if (CUICommUtils::isTestAppDlgPopup() || isFSCaptureRunning() || isWSARunning())
        return;
    if (isDlgPopupOnTestApp()) {
        askForInfoPage(INQUIRE_SYS_STAT_USB_DISK);
        return;
    }
    m_pInqSysStatCode = INQUIRE_SYS_STAT_NONE;
    bIsShouldFakeDesktopShown = false;
    execStoragePage();
}

void CMainWindow::showBTInfo()
{
    if (!CUICommUtils::isTestAppDlgPopup() && !isDlgPopupOnTestApp())
        changeCurrentUtil(UTILITY_ID_BLUETOOTH);
}

void CMainWindow::inquireSystemState()
{
    const bool isPower = m_pInqSysStatCode == INQUIRE_SYS_STAT_POWER;
    if (m_isInquiryServed || (!isPower && m_pInqSysStatCode != INQUIRE_SYS_STAT_USB_DISK))
        return;
    m_isInquiryServed = true;
    setFakeDesktopVisible(true);
    if (isPower)
        execPowerPage();
    else
        execStoragePage();
    // Not ended by the page's closing when the page was up already, or when another page opened over it: the
    // fake desktop must not stay.
    endInquiry();
}

template <typename Page> Page* CMainWindow::makeInfoPage(int windowID)
{
    auto* page = new Page(this);
    page->setWindowID(windowID);
    connect(page, &CDialog::popOn, this, &CMainWindow::dlgPopon);
    connect(page, &CDialog::popOff, this, &CMainWindow::dlgPopoff);
    return page;
}

void CMainWindow::execPowerPage()
{
    if (!m_pPowerMonitor)
        m_pPowerMonitor = makeInfoPage<CPowerMonitor>(POPUP_WND_ID_INQUIRE_STAT_POWER);
    if (m_pPowerMonitor->isVisible())
        return;
    m_pPowerMonitor->updatePowerStatus(m_powerStat); // the page is as high as what it has to say
    moveToWorkingAreaCenter(m_pPowerMonitor);
    m_pPowerMonitor->exec(m_powerStat);
}

void CMainWindow::execStoragePage()
{
    if (!m_pStorageMonitor) {
        m_pStorageMonitor = makeInfoPage<CStorageMonitor>(POPUP_WND_ID_INQUIRE_STAT_USB_DISK);
        m_pStorageMeter = new CStorageMeter(this);
        connect(m_pStorageMeter, &CStorageMeter::measured, this, &CMainWindow::showMeasuredStorage);
        connect(m_pStorageMonitor, &CStorageMonitor::installUSBDriveSig, this, &CMainWindow::installUSBDrive);
        connect(m_pStorageMonitor, &CStorageMonitor::removeUSBDriveSig, this, &CMainWindow::removeUSBDrive);
    }
    if (m_pStorageMonitor->isVisible())
        return;
    moveToWorkingAreaCenter(m_pStorageMonitor);
    m_pStorageMonitor->exec(m_pStorageMeter->measureWithin(m_storeStat, STORAGE_WAIT));
}

void CMainWindow::showMeasuredStorage(const StorageStatus& status)
{
    if (m_pStorageMonitor && m_pStorageMonitor->isVisible())
        m_pStorageMonitor->updateStorageStatus(status);
}

void CMainWindow::dlgPopon()
{
    const auto* dialog = qobject_cast<CDialog*>(sender());
    qDebug().noquote() << QStringLiteral("Dialog Open, ID:%1").arg(dialog ? dialog->getWindowID() : -1);
    // A page that another process asked for does not unlock the touch screen.
    if (!bIsUILocked)
        setNonInteractiveRegion(RegionNone, QRect());
}

void CMainWindow::dlgPopoff()
{
    clearFocusWidget();
    const auto* dialog = qobject_cast<CDialog*>(sender());
    const int id = dialog ? dialog->getWindowID() : -1;
    qDebug().noquote() << QStringLiteral("Dialog Close, ID:%1").arg(id);
    // A page that was open before the test application came takes nothing away with it.
    if (!m_isInquiryServed || m_pInqSysStatCode == INQUIRE_SYS_STAT_NONE || id < 0
        || (id != POPUP_WND_ID_INQUIRE_STAT_POWER && id != POPUP_WND_ID_INQUIRE_STAT_USB_DISK))
        return;
    setWindowVisible(false);
    endInquiry();
    restoreLastUtilState();
}

void CMainWindow::endInquiry()
{
    if (!m_isInquiryServed)
        return;
    m_isInquiryServed = false;
    bIsClientInBackWithPopup = false;
    bIsShouldFakeDesktopShown = false;
    setFakeDesktopVisible(false);
    m_pInqSysStatCode = INQUIRE_SYS_STAT_NONE;
}

void CMainWindow::restoreLastUtilState()
{
    // The page took the whole screen's touches; the test application gets its part back.
    m_curUtilID = m_prevUtilID;
    procDelayUnlock();
}

void CMainWindow::installUSBDrive()
{
    m_pDevMonitor->mountUSBDisk();
}

void CMainWindow::removeUSBDrive()
{
    m_pDevMonitor->umountUSBDisk();
}

void CMainWindow::updatePowerStatus(const PowerStatus& status)
{
    m_powerStat = status;
    if (m_pPowerMonitor && m_pPowerMonitor->isVisible())
        m_pPowerMonitor->updatePowerStatus(status);
}

void CMainWindow::updateStorageStatus(const StorageStatus& status)
{
    m_storeStat = status;
    if (!m_pStorageMonitor)
        return;
    if (m_pStorageMonitor->isVisible())
        showMeasuredStorage(m_pStorageMeter->measureWithin(status, STORAGE_REFRESH_WAIT));
    else
        m_pStorageMeter->note(status);
}

void CMainWindow::updateWIFIStatus(const WIFIStatus& status)
{
    m_wifiStat = status;
}

void CMainWindow::selftestPopup()
{
    const QString indicator = QString::fromLatin1(FAILURE_INDICATOR);
    if (!QFile::exists(indicator))
        return;
    m_pFailureServTimer->stop();
    QString failure;
    FailureServ.QueryLatestSysFailure(failure);
    std::printf("error = %s\n", qUtf8Printable(failure));
    std::fflush(stdout);

    CMessageBox box(tr("System Error"),
        tr("Error Code: %1").arg(failure) + tr("Please contact customer service!"), CMessageBox::Ok, this);
    box.setMessageAlignment(Qt::AlignCenter);
    box.setTitleTextSize(24);
    box.setMessageTextSize(20);
    box.setTitleBackgroundColor(7);
    box.setMessageTextColor(9);
    if (execBox(box) == CMessageBox::Ok) {
        QFile::remove(indicator);
        // Whether it worked cannot be told: the child may have been reaped by the signal handler.
        const int status = std::system("sync"); // NOLINT(concurrency-mt-unsafe)
        Q_UNUSED(status)
    }
    m_pFailureServTimer->start();
}

bool CMainWindow::isNeedTSCalibrate()
{
    return !QFile::exists(CUICommUtils::getTSCalFileName());
}

void CMainWindow::autoTSCalibrate()
{
    qDebug("Auto TS calibrate.");
    bIsAutoTSCal = true;
    changeCurrentUtil(UTILITY_ID_SCREEN);
    bIsAutoTSCal = false;
}
