#include "devicemonitor.h"

#include "commandlines.h"
#include "systemsettings.h"
#include "wifistatus.h"

#include <QDeadlineTimer>
#include <QDebug>
#include <QFile>

#include <utility>

namespace {

/** The attribute as a number of an enumeration that ends with `last`; `last`, "off", if it is none of them.
 */
int stateAttribute(CSystemSettings::SystemAttribute attribute, int last)
{
    bool isNumber = false;
    const int state = CSystemSettings::globalSettings()->getAttribute(attribute).toInt(&isNumber);
    return isNumber && state >= 0 && state <= last ? state : last;
}

} // namespace

CDeviceMonitor::CDeviceMonitor(QObject* parent, Sleep sleep)
    : QThread(parent)
    , m_sleep(std::move(sleep))
{
    setObjectName(QStringLiteral("CDeviceMonitor")); // the system's name of the thread
    if (!m_sleep)
        m_sleep = [this](unsigned long ms) { waitForNextCycle(ms); };
}

CDeviceMonitor::~CDeviceMonitor()
{
    stop();
}

void CDeviceMonitor::stop()
{
    {
        const QMutexLocker locker(&m_stopMutex);
        bStop = true;
        m_stopped.wakeAll();
    }
    wait();
}

void CDeviceMonitor::mountUSBDisk()
{
    m_operCode.store(Oper_Mount_USB_Disk, std::memory_order_relaxed);
}

void CDeviceMonitor::umountUSBDisk()
{
    m_operCode.store(Oper_Umount_USB_Disk, std::memory_order_relaxed);
}

void CDeviceMonitor::run()
{
    while (!bStop) {
        runCycle();
        m_sleep(CycleMs);
    }
}

void CDeviceMonitor::waitForNextCycle(unsigned long ms)
{
    const QDeadlineTimer deadline{static_cast<qint64>(ms)};
    QMutexLocker locker(&m_stopMutex);
    while (!bStop && m_stopped.wait(&m_stopMutex, deadline)) { }
}

void CDeviceMonitor::runCycle()
{
    // Taken and reset in one step, so that a request made while the hook runs is not lost.
    switch (m_operCode.exchange(Oper_None, std::memory_order_relaxed)) {
    case Oper_Mount_USB_Disk:
        onMountUSBDisk(true);
        break;
    case Oper_Umount_USB_Disk:
        onMountUSBDisk(false);
        break;
    case Oper_None:
        inquireAll();
        break;
    }
}

template <typename Status>
void CDeviceMonitor::inquire(bool (CDeviceMonitor::*inquiry)(Status*),
    void (CDeviceMonitor::*changed)(const Status&), const char* failure, Status status)
{
    if ((this->*inquiry)(&status))
        emit(this->*changed)(status);
    else if (failure)
        qDebug("%s", failure);
}

void CDeviceMonitor::inquireAll()
{
    using Self = CDeviceMonitor;
    PowerStatus unknownPower;
    unknownPower.fullCap = -1;
    unknownPower.remainCap = -1;
    inquire(&Self::inquirePowerStatus, &Self::powerStatusChanged, nullptr, unknownPower);
    inquire(&Self::inquireBluetoothStatus, &Self::bluetoothStatusChanged, "Inquire bluetooth status failed");
    inquire(&Self::inquireStorageStatus, &Self::storageStatusChanged, "Inquire storage status failed");
    inquire(&Self::inquireWIFIStatus, &Self::wifiStatusChanged, "Inquire WIFI status failed");
    inquire(&Self::inquireOPMStatus, &Self::opmStatusChanged, "Inquire OPM status failed");
    inquire(&Self::inquireGPSStatus, &Self::gpsStatusChanged, nullptr);
    // The data card fails in the words of the GPS: log readers know this line for both.
    inquire(&Self::inquireDataCardStatus, &Self::dataCardStatusChanged, "Inquire GPS status failed");
}

bool CDeviceMonitor::inquirePowerStatus(PowerStatus* status)
{
    return !m_powerSource || m_powerSource(status);
}

bool CDeviceMonitor::inquireBluetoothStatus(BluetoothStatus* status)
{
    return !m_bluetoothSource || m_bluetoothSource(status);
}

bool CDeviceMonitor::inquireStorageStatus(StorageStatus* status)
{
    status->bIsPlugged = QFile::exists(QStringLiteral("/tmp/var/lib/usbd/stat-plugged"));
    status->bIsMounted = QFile::exists(QStringLiteral("/tmp/var/lib/usbd/stat-mounted"));
    return true;
}

bool CDeviceMonitor::inquireWIFIStatus(WIFIStatus* status)
{
    status->bIsPlugged = false;
    status->bIsConnected = false;
    status->signalStrength = 0;
    bool isAdapterMissing = false;
    int lines = 0;
    const ReadResult result = readCommandLines(
        {QStringLiteral("iwconfig"), QStringLiteral("wlan0")}, WifiTimeoutMs, [&](const QString& line) {
            isAdapterMissing = !applyIwconfigLine(*status, line);
            return !isAdapterMissing && ++lines < WifiMaxLines;
        });
    // Half an answer is none: the adapter may be there and linked.
    return isAdapterMissing || result == ReadResult::Ended;
}

bool CDeviceMonitor::inquireOPMStatus(OPMStatus*)
{
    return true;
}

bool CDeviceMonitor::inquireGPSStatus(GPSStatus* status)
{
    status->m_eGPSStatus
        = static_cast<SystemGPSStatus>(stateAttribute(CSystemSettings::GPS_State_ON, SysStsGPSOff));
    return true;
}

bool CDeviceMonitor::inquireDataCardStatus(DataCardStatus* status)
{
    status->m_eDataCardStatus
        = static_cast<SystemDataCardStatus>(stateAttribute(CSystemSettings::AttrDataCard, SysStsDataCardOff));
    return true;
}

void CDeviceMonitor::onMountUSBDisk(bool) { }

void CDeviceMonitor::sleepScreen(bool, int) { }

void CDeviceMonitor::wakeupScreen(bool, int) { }
