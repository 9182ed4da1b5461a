// The region of the screen that takes no touches.

#include "mainwindow.h"

#include <QApplication>
#include <QDebug>
#include <QX11Info>

#include "startup.h"

namespace {

const QRect WHOLE_SCREEN(0, 0, 800, 480);
const QRect ABOVE_BOTTOM_BAR(0, 0, 800, 460);

void setPointerGrab(bool on)
{
    Display* display = QX11Info::display();
    if (!display)
        return;
    const Window root = DefaultRootWindow(display);
    if (on)
        XGrabButton(display, AnyButton, AnyModifier, root, False, ButtonPressMask, GrabModeAsync,
            GrabModeAsync, None, None);
    else
        XUngrabButton(display, AnyButton, AnyModifier, root);
    XFlush(display);
}

} // namespace

void CMainWindow::setNonInteractiveRegion(NonInteractiveRegionType type, const QRect& region)
{
    m_nonInteractiveType = type;
    switch (type) {
    case FullScreen:
        m_nonInteractiveRegion = WHOLE_SCREEN;
        setPointerGrab(true);
        break;
    case ExcludeBottomBar:
        m_nonInteractiveRegion = ABOVE_BOTTOM_BAR;
        break;
    case CutomizeRegion:
        m_nonInteractiveRegion = region;
        break;
    default:
        m_nonInteractiveRegion = QRect();
        setPointerGrab(false);
        break;
    }
    qApp->setProperty("NonInteractiveRegion", m_nonInteractiveRegion);
}
