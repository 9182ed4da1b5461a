// What happens right after the event loop has started, and the mark on the X window.

#include "mainwindow.h"

#include "devicemonitor.h"
#include "globalsettings.h"
#include "pluginman.h"
#include "utilinterface.h"

#include <QDebug>
#include <QEvent>
#include <QEventLoop>
#include <QThread>
#include <QTimer>
#include <QX11Info>

#include "startup.h"

#include <X11/Xatom.h>

namespace {

constexpr int FIRST_PAINT_LIMIT = 2000; // ms; a window that nobody maps is not waited for any longer
constexpr unsigned long LAUNCH_SETTLE = 2000; // ms

constexpr UtilityID RESIDENT_PLUGINS[] = {UTILITY_ID_WIFI_WIZARD, UTILITY_ID_DATE_TIME, UTILITY_ID_IP_TOOLS};

Atom appIndexAtom(Display* display)
{
    static const Atom atom = XInternAtom(display, "_TAVOPROP_APPINDEX", False);
    return atom;
}

/** The value of the property, or -1 when it is not one 32-bit integer. */
int readAppIndex(Display* display, Window window, Atom atom)
{
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* data = nullptr;
    int index = -1;
    if (XGetWindowProperty(
            display, window, atom, 0, 32, False, XA_INTEGER, &type, &format, &count, &rest, &data)
            == Success
        && type == XA_INTEGER && format == 32 && count == 1)
        index = int(*reinterpret_cast<long*>(data)); // Xlib hands 32-bit items out as longs
    if (data)
        XFree(data);
    return index;
}

} // namespace

void CMainWindow::markAppIndex(int index)
{
    Display* display = QX11Info::display();
    if (!display)
        return;
    const Atom atom = appIndexAtom(display);
    if (atom == 0) {
        qDebug("### failed to create atom with name _TAVOPROP_APPINDEX\n");
        return;
    }
    XSetErrorHandler(x_error_handler);
    const Window window = winId();
    const long value = index;
    XChangeProperty(display, window, atom, XA_INTEGER, 32, PropModeReplace,
        reinterpret_cast<const unsigned char*>(&value), 1);
    qDebug() << "### XGetWindowProperty iAppIndex = " << readAppIndex(display, window, atom);
    m_appIndex = index;
}

bool CMainWindow::event(QEvent* event)
{
    // The event also comes when the X window goes; then there is nothing to mark.
    if (event->type() == QEvent::WinIdChange && internalWinId())
        markAppIndex(0);
    return CWidget::event(event);
}

void CMainWindow::waitForFirstPaint()
{
    if (!m_isPainted) {
        QEventLoop loop;
        // Queued: the frame is flushed to the X server before the loop ends.
        connect(this, &CMainWindow::firstPainted, &loop, &QEventLoop::quit, Qt::QueuedConnection);
        QTimer::singleShot(FIRST_PAINT_LIMIT, &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
    flushScreen();
}

void CMainWindow::flushScreen()
{
    if (Display* display = QX11Info::display())
        XSync(display, False);
}

void CMainWindow::postLaunch()
{
    waitForFirstPaint();
    if (m_isTerminating)
        return;
    CGlobalSettings::applyAtStart(); // whether its page is opened or not
    m_pDevMonitor->start(QThread::InheritPriority);
    m_pDevMonitor->wakeupScreen(m_powerStat.bIsBat, 1);
    autoLoadPlugins();
    QThread::msleep(LAUNCH_SETTLE);
    m_pSystemTimer->start();
    selftestPopup();
    m_pFailureServTimer->start();
}

void CMainWindow::autoLoadPlugins()
{
    for (const UtilityID id : RESIDENT_PLUGINS) {
        if (UtilInterface* plugin = m_pPluginMan->loadPlugin(id))
            plugin->bkgRun(this);
    }
}
