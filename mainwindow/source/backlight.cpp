#include "backlight.h"

#include "devicemonitor.h"
#include "systemsettings.h"

#include <QSignalBlocker>
#include <QTimer>

#include <limits>

namespace {

/** The settings that belong to one power source. */
struct BacklightSource
{
    CSystemSettings::SystemAttribute enabled;
    CSystemSettings::SystemAttribute time; // seconds
    CSystemSettings::SystemAttribute brightness;
    CSystemSettings::SystemAttribute changed;
};

constexpr BacklightSource MAINS = {CSystemSettings::ACBacklightEnabled, CSystemSettings::ACBacklightTime,
    CSystemSettings::ACBrightness, CSystemSettings::ACBacklightChanged};
constexpr BacklightSource BATTERY
    = {CSystemSettings::BatteryBacklightEnabled, CSystemSettings::BatteryBacklightTime,
        CSystemSettings::BatteryBrightness, CSystemSettings::BatteryBacklightChanged};

const BacklightSource& source(bool isBattery)
{
    return isBattery ? BATTERY : MAINS;
}

QVariant setting(CSystemSettings::SystemAttribute attribute)
{
    return CSystemSettings::globalSettings()->getAttribute(attribute);
}

/** The source's time in ms, as far as a timer goes: what the setting holds may come from anywhere. */
int interval(const BacklightSource& source)
{
    constexpr qlonglong LONGEST = std::numeric_limits<int>::max() / 1000;
    return int(qBound(0LL, setting(source.time).toLongLong(), LONGEST)) * 1000;
}

} // namespace

CBacklight::CBacklight(CDeviceMonitor* monitor, QTimer* battery, QTimer* mains)
    : m_pMonitor(monitor)
    , m_pBattery(battery)
    , m_pMains(mains)
{
    for (QTimer* timer : {battery, mains})
        timer->setSingleShot(true);
}

void CBacklight::wakeUp(bool isBattery)
{
    const BacklightSource& in = source(isBattery);
    if (!setting(in.enabled).toBool())
        return;
    m_pMonitor->wakeupScreen(isBattery, setting(in.brightness).toInt());
    QTimer* timer = isBattery ? m_pBattery : m_pMains;
    const QSignalBlocker blocker(timer);
    timer->stop();
    // The source may have changed a moment ago: a time never taken over would be none, and end at once.
    if (timer->interval() == 0)
        timer->setInterval(interval(in));
    timer->start();
}

void CBacklight::timeOut(bool isBattery)
{
    if (setting(source(isBattery).enabled).toBool())
        m_pMonitor->sleepScreen(isBattery, 1);
}

void CBacklight::takeOverSettings(bool isBattery)
{
    const BacklightSource& in = source(isBattery);
    QTimer* timer = isBattery ? m_pBattery : m_pMains;
    const QSignalBlocker blocker(timer);
    if (!setting(in.enabled).toBool()) {
        timer->stop();
    } else if (setting(in.changed).toBool()) {
        CSystemSettings::globalSettings()->setAttribute(in.changed, false, false);
        timer->start(interval(in));
    }
}
