#pragma once

#include "devicestatus.h"

#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <atomic>
#include <functional>
#include <utility>

/**
 * Looks at the instrument's devices once a second in a thread of its own, and tells what it found: one signal
 * a device, every cycle, whether or not anything has changed. Receivers compare with what they show.
 *
 * The object lives in the interface thread, which starts and stops it; connections to its signals are queued,
 * and the record types are to be registered with the meta-type system first. Requests concerning the USB disk
 * are only noted by the interface thread; the next cycle takes up the latest one and then inquires nothing.
 *
 * The inquiries and hooks are virtual: they are what another kind of unit does differently. They run in the
 * monitor thread, except sleepScreen() and wakeupScreen(), which the interface thread calls.
 */
class CDeviceMonitor : public QThread
{
    Q_OBJECT

public:
    enum OperCode { Oper_Mount_USB_Disk = 0, Oper_Umount_USB_Disk = 1, Oper_None = 2 };

    /** Waits between two cycles, in the monitor thread. @param ms milliseconds */
    using Sleep = std::function<void(unsigned long ms)>;

    static constexpr unsigned long CycleMs = 1000; ///< wait between two cycles
    /**
     * Longest time that "iwconfig" gets. One that hangs is ended then, within another 200 ms, and that cycle
     * says nothing about the wireless adapter.
     */
    static constexpr int WifiMaxLines
        = 10000; ///< of its answer, which has a dozen; a command that never stops fails
    static constexpr int WifiTimeoutMs = 2000;

    /** @param sleep replaces the wait between cycles; without one it is a wait that stop() ends at once */
    explicit CDeviceMonitor(QObject* parent = nullptr, Sleep sleep = Sleep());
    /** Stops the thread first. A class derived from this one calls stop() in its own destructor. */
    ~CDeviceMonitor() override;

    /** Ends the thread and waits for it: at most one cycle. It cannot be started again. */
    void stop();

    /**
     * Where the records of the battery and of Bluetooth come from; without a source they stay as built.
     * Called in the monitor thread, once a cycle: a source that waits for something does that in a thread of
     * its own and hands out its last record. To be set before start().
     * @return by the source: false when the state cannot be told
     */
    void setPowerSource(std::function<bool(PowerStatus*)> source) { m_powerSource = std::move(source); }
    void setBluetoothSource(std::function<bool(BluetoothStatus*)> source)
    {
        m_bluetoothSource = std::move(source);
    }

    /** Ask for the USB disk to be taken in, and to be released. The later request replaces an earlier one. */
    void mountUSBDisk();
    void umountUSBDisk();

    /** One cycle without the wait that follows it. Called by the thread; by others only while none runs. */
    void runCycle();

    /** Inquiries. Each fills its record and returns false when the state cannot be told. */
    virtual bool inquirePowerStatus(PowerStatus* status);
    virtual bool inquireBluetoothStatus(BluetoothStatus* status);
    virtual bool inquireStorageStatus(StorageStatus* status);
    virtual bool inquireWIFIStatus(WIFIStatus* status);
    virtual bool inquireOPMStatus(OPMStatus* status);
    virtual bool inquireGPSStatus(GPSStatus* status);
    virtual bool inquireDataCardStatus(DataCardStatus* status);

    /** Hooks; here without effect. */
    virtual void onMountUSBDisk(bool mount);
    virtual void sleepScreen(bool isBattery, int level);
    virtual void wakeupScreen(bool isBattery, int level);

signals:
    void powerStatusChanged(const PowerStatus& status);
    void bluetoothStatusChanged(const BluetoothStatus& status);
    void storageStatusChanged(const StorageStatus& status);
    void wifiStatusChanged(const WIFIStatus& status);
    void opmStatusChanged(const OPMStatus& status);
    void gpsStatusChanged(const GPSStatus& status);
    void dataCardStatusChanged(const DataCardStatus& status);

protected:
    void run() override;

private:
    template <typename Status>
    void inquire(bool (CDeviceMonitor::*inquiry)(Status*), void (CDeviceMonitor::*changed)(const Status&),
        const char* failure, Status status = Status());
    void inquireAll();
    void waitForNextCycle(unsigned long ms);

    std::atomic<bool> bStop{false};
    std::atomic<OperCode> m_operCode{Oper_None};
    Sleep m_sleep;
    std::function<bool(PowerStatus*)> m_powerSource;
    std::function<bool(BluetoothStatus*)> m_bluetoothSource;
    QMutex m_stopMutex; // for the wait only
    QWaitCondition m_stopped;
};
