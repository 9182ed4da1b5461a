#include "xscreen.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <poll.h>

CXScreen::CXScreen()
    : m_display(XOpenDisplay(nullptr))
{ }

CXScreen::~CXScreen()
{
    if (m_display)
        XCloseDisplay(m_display);
}

QColor CXScreen::pixel(const QPoint& at) const
{
    XImage* image
        = XGetImage(m_display, DefaultRootWindow(m_display), at.x(), at.y(), 1, 1, AllPlanes, ZPixmap);
    if (!image)
        return {};
    QColor color(QRgb(XGetPixel(image, 0, 0)));
    XDestroyImage(image);
    return color;
}

int CXScreen::appIndexOf(unsigned long window) const
{
    const Atom atom = XInternAtom(m_display, "_TAVOPROP_APPINDEX", False);
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* data = nullptr;
    int index = -1;
    if (XGetWindowProperty(
            m_display, window, atom, 0, 32, False, XA_INTEGER, &type, &format, &count, &rest, &data)
            == Success
        && count == 1 && format == 32)
        index = int(*reinterpret_cast<long*>(data));
    if (data)
        XFree(data);
    return index;
}

ShellWindow CXScreen::findShellWindow() const
{
    // The window manager puts the window into a frame of its own: look through the whole tree.
    QVector<unsigned long> open{DefaultRootWindow(m_display)};
    while (!open.isEmpty()) {
        const unsigned long window = open.takeLast();
        const int index = appIndexOf(window);
        if (index >= 0) {
            Window child = 0;
            int x = 0;
            int y = 0;
            XTranslateCoordinates(m_display, window, DefaultRootWindow(m_display), 0, 0, &x, &y, &child);
            return {window, {x, y}, index};
        }
        Window root = 0;
        Window parent = 0;
        Window* children = nullptr;
        unsigned int count = 0;
        if (XQueryTree(m_display, window, &root, &parent, &children, &count) && children) {
            for (unsigned int i = 0; i < count; ++i)
                open.append(children[i]);
            XFree(children);
        }
    }
    return {};
}

bool CXScreen::grab(Grab what) const
{
    const Window root = DefaultRootWindow(m_display);
    if (what == GrabPointer)
        return XGrabPointer(m_display, root, False, ButtonPressMask, GrabModeAsync, GrabModeAsync, None, None,
                   CurrentTime)
            == GrabSuccess;
    XGrabButton(m_display, Button1, AnyModifier, root, False, ButtonPressMask, GrabModeAsync, GrabModeAsync,
        None, None);
    XSync(m_display, False);
    return true;
}

void CXScreen::touch(const QPoint& at) const
{
    XTestFakeMotionEvent(m_display, -1, at.x(), at.y(), CurrentTime);
    XTestFakeButtonEvent(m_display, 1, True, CurrentTime);
    XTestFakeButtonEvent(m_display, 1, False, CurrentTime);
    XSync(m_display, False);
}

void CXScreen::setKeyDown(unsigned long keysym, bool down) const
{
    XTestFakeKeyEvent(m_display, XKeysymToKeycode(m_display, keysym), down, CurrentTime);
    XSync(m_display, False);
}

bool CXScreen::isTouchDelivered(const QPoint& at) const
{
    XSetWindowAttributes attributes = {};
    attributes.override_redirect = True;
    attributes.event_mask = ButtonPressMask | ExposureMask;
    const Window window = XCreateWindow(m_display, DefaultRootWindow(m_display), at.x() - 5, at.y() - 5, 10,
        10, 0, CopyFromParent, InputOutput, nullptr, CWOverrideRedirect | CWEventMask, &attributes);
    XMapRaised(m_display, window);
    XSync(m_display, False);
    touch(at);
    pollfd connection = {ConnectionNumber(m_display), POLLIN, 0};
    bool isDelivered = false;
    XEvent event;
    do {
        while (XPending(m_display)) {
            XNextEvent(m_display, &event);
            isDelivered = isDelivered || event.type == ButtonPress;
        }
    } while (!isDelivered && ::poll(&connection, 1, 2000) > 0);
    XDestroyWindow(m_display, window);
    XSync(m_display, False);
    return isDelivered;
}
