// Switching between the home page, the built-in pages and the plug-ins.

#include "mainwindow.h"

#include "captionpath.h"
#include "homepage.h"
#include "pluginman.h"
#include "startutilwindow.h"
#include "switchappwindow.h"
#include "taskmanager.h"
#include "utilinterface.h"
#include "widgets/messagebox/messagebox.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QCoreApplication>
#include <QDebug>
#include <QMetaMethod>
#include <QTimer>

namespace {

constexpr int BROWSER_INPUT_LOCK = 2000; // ms; the browser alone gets it

} // namespace

bool CMainWindow::isUtilAvailable(UtilityID id) const
{
    return m_pPluginMan->isPlugin(id) || m_innerPages.contains(id) || m_pageMakers.contains(id);
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

void CMainWindow::tellNotAvailable(UtilityID id)
{
    qWarning("Utility %d is not available", int(id));
    const QStringList path = captionPath(id);
    if (path.size() < 2)
        return; // it has no name, and nothing on the screen leads to it
    CMessageBox box(
        path.last(), tr("%1 is not available on this unit.").arg(path.last()), CMessageBox::Ok, this);
    execBox(box);
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
        m_touchState.isBrowserStarting = true;
        updateTouchOwner();
        QTimer::singleShot(BROWSER_INPUT_LOCK, this, &CMainWindow::procDelayUnlock);
    }
    m_CallerID = m_prevUtilID;
    m_isUtilStarting = true;
    m_pTaskMan->startUtil(id);
}

void CMainWindow::utilReady(int id)
{
    m_transitions.request(CTransitions::Ready, [this, id] {
        // The user may have gone elsewhere while the start window was up, and even come back: then two words
        // of readiness arrive, and the first one counts.
        const auto util = UtilityID(id);
        if (util != m_prevUtilID || !m_isUtilStarting)
            return;
        std::optional<QString> error;
        m_transitions.perform([&] { error = loadAndStart(util); });
        if (error)
            showPluginError(*error);
    });
}

std::optional<QString> CMainWindow::loadAndStart(UtilityID id)
{
    m_isUtilStarting = false;
    m_pPluginMan->clearError(); // what an earlier utility left
    UtilInterface* plugin = m_pPluginMan->loadPlugin(id);
    if (!plugin)
        return m_pPluginMan->errorString();
    m_touchState.isCalibrating = id == UTILITY_ID_SCREEN; // it owns all input
    updateTouchOwner();
    plugin->setCallerID(m_CallerID);
    const bool isStarted = plugin->start(this);
    if (QObject* object = plugin->getObject())
        connectPluginSignals(object);
    if (isStarted) {
        m_pStartUtilWnd->hide(); // a page that does not fill its ground would show it
        return {};
    }
    qWarning("Plug-in %d did not start", int(id));
    m_pPluginMan->unloadPlugin();
    m_touchState.isCalibrating = false; // nobody is there to own the input, and the box needs it
    updateTouchOwner();
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

void CMainWindow::showPluginError(const QString& text)
{
    CMessageBox box(tr("Load plugin"), text, CMessageBox::Ok, this);
    box.setTitleBackgroundColor(CWidgetStyle::ColorAlert);
    // A test application may have come while the utility was starting: the box waits for the shell to come
    // back.
    if (m_winVisibleReason == TestAppForeground)
        connect(&box, &CDialog::popOn, this, [this, &box] {
            box.setAside(true);
            updateTouchOwner();
        });
    execBox(box);
}

void CMainWindow::pluginRequestToClose()
{
    triggerHome();
}

void CMainWindow::procDelayUnlock()
{
    if (m_winVisibleReason == OtherReason)
        return;
    m_touchState.isBrowserStarting = false;
    updateTouchOwner();
}

void CMainWindow::leavePlugin()
{
    m_isUtilStarting = false;
    m_pStartUtilWnd->hide();
    m_pPluginMan->unloadPlugin();
    m_touchState.isCalibrating = false;
    updateTouchOwner();
}

void CMainWindow::leaveUtilPage(UtilityID id)
{
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
