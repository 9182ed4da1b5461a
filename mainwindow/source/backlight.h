#pragma once

class CDeviceMonitor;
class QTimer;

/**
 * The backlight's times: on at every touch, off when nobody has touched the screen for as long as the
 * settings of the power source in use say. The device monitor does the work.
 *
 * Interface thread. The timers are single shots of the owner's, one a power source.
 */
class CBacklight
{
public:
    CBacklight(CDeviceMonitor* monitor, QTimer* battery, QTimer* mains);

    /** Backlight on and its time started again, if it has one. */
    void wakeUp(bool isBattery);
    /** Takes over the time when the settings say that it has changed. */
    void takeOverSettings(bool isBattery);
    /** The timer of the power source has run out. */
    void timeOut(bool isBattery);

private:
    CDeviceMonitor* m_pMonitor;
    QTimer* m_pBattery;
    QTimer* m_pMains;
};
