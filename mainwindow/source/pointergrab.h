#pragma once

#include <QTimer>

/**
 * Keeps every touch of the screen from all clients of the X server, this process included, by a grab of all
 * buttons on the root window.
 *
 * Another client may hold the pointer at that moment, or take it later; then the grab is tried again until it
 * is had, and the log tells of both. Without an X server nothing happens. Interface thread.
 */
class CPointerGrab : public QObject
{
    Q_OBJECT

public:
    explicit CPointerGrab(QObject* parent = nullptr);

    /** Takes the grab, or lets it go. */
    void set(bool wanted);
    /** The grab is had. */
    bool isHeld() const { return m_isHeld; }

private:
    void tryToGrab();

    QTimer m_timer; // runs while the grab is wanted
    bool m_isHeld = false;
};
