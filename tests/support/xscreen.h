#pragma once

#include <QColor>
#include <QPoint>
#include <QVector>

struct _XDisplay;

/** The shell's window as the X server has it: found by its application index property. */
struct ShellWindow
{
    unsigned long id = 0; ///< 0 when there is none
    QPoint position; ///< on the screen
    int appIndex = -1; ///< -1 when the property is not one 32-bit integer
};

/**
 * Reads the screen as a person sees it, through an X connection of its own: it works while the event loop of
 * the program under test stands still, and from another thread.
 */
class CXScreen
{
public:
    CXScreen();
    ~CXScreen();
    CXScreen(const CXScreen&) = delete;
    CXScreen& operator=(const CXScreen&) = delete;

    /** Colour of one pixel of the root window; invalid when it cannot be read. */
    QColor pixel(const QPoint& at) const;
    ShellWindow findShellWindow() const;
    /** The application index property of a window; -1 when it is not one 32-bit integer. */
    int appIndexOf(unsigned long window) const;

    enum Grab { GrabButton, GrabPointer };
    /** Holds one button on the root window, or the whole pointer, for as long as the connection lasts. */
    bool grab(Grab what) const;

    /** Touches a point of the screen, as the touch screen's driver does: pressed and released. */
    void touch(const QPoint& at) const;

    /** A key of the keyboard goes down, and up. While it is down the X server repeats it. */
    void setKeyDown(unsigned long keysym, bool down) const;

    /** Whether a touch there comes to a window of this connection, as it would to another program's; false
     * after 2 s. */
    bool isTouchDelivered(const QPoint& at) const;

private:
    _XDisplay* m_display;
};
