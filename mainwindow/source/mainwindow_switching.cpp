// Switching between the home page, the built-in pages and the plug-ins.

#include "mainwindow.h"

#include "captionpath.h"
#include "homepage.h"
#include "pluginman.h"
#include "shellbox.h"
#include "startutilwindow.h"
#include "switchappwindow.h"
#include "taskmanager.h"
#include "widgets/widgetstack/kpwidgetstack.h"

#include <QCoreApplication>
#include <QDebug>
#include <QMetaMethod>
#include <QTimer>

namespace {

constexpr int BROWSER_INPUT_LOCK = 2000; // ms; the browser alone gets it

} // namespace

bool CMainWindow::isUtilAvailable(UtilityID id) const
{
    return m_pPluginMan->isPlugin(id) || m_innerPages.contains(id);
}

bool CMainWindow::confirmCalibration()
{
    return execShellBox(
        ShellBox::Calibration, *this, tr("Warning"), tr("Proceed with touch screen calibration?"));
}

void CMainWindow::tellNotAvailable(UtilityID id)
{
    qWarning("Utility %d is not available", int(id));
    const QStringList path = captionPath(id);
    if (path.size() < 2)
        return; // it has no name, and nothing on the screen leads to it
    execShellBox(
        ShellBox::NotAvailable, *this, path.last(), tr("%1 is not available on this unit.").arg(path.last()));
}

void CMainWindow::changeCurrentUtil(int id)
{
    m_curUtilID = UtilityID(id);
    if (id < UTILITY_ID_BEGIN || id > UTILITY_ID_END)
        return;
    const bool isAsking = id == UTILITY_ID_SCREEN && !bIsAutoTSCal;
    m_transitions.request(CTransitions::Utility, [this, id, isAsking] { openUtil(UtilityID(id), isAsking); });
}

void CMainWindow::openUtil(UtilityID id, bool isAsking)
{
    if (isAsking && !confirmCalibration())
        return;
    if (!isUtilAvailable(id))
        tellNotAvailable(id);
    else
        m_transitions.perform([this, id] { switchTo(id); });
}

void CMainWindow::switchTo(UtilityID id)
{
    const bool isPlugin = m_pPluginMan->isPlugin(id);
    if (id == m_prevUtilID && isPlugin)
        return;
    clearFocusWidget();
    pushMenuEntry(id, 1);
    m_pSwitchAppWnd->finish(); // else the part of it beside the new page would stay
    if (isPlugin) {
        startPlugin(id);
    } else {
        leaveUtilPage(m_prevUtilID);
        showInnerPage(innerPage(id));
    }
    updateNavigateInfo(id);
    m_prevUtilID = id;
}

void CMainWindow::startPlugin(UtilityID id)
{
    leaveUtilPage(m_prevUtilID);
    paintNow(); // the old page is off the screen before the load blocks it
    leavePlugin();
    m_pStartUtilWnd->showMessage(m_pPluginMan->getPluginName(id));
    m_pStartUtilWnd->raise();
    if (id == UTILITY_ID_BROWSER) {
        m_pTouches->set(&TouchState::isBrowserStarting, true);
        m_pSwitchDelayTimer->start(BROWSER_INPUT_LOCK); // anew for one that is opened again
    }
    m_CallerID = m_prevUtilID;
    m_pluginState = PluginState::Starting;
    m_pTaskMan->startUtil(id);
}

void CMainWindow::utilReady(int id)
{
    m_transitions.request(CTransitions::Ready, [this, id] {
        // The user may have gone elsewhere while the start window was up, and even come back: then two words
        // of readiness arrive, and the first one counts.
        const auto util = UtilityID(id);
        if (util != m_prevUtilID || m_pluginState != PluginState::Starting)
            return;
        std::optional<QString> error;
        m_transitions.perform([&] { error = loadAndStart(util); });
        if (error)
            execShellBox(ShellBox::PluginError, *this, tr("Load plugin"), *error);
    });
}

std::optional<QString> CMainWindow::loadAndStart(UtilityID id)
{
    m_pluginState = PluginState::None;
    m_pPluginMan->clearError(); // what an earlier utility left
    if (!m_pPluginMan->loadPlugin(id))
        return m_pPluginMan->errorString();
    m_pTouches->set(&TouchState::isCalibrating, id == UTILITY_ID_SCREEN); // it owns all input
    const bool isStarted = m_pPluginMan->startPlugin(this, m_CallerID);
    if (m_isTerminating)
        return {}; // the end came in its own event loop, and has other plug-ins to call
    if (QObject* object = m_pPluginMan->getPluginObject())
        connectPluginSignals(object);
    if (isStarted) {
        m_pluginState = PluginState::Up;
        m_pStartUtilWnd->hide(); // a page that does not fill its ground would show it
        return {};
    }
    qWarning("Plug-in %d did not start", int(id));
    m_pPluginMan->unloadPlugin();
    m_pTouches->set(&TouchState::isCalibrating, false); // nobody is there to own the input
    return tr("The utility could not be started.");
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

void CMainWindow::pluginRequestToClose()
{
    triggerHome();
}

void CMainWindow::procDelayUnlock()
{
    if (m_winVisibleReason == OtherReason)
        return;
    m_pTouches->set(&TouchState::isBrowserStarting, false);
}

void CMainWindow::leavePlugin()
{
    m_pluginState = PluginState::None;
    m_pStartUtilWnd->hide();
    m_pPluginMan->unloadPlugin();
    m_pTouches->set(&TouchState::isCalibrating, false);
}

void CMainWindow::leaveUtilPage(UtilityID id)
{
    if (m_pPluginMan->isPlugin(id))
        leavePlugin();
    else if (m_pInnerUtilpage)
        m_pInnerUtilpage->hide();
    m_pInnerUtilpage = nullptr;
    KpWidgetStack::instance()->popAllPages(); // what the page had laid over itself goes with it
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
    if (m_pluginState == PluginState::Up)
        m_pPluginMan->setPluginWindowVisible(false);
    else if (CWidget* page = innerPage(m_prevUtilID))
        page->hide();
    if (m_pSwitchAppWnd->isVisible())
        m_pSwitchAppWnd->hide();
}

void CMainWindow::showCurrentUtilPage()
{
    if (m_pluginState == PluginState::Up) {
        m_pPluginMan->setPluginWindowVisible(true);
    } else if (CWidget* page = innerPage(m_prevUtilID)) {
        page->show();
        page->raise();
    }
    if (m_testAppAction != ActionNone)
        m_pSwitchAppWnd->start(switchMessage());
}

void CMainWindow::setTestAppAction(TestAppAction action)
{
    m_testAppAction = action;
    if (action == ActionNone)
        m_pSwitchAppWnd->finish();
    else if (m_pSwitchAppWnd->isVisible())
        m_pSwitchAppWnd->showMessage(switchMessage());
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
    if (m_pluginState == PluginState::Up)
        m_pPluginMan->updatePluginWindow();
}
