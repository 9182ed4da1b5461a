#pragma once

#include <QTest>
#include <QWidget>

/** Gives a window the keyboard, as a window manager would; asked for again, since the X server refuses a
 * window that it has not put on the screen yet. */
inline bool takeFocus(QWidget* window)
{
    constexpr int TRIES = 20;
    constexpr int WAIT = 300; // ms
    if (!QTest::qWaitForWindowExposed(window))
        return false;
    for (int i = 0; i < TRIES; ++i) {
        window->activateWindow();
        if (QTest::qWaitForWindowActive(window, WAIT))
            return true;
    }
    return false;
}
