// Switching between the home page, the built-in pages and the plug-ins.

#include "mainwindow.h"

#include "homepage.h"
#include "pluginman.h"
#include "startutilwindow.h"
#include "switchappwindow.h"
#include "taskmanager.h"
#include "widgets/messagebox/messagebox.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QCoreApplication>
#include <QDebug>
#include <QMetaMethod>
#include <QTimer>

namespace {

constexpr int BROWSER_INPUT_LOCK = 2000; // ms; the browser alone gets it

void processEventsButInput()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

bool CMainWindow::isUtilAvailable(UtilityID id) const
{
    return m_pPluginMan->isPlugin(id) || m_innerPages.contains(id);
}

bool CMainWindow::confirmCalibration()
{
    CMessageBox box(tr("Warning"), tr("Proceed with touch screen calibration?"),
        CMessageBox::Ok | CMessageBox::Cancel, this);
    box.setMessageAlignment(Qt::AlignCenter);
    box.setTitleBackgroundColor(7);
    box.setTitleTextColor(2);
    box.setTitleTextSize(20);
    box.setMessageTextColor(9);
    return execBox(box) == CMessageBox::Ok;
}

void CMainWindow::changeCurrentUtil(int id)
{
    m_curUtilID = UtilityID(id);
    if (id < UTILITY_ID_BEGIN || id > UTILITY_ID_END)
        return;
    const auto util = UtilityID(id);
    const bool isPlugin = m_pPluginMan->isPlugin(util);
    if (util == UTILITY_ID_SCREEN && !bIsAutoTSCal && !confirmCalibration())
        return;
    if (util == m_prevUtilID && isPlugin)
        return;
    if (!isUtilAvailable(util)) {
        qWarning("Utility %d is not available", id);
        return;
    }

    clearFocusWidget();
    pushMenuEntry(id, 1);
    if (isPlugin) {
        startPlugin(util);
    } else {
        leaveUtilPage(m_prevUtilID);
        showInnerPage(m_innerPages.value(util));
    }
    updateNavigateInfo(util);
    m_prevUtilID = util;
}

void CMainWindow::startPlugin(UtilityID id)
{
    leaveUtilPage(m_prevUtilID);
    processEventsButInput(); // the old page is off the screen before the load blocks it
    leavePlugin();
    m_pStartUtilWnd->showMessage(m_pPluginMan->getPluginName(id));
    m_pStartUtilWnd->raise();
    if (id == UTILITY_ID_BROWSER) {
        setNonInteractiveRegion(FullScreen, QRect());
        QTimer::singleShot(BROWSER_INPUT_LOCK, this, &CMainWindow::procDelayUnlock);
    }
    m_CallerID = m_prevUtilID;
    m_isUtilStarting = true;
    m_pTaskMan->startUtil(id);
}

void CMainWindow::utilReady(int id)
{
    // The user may have gone elsewhere while the start window was up, and even come back: then two words of
    // readiness arrive, and the first one counts.
    const auto util = UtilityID(id);
    if (util != m_prevUtilID || !m_isUtilStarting)
        return;
    m_isUtilStarting = false;

    m_pPluginMan->clearError(); // what an earlier utility left
    if (!m_pPluginMan->loadPlugin(util)) {
        showPluginError(m_pPluginMan->errorString());
        return;
    }
    if (util == UTILITY_ID_SCREEN)
        setNonInteractiveRegion(FullScreen, QRect()); // the calibration owns all input
    const bool isStarted = m_pPluginMan->startPlugin(this, m_CallerID);
    if (QObject* object = m_pPluginMan->getPluginObject())
        connectPluginSignals(object);
    if (!isStarted) {
        qWarning("Plug-in %d did not start", id);
        m_pPluginMan->unloadPlugin();
        if (util == UTILITY_ID_SCREEN)
            procDelayUnlock(); // nobody is there to own the input, and the box needs it
        showPluginError(tr("The utility could not be started."));
    }
}

void CMainWindow::connectPluginSignals(QObject* object)
{
    // A plug-in's signals are only known by name. Queued: the plug-in emits from inside its own page, which
    // the switch deletes. Unique: the object is the same at the next start.
    const struct
    {
        const char* signal;
        const char* slot;
    } links[] = {
        {"requestToClose()", "pluginRequestToClose()"},
        {"requestToLaunchUtil(int)", "changeCurrentUtil(int)"},
    };
    for (const auto& link : links) {
        const int signal = object->metaObject()->indexOfSignal(link.signal);
        if (signal >= 0)
            connect(object, object->metaObject()->method(signal), this,
                metaObject()->method(metaObject()->indexOfSlot(link.slot)),
                Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
    }
}

void CMainWindow::showPluginError(const QString& text)
{
    CMessageBox box(tr("Load plugin"), text, CMessageBox::Ok, this);
    box.setTitleBackgroundColor(CWidgetStyle::ColorAlert);
    // A test application may have come while the utility was starting: the box waits for the shell to come
    // back.
    if (m_winVisibleReason == TestAppForeground)
        connect(&box, &CDialog::popOn, &box, [&box] { box.setAside(true); });
    execBox(box);
}

void CMainWindow::pluginRequestToClose()
{
    triggerHome();
}

void CMainWindow::procDelayUnlock()
{
    if (bIsUILocked)
        return; // only F4 ends that, and then sets the region
    if (m_winVisibleReason == OtherReason)
        return;
    setNonInteractiveRegion(RegionNone, QRect()); // with the grab of the whole screen
    if (m_winVisibleReason == TestAppForeground)
        setNonInteractiveRegion(ExcludeBottomBar, QRect());
}

void CMainWindow::leavePlugin()
{
    m_isUtilStarting = false;
    m_pStartUtilWnd->hide();
    m_pPluginMan->unloadPlugin();
    if (m_prevUtilID == UTILITY_ID_SCREEN)
        procDelayUnlock(); // the calibration owned all input
}

void CMainWindow::leaveUtilPage(UtilityID id)
{
    processEventsButInput();
    if (m_pPluginMan->isPlugin(id))
        leavePlugin();
    else if (m_pInnerUtilpage)
        m_pInnerUtilpage->hide();
    m_pInnerUtilpage = nullptr;
}

void CMainWindow::showInnerPage(CWidget* page)
{
    page->show();
    page->raise();
    m_pInnerUtilpage = page;
}

void CMainWindow::showHomePage()
{
    if (m_pInnerUtilpage && m_pInnerUtilpage != m_pHomePage)
        m_pInnerUtilpage->hide();
    showInnerPage(m_pHomePage);
    m_prevUtilID = UTILITY_ID_BEGIN;
}

void CMainWindow::hideCurrentUtilPage()
{
    if (m_pPluginMan->isPlugin(m_prevUtilID))
        m_pPluginMan->setPluginWindowVisible(false);
    else if (CWidget* page = m_innerPages.value(m_prevUtilID))
        page->hide();
    if (m_pSwitchAppWnd->isVisible())
        m_pSwitchAppWnd->hide();
}

void CMainWindow::showCurrentUtilPage()
{
    if (m_pPluginMan->isPlugin(m_prevUtilID)) {
        m_pPluginMan->setPluginWindowVisible(true);
    } else if (CWidget* page = m_innerPages.value(m_prevUtilID)) {
        page->show();
        page->raise();
    }
    if (m_testAppAction != ActionNone)
        m_pSwitchAppWnd->start(switchMessage());
}

QString CMainWindow::switchMessage() const
{
    switch (m_testAppAction) {
    case ActionLoad:
        return tr("Loading test application, please wait...");
    case ActionRelease:
        return tr("Releasing test application, please wait...");
    case ActionNone:
        break;
    }
    return {};
}

void CMainWindow::updateCurrentUtilPage()
{
    if (m_pPluginMan->isPlugin(m_prevUtilID))
        m_pPluginMan->updatePluginWindow();
}
