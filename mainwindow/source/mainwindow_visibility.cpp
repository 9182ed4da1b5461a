// Stepping aside for a test application in front, and coming back.

#include "mainwindow.h"

#include "fakedesktop.h"
#include "infopages.h"
#include "screenarea.h"
#include "topbar.h"
#include "widgets/dialog/dialog.h"
#include "widgets/toolbox/toolbox.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QThread>
#include <QTimer>

namespace {

// Long enough for the X server and the test application to settle; the event loop stands still meanwhile.
constexpr unsigned long SETTLE_AFTER_HIDING = 500; // ms
constexpr unsigned long SETTLE_BEFORE_SHOWING = 200; // ms

} // namespace

void CMainWindow::setWindowVisible(bool visible)
{
    m_transitions.request(CTransitions::Visibility,
        [this, visible] { m_transitions.perform([this, visible] { applyVisible(visible); }); });
}

void CMainWindow::applyVisible(bool visible)
{
    if (visible) {
        QThread::msleep(SETTLE_BEFORE_SHOWING);
        recoverAppAreaUpdate();
        setWindowShown(TestAppBackground);
        showCurrentUtilPage();
        // The mask kept from the screen what was painted meanwhile, and a page that paints its whole area is
        // not painted with the window.
        for (QWidget* child : findChildren<QWidget*>())
            child->update();
        repaint();
        setDialogsAside(false);
        m_pInfoPages->endRequest(); // the test application went while its page was open
    } else {
        setDialogsAside(true);
        hideCurrentUtilPage();
        setWindowHidden(TestAppForeground);
        blockAppAreaUpdate();
        flushScreen();
        QThread::msleep(SETTLE_AFTER_HIDING);
    }
}

void CMainWindow::setBarsVisible(bool visible)
{
    m_pTopBar->setVisible(visible);
    m_pToolBox->setVisible(visible);
}

void CMainWindow::setDialogsAside(bool aside)
{
    for (CDialog* dialog : findChildren<CDialog*>()) {
        if (dialog->isVisible())
            dialog->setAside(aside);
    }
}

void CMainWindow::setVisibleReason(VisibleReason reason)
{
    // The window was away as a whole when the browser's time was over, which then changed nothing.
    if (m_winVisibleReason == OtherReason && !m_pSwitchDelayTimer->isActive())
        m_pTouches->set(&TouchState::isBrowserStarting, false);
    m_winVisibleReason = reason;
    m_pTouches->set(&TouchState::isTestAppInFront, reason == TestAppForeground);
}

void CMainWindow::setWindowHidden(VisibleReason reason)
{
    setVisibleReason(reason);
    if (reason == TestAppForeground)
        setBarsVisible(false);
    else if (reason == OtherReason)
        hide();
}

void CMainWindow::setWindowShown(VisibleReason reason)
{
    setVisibleReason(reason);
    if (reason == TestAppBackground)
        setBarsVisible(true);
    else if (reason == OtherReason)
        show();
}

void CMainWindow::blockAppAreaUpdate()
{
    const QRect window = rect();
    const QSize area = areaAboveBottomBar().size();
    setMask(QRegion(QPolygon({QPoint(0, area.height()), QPoint(window.left(), window.bottom() + 2),
        QPoint(window.right() + 2, window.bottom() + 2), QPoint(area.width() + 2, area.height())})));
}

void CMainWindow::recoverAppAreaUpdate()
{
    const QRect window = rect();
    setMask(QRegion(QPolygon({window.topLeft(), QPoint(window.right() + 2, window.top()),
        QPoint(window.right() + 2, window.bottom() + 2), QPoint(window.left(), window.bottom() + 2)})));
}

void CMainWindow::resizeEvent(QResizeEvent* event)
{
    CWidget::resizeEvent(event);
    if (mask().isEmpty())
        return;
    if (m_winVisibleReason == TestAppForeground)
        blockAppAreaUpdate();
    else
        recoverAppAreaUpdate();
}

void CMainWindow::paintNow()
{
    // Only the painting: an event loop here would let the next switch into the middle of this one.
    QCoreApplication::sendPostedEvents(this, QEvent::UpdateRequest);
    flushScreen();
}

void CMainWindow::grabFakeDesktop()
{
    const QPixmap screen = QGuiApplication::primaryScreen()->grabWindow(0);
    m_pFakeDesk->setBackgroundImage(screen.copy(areaAboveBottomBar()));
}

void CMainWindow::setFakeDesktopVisible(bool visible)
{
    m_pFakeDesk->setVisible(visible);
    if (visible)
        m_pFakeDesk->raise();
    else
        m_pFakeDesk->lower();
}
