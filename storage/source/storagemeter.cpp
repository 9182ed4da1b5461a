#include "storagemeter.h"

#include "storagecapacity.h"

#include <QDeadlineTimer>
#include <QMutex>
#include <QWaitCondition>

#include <thread>
#include <utility>

struct CStorageMeter::Shared
{
    QMutex mutex;
    QWaitCondition done;
    CStorageMeter* meter; // null once it has gone
    Measure measure;
    std::unique_ptr<StorageStatus> result; // not taken yet
};

namespace {

/** The state of the one, with the figures of the other. A drive that has not been measured yet is there, with
 * none. */
StorageStatus withFigures(StorageStatus record, const StorageStatus& figures)
{
    record.diskUsed = figures.diskUsed;
    record.diskAvail = figures.diskAvail;
    record.bIsUSBDPlugged = record.bIsMounted && (figures.bIsUSBDPlugged || !figures.bIsMounted);
    record.USBDUsed = record.bIsMounted ? figures.USBDUsed : 0;
    record.USBDAvail = record.bIsMounted ? figures.USBDAvail : 0;
    return record;
}

} // namespace

CStorageMeter::CStorageMeter(QObject* parent, Measure measure)
    : QObject(parent)
    , m_shared(std::make_shared<Shared>())
{
    m_shared->meter = this;
    m_shared->measure = measure ? std::move(measure) : [](StorageStatus& record) { measureStorage(record); };
}

CStorageMeter::~CStorageMeter()
{
    const QMutexLocker locker(&m_shared->mutex);
    m_shared->meter = nullptr;
}

void CStorageMeter::measure(const StorageStatus& record)
{
    m_newest = record;
    if (m_isBusy) {
        m_waiting = std::make_unique<StorageStatus>(record);
        return;
    }
    m_isBusy = true;
    std::thread([shared = m_shared, result = std::make_unique<StorageStatus>(record)]() mutable {
        shared->measure(*result);
        const QMutexLocker locker(&shared->mutex);
        shared->result = std::move(result);
        shared->done.wakeAll();
        if (shared->meter)
            QMetaObject::invokeMethod(shared->meter, &CStorageMeter::take, Qt::QueuedConnection);
    }).detach();
}

StorageStatus CStorageMeter::measureWithin(const StorageStatus& record, int ms)
{
    const bool isOwn = !m_isBusy; // else the answer is that of an earlier record
    measure(record);
    const QDeadlineTimer deadline(ms);
    QMutexLocker locker(&m_shared->mutex);
    while (isOwn && !m_shared->result) {
        if (!m_shared->done.wait(&m_shared->mutex, deadline))
            break;
    }
    if (isOwn && m_shared->result)
        return withFigures(record, *m_shared->result);
    locker.unlock();
    if (!m_hasFigures) { // the internal storage never lets anybody wait
        m_last = record;
        m_last.bIsMounted = false;
        m_shared->measure(m_last);
        m_hasFigures = true;
    }
    return withFigures(record, m_last);
}

void CStorageMeter::take()
{
    {
        const QMutexLocker locker(&m_shared->mutex);
        m_last = *m_shared->result;
        m_shared->result.reset();
    }
    m_hasFigures = true;
    m_isBusy = false;
    if (const auto next = std::move(m_waiting))
        measure(*next);
    emit measured(withFigures(m_newest, m_last));
}
