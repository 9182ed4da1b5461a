#include "infopages.h"

#include "commutils.h"
#include "powermonitor.h"
#include "storagemeter.h"
#include "storagemonitor.h"
#include "transitions.h"
#include "windowhost.h"

namespace {

// The storage page shows the figures that are there when new ones take longer than this, in ms.
constexpr int STORAGE_WAIT = 200; // when it opens
constexpr int STORAGE_REFRESH_WAIT = 20; // with each record

} // namespace

CInfoPages::CInfoPages(
    CWindowHost& host, CTransitions& transitions, const InfoFields& fields, QObject* parent)
    : QObject(parent)
    , m_host(host)
    , m_transitions(transitions)
    , m_fields(fields)
{ }

void CInfoPages::showPower()
{
    m_transitions.request(CTransitions::PowerPage, [this] { openPower(); });
}

void CInfoPages::showStorage()
{
    m_transitions.request(CTransitions::StoragePage, [this] { openStorage(); });
}

void CInfoPages::serveRequest()
{
    m_transitions.request(CTransitions::Inquiry, [this] { openRequested(); });
}

bool CInfoPages::askForLater(InquireSysStatCode code)
{
    const bool isLater = m_host.isTestAppInFront();
    m_fields.code = isLater ? code : INQUIRE_SYS_STAT_NONE;
    m_fields.isFakeDesktopWanted = isLater;
    if (isLater) {
        emit fakeDesktopWanted();
        m_fields.isPending = true;
    }
    return isLater;
}

void CInfoPages::openPower()
{
    // Recorded as the Wi-Fi page, which openRequested() shows nothing for: only the storage page is served
    // over a test application.
    if (!CUICommUtils::isTestAppDlgPopup() && !askForLater(INQUIRE_SYS_STAT_WIFI))
        execPower();
}

void CInfoPages::openStorage()
{
    if (!CUICommUtils::isTestAppDlgPopup() && !m_host.isCaptureRunning()
        && !askForLater(INQUIRE_SYS_STAT_USB_DISK))
        execStorage();
}

void CInfoPages::openRequested()
{
    const bool isPower = m_fields.code == INQUIRE_SYS_STAT_POWER;
    if (m_isServed || (!isPower && m_fields.code != INQUIRE_SYS_STAT_USB_DISK))
        return;
    m_isServed = true;
    emit fakeDesktopShown(true);
    if (isPower)
        execPower();
    else
        execStorage();
    // Not ended by the page's closing when the page was up already, or when another page opened over it: the
    // fake desktop must not stay.
    endRequest();
}

void CInfoPages::endRequest()
{
    if (!m_isServed)
        return;
    m_isServed = false;
    m_fields.isPending = false;
    m_fields.isFakeDesktopWanted = false;
    emit fakeDesktopShown(false);
    m_fields.code = INQUIRE_SYS_STAT_NONE;
}

template <typename Page> Page* CInfoPages::make(int windowID)
{
    auto* page = new Page(m_host.dialogParent());
    page->setWindowID(windowID);
    connect(page, &CDialog::popOn, this, [this, windowID] { emit opened(windowID); });
    connect(page, &CDialog::popOff, this, [this, windowID] { pageClosed(windowID); });
    return page;
}

void CInfoPages::pageClosed(int windowID)
{
    emit closed(windowID);
    // A page that was open before the test application came takes nothing away with it.
    if (!m_isServed || m_fields.code == INQUIRE_SYS_STAT_NONE)
        return;
    emit testAppWanted();
    endRequest();
}

void CInfoPages::execPower()
{
    if (!m_pPowerPage)
        m_pPowerPage = make<CPowerMonitor>(POPUP_WND_ID_INQUIRE_STAT_POWER);
    if (m_pPowerPage->isVisible())
        return;
    m_pPowerPage->updatePowerStatus(m_fields.power); // the page is as high as what it has to say
    m_host.moveToWorkingAreaCenter(m_pPowerPage);
    run(m_pPowerPage, [this] { m_pPowerPage->exec(m_fields.power); });
}

void CInfoPages::execStorage()
{
    if (!m_pStoragePage) {
        m_pStoragePage = make<CStorageMonitor>(POPUP_WND_ID_INQUIRE_STAT_USB_DISK);
        m_pMeter = new CStorageMeter(this);
        connect(m_pMeter, &CStorageMeter::measured, this, &CInfoPages::showMeasured);
        connect(m_pStoragePage, &CStorageMonitor::installUSBDriveSig, this, &CInfoPages::installUSBDriveSig);
        connect(m_pStoragePage, &CStorageMonitor::removeUSBDriveSig, this, &CInfoPages::removeUSBDriveSig);
    }
    if (m_pStoragePage->isVisible())
        return;
    m_host.moveToWorkingAreaCenter(m_pStoragePage);
    run(m_pStoragePage,
        [this] { m_pStoragePage->exec(m_pMeter->measureWithin(m_fields.storage, STORAGE_WAIT)); });
}

void CInfoPages::run(CDialog* page, const std::function<void()>& exec)
{
    // One that was closed below another dialog is still in its loop, which ends after the other's.
    if (m_running.contains(page)) {
        page->show();
        return;
    }
    m_running.insert(page);
    exec();
    m_running.remove(page);
}

void CInfoPages::showMeasured(const StorageStatus& status)
{
    if (m_pStoragePage && m_pStoragePage->isVisible())
        m_pStoragePage->updateStorageStatus(status);
}

void CInfoPages::updatePower()
{
    if (m_pPowerPage && m_pPowerPage->isVisible())
        m_pPowerPage->updatePowerStatus(m_fields.power);
}

void CInfoPages::updateStorage()
{
    if (!m_pStoragePage)
        return;
    if (m_pStoragePage->isVisible())
        showMeasured(m_pMeter->measureWithin(m_fields.storage, STORAGE_REFRESH_WAIT));
    else
        m_pMeter->note(m_fields.storage);
}
