#pragma once

#include "touchstate.h"

#include <QObject>
#include <QRect>

class CPointerGrab;
class CTouchWatch;

/**
 * The lock and the ownership of the touches: keeps the record of everything that decides about them, and
 * after every change of it publishes the region of the screen in which touches are dropped, as the
 * application property "NonInteractiveRegion" and, for the whole screen, by a pointer grab.
 *
 * Interface thread. Owned by the main window.
 */
class CTouchControl : public QObject
{
    Q_OBJECT

public:
    enum NonInteractiveRegionType {
        FullScreen = 0,
        ExcludeBottomBar = 1,
        CutomizeRegion = 2,
        RegionNone = 3
    };

    explicit CTouchControl(QObject* parent);

    /** Changes one field of the record. */
    void set(bool TouchState::*field, bool on);
    /** Locks the touch screen or lifts the lock, and keeps the mark file that tells other processes. */
    void setLocked(bool locked);
    /** The region that holds while nothing in the record decides. @param region for CutomizeRegion */
    void request(NonInteractiveRegionType type, const QRect& region);
signals:
    /** A touch anywhere in the process. */
    void touched();
    /** Published; for the whole screen the pointer grab may still be tried for. */
    void regionChanged(CTouchControl::NonInteractiveRegionType type, const QRect& region);

private:
    void update();
    void publish(NonInteractiveRegionType type, bool isGrabbed);

    TouchState m_state;
    NonInteractiveRegionType m_requestedType = RegionNone;
    QRect m_requestedRegion;
    bool m_isGrabRequested = false;
    CTouchWatch* m_pWatch;
    CPointerGrab* m_pGrab;
};
