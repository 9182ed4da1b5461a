#pragma once

#include "storagecapacity.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>

/**
 * Completes storage records with capacities without holding up the interface thread: a drive that is slow, or
 * just being pulled out, may take seconds to answer, and a dead one never does. Each storage has a measuring
 * of its own, so that one that hangs holds nothing up but its own figures, which stay as they were last
 * measured.
 *
 * Interface thread. The measuring itself is on threads that nobody waits for: an answer that comes after this
 * object or the drive has gone is dropped. Where no thread can be had the log says so, and the next record
 * tries again.
 */
class CStorageMeter : public QObject
{
    Q_OBJECT

public:
    using Measure = std::function<StorageCapacity()>;

    /** @param disk, usbDrive measure the storages, on any thread; left out: those of the unit */
    explicit CStorageMeter(QObject* parent = nullptr, Measure disk = {}, Measure usbDrive = {});
    ~CStorageMeter() override;

    /** Takes note of a record that nobody asks about: what was known of a drive that went is forgotten. */
    void note(const StorageStatus& record);

    /**
     * The record with the figures measured now, as far as they take no longer than `ms`. Else with those
     * measured last, unknown if there are none, and measured() when they are there.
     */
    StorageStatus measureWithin(const StorageStatus& record, int ms);

signals:
    /** The newest record with figures that came late. */
    void measured(const StorageStatus& record);

private:
    class CRun;

    struct Gauge
    {
        Measure measure;
        StorageCapacity figures; // measured last
        std::shared_ptr<CRun> run; // under way; shared with its thread
        std::shared_ptr<std::atomic<int>> runs = std::make_shared<std::atomic<int>>(0); // dropped ones too
    };

    bool begin(Gauge& gauge);
    static void drop(Gauge& gauge);
    void take();
    StorageStatus completed() const;

    StorageStatus m_record; // the newest
    Gauge m_disk;
    Gauge m_usbDrive;
};
