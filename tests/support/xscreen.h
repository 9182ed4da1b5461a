#pragma once

#include <QColor>
#include <QPoint>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

/**
 * Reads the screen as a person sees it, through an X connection of its own, so that it works while the event
 * loop of the program under test stands still and from another thread.
 */
class CXScreen
{
public:
    CXScreen()
        : m_display(XOpenDisplay(nullptr))
    { }
    ~CXScreen()
    {
        if (m_display)
            XCloseDisplay(m_display);
    }
    CXScreen(const CXScreen&) = delete;
    CXScreen& operator=(const CXScreen&) = delete;

    bool isOpen() const { return m_display != nullptr; }
    Display* display() const { return m_display; }

    /** Colour of one pixel of the root window; invalid when it cannot be read. */
    QColor pixel(const QPoint& at) const
    {
        XImage* image
            = XGetImage(m_display, DefaultRootWindow(m_display), at.x(), at.y(), 1, 1, AllPlanes, ZPixmap);
        if (!image)
            return {};
        const QColor color(QRgb(XGetPixel(image, 0, 0)));
        XDestroyImage(image);
        return color;
    }

private:
    Display* m_display;
};
