// What the devices, the keys and other processes ask of the window's parts: lock and screenshots, backlight,
// the information pages, and the failures that the platform reports. Each operation hands on; the parts
// decide.

#include "mainwindow.h"

#include "backlight.h"
#include "commutils.h"
#include "devicemonitor.h"
#include "infopages.h"
#include "screenshots.h"
#include "shellbox.h"
#include "standardstreams.h"
#include "systemsettings.h"

#include <QDebug>
#include <QFile>
#include <QTimer>

#include <cstdlib>
#include <unistd.h>

namespace {

constexpr int LONGEST_FAILURE = 200; // characters of its text
constexpr const char FAILURE_INDICATOR[] = "/tmp/.sysfail_indicator";

} // namespace

void CMainWindow::lockScreen()
{
    CSystemSettings* settings = CSystemSettings::globalSettings();
    // A locked screen can always be unlocked, whatever became of the setting.
    if (bIsUILocked || settings->getAttribute(CSystemSettings::LockScreenORSaveScreen).toBool()) {
        bIsUILocked = !bIsUILocked;
        setScreenLocked(bIsUILocked);
        emit lockStateChanged(bIsUILocked);
    } else if (m_saveScreenCount < settings->getAttribute(CSystemSettings::SaveScreenMaxNum).toInt()) {
        CScreenshots::save(m_saveScreenDirPath);
        ++m_saveScreenCount; // attempts, not files
    } else {
        m_pScreenshots->reportLimit();
    }
}

void CMainWindow::setScreenLocked(bool locked)
{
    m_pTouches->setLocked(locked);
}

void CMainWindow::setNonInteractiveRegion(NonInteractiveRegionType type, const QRect& region)
{
    m_pTouches->request(type, region);
}

void CMainWindow::wakeupScreen()
{
    m_pBacklight->wakeUp(m_powerStat.bIsBat);
}

void CMainWindow::checkSystemSettings()
{
    m_pBacklight->takeOverSettings(m_powerStat.bIsBat);
}

void CMainWindow::backlightTimeout()
{
    m_pBacklight->timeOut(sender() == m_pBatBacklightTimer);
}

bool CMainWindow::isDlgPopupOnTestApp() const
{
    return m_winVisibleReason == TestAppForeground;
}

void CMainWindow::showPowerInfo()
{
    m_pInfoPages->showPower();
}

void CMainWindow::showStorageInfo()
{
    m_pInfoPages->showStorage();
}

void CMainWindow::showBTInfo()
{
    if (!CUICommUtils::isTestAppDlgPopup() && !isDlgPopupOnTestApp())
        changeCurrentUtil(UTILITY_ID_BLUETOOTH);
}

void CMainWindow::inquireSystemState()
{
    m_pInfoPages->serveRequest();
}

void CMainWindow::dlgPopon(int windowID)
{
    // The touches are the page's, whoever had them: CTouchControl knows of every dialog.
    qDebug().noquote() << QStringLiteral("Dialog Open, ID:%1").arg(windowID);
}

void CMainWindow::dlgPopoff(int windowID)
{
    clearFocusWidget();
    qDebug().noquote() << QStringLiteral("Dialog Close, ID:%1").arg(windowID);
}

void CMainWindow::installUSBDrive()
{
    m_pDevMonitor->mountUSBDisk();
}

void CMainWindow::removeUSBDrive()
{
    m_pDevMonitor->umountUSBDisk();
}

void CMainWindow::restoreLastUtilState()
{
    m_curUtilID = m_prevUtilID;
}

void CMainWindow::updatePowerStatus(const PowerStatus& status)
{
    m_powerStat = status;
    m_pInfoPages->updatePower();
}

void CMainWindow::updateStorageStatus(const StorageStatus& status)
{
    m_storeStat = status;
    m_pInfoPages->updateStorage();
}

void CMainWindow::updateWIFIStatus(const WIFIStatus& status)
{
    m_wifiStat = status; // nothing here reads it yet
}

void CMainWindow::selftestPopup()
{
    m_transitions.request(CTransitions::Failure, [this] { reportFailure(); });
}

void CMainWindow::reportFailure()
{
    const QString indicator = QString::fromLatin1(FAILURE_INDICATOR);
    if (!QFile::exists(indicator))
        return;
    m_pFailureServTimer->stop();
    QString failure;
    FailureServ.QueryLatestSysFailure(failure);
    standardstreams::write(STDOUT_FILENO, QByteArrayLiteral("error = ") + failure.toUtf8() + '\n');
    // Whatever the service says, what to do about it stays in sight.
    if (failure.size() > LONGEST_FAILURE)
        failure = failure.left(LONGEST_FAILURE) + QStringLiteral("...");
    if (execShellBox(ShellBox::SystemFailure, *this, tr("System Error"),
            tr("Error Code: %1").arg(failure) + tr("Please contact customer service!"))) {
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
