#pragma once

#include "devicestatus.h"

#include <QObject>

#include <functional>
#include <memory>

/**
 * Measures the capacities of storage records (measureStorage()) without holding up the interface thread: a
 * drive that is slow, or just being pulled out, may take seconds to answer. One measuring at a time; of the
 * records that come meanwhile the last one is measured next.
 *
 * Interface thread. The measuring itself is on a thread of its own, which nobody waits for: an answer that
 * comes after this object has gone is dropped.
 */
class CStorageMeter : public QObject
{
    Q_OBJECT

public:
    using Measure = std::function<void(StorageStatus&)>;

    /** @param measure completes a record, on any thread, also on two at once; left out: measureStorage() */
    explicit CStorageMeter(QObject* parent = nullptr, Measure measure = {});
    ~CStorageMeter() override;

    /** Asks for measured() with this record. */
    void measure(const StorageStatus& record);

    /**
     * The record measured, if that takes no longer than `ms`. Else the record with the figures that were
     * measured last (at first those of the internal storage alone), and measured() when it is done.
     */
    StorageStatus measureWithin(const StorageStatus& record, int ms);

signals:
    /** The newest record, with the figures just measured. */
    void measured(const StorageStatus& record);

private:
    struct Shared; // with the measuring thread

    void take();

    std::shared_ptr<Shared> m_shared;
    StorageStatus m_newest; // record asked about
    StorageStatus m_last; // measured last
    bool m_hasFigures = false; // in it
    std::unique_ptr<StorageStatus> m_waiting; // its turn comes when the present measuring is done
    bool m_isBusy = false;
};
