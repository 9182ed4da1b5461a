// What happens right after the event loop has started, and the mark on the X window.

#include "mainwindow.h"

#include "devicemonitor.h"
#include "pluginman.h"
#include "shellservice.h"
#include "standardstreams.h"

#include <QDeadlineTimer>
#include <QDebug>
#include <QEvent>
#include <QEventLoop>
#include <QThread>
#include <QTimer>
#include <QX11Info>

// Behind the Qt headers: its macros collide with their names.
#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <cerrno>
#include <poll.h>
#include <unistd.h>

namespace {

constexpr int FIRST_PAINT_LIMIT = 2000; // ms; a window that nobody maps is not waited for any longer
constexpr int LAUNCH_SETTLE = 2000; // ms

constexpr UtilityID RESIDENT_PLUGINS[] = {UTILITY_ID_WIFI_WIZARD, UTILITY_ID_DATE_TIME, UTILITY_ID_IP_TOOLS};

/** X error handler: prints the error and goes on. */
int x_error_handler(Display* display, XErrorEvent* error)
{
    char text[1024] = "";
    XGetErrorText(display, error->error_code, text, sizeof text);
    // The plain "n" at the end is part of the format.
    standardstreams::write(STDERR_FILENO,
        ":: X Error - " + QByteArray(text) + " (" + QByteArray::number(error->request_code) + ")n");
    return 0;
}

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

/** Holds the event loop on purpose; only the word that the process is to end makes it shorter. */
void settle(int wordOfTheEnd)
{
    const QDeadlineTimer deadline(LAUNCH_SETTLE);
    pollfd entry = {wordOfTheEnd, POLLIN, 0};
    while (::poll(&entry, 1, int(deadline.remainingTime())) < 0 && errno == EINTR) { }
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
    m_pDevMonitor->start(QThread::InheritPriority);
    m_pDevMonitor->wakeupScreen(m_powerStat.bIsBat, 1);
    m_innerPages.runLaunchWork();
    m_transitions.perform([this] { autoLoadPlugins(); });
    settle(signalFd[1]);
    new CShellService(this); // the window owns it
    m_pSystemTimer->start();
    selftestPopup();
    m_pFailureServTimer->start();
}

void CMainWindow::autoLoadPlugins()
{
    for (const UtilityID id : RESIDENT_PLUGINS) {
        if (m_pPluginMan->loadPlugin(id))
            m_pPluginMan->runPluginInBackground(this);
    }
    if (m_pluginState == PluginState::Up) // another process asked for it before; it is the current one again
        m_pPluginMan->loadPlugin(m_prevUtilID);
}
