#include "storagemeter.h"

#include <QDeadlineTimer>
#include <QMutex>
#include <QWaitCondition>

#include <system_error>
#include <thread>
#include <utility>

namespace {

constexpr int MostRuns = 8; // dead drives keep their thread; a mark that comes and goes must not pile them up

} // namespace

/** One measuring. Made and taken on the interface thread, run on its own. */
class CStorageMeter::CRun
{
public:
    CRun(CStorageMeter* meter, const Gauge& gauge)
        : m_meter(meter)
        , m_measure(gauge.measure)
        , m_runs(gauge.runs)
    {
        ++*m_runs;
    }
    ~CRun() { --*m_runs; }
    Q_DISABLE_COPY(CRun)

    void operator()()
    {
        const StorageCapacity figures = m_measure();
        const QMutexLocker locker(&m_mutex);
        m_figures = figures;
        m_isDone = true;
        m_done.wakeAll();
        if (m_meter)
            QMetaObject::invokeMethod(m_meter, &CStorageMeter::take, Qt::QueuedConnection);
    }

    /** Whether it is done by then; its figures are those measured. */
    bool isDone(StorageCapacity& figures, const QDeadlineTimer& deadline)
    {
        const QMutexLocker locker(&m_mutex);
        while (!m_isDone && m_done.wait(&m_mutex, deadline)) { }
        if (m_isDone)
            figures = m_figures;
        return m_isDone;
    }

    void forgetMeter()
    {
        const QMutexLocker locker(&m_mutex);
        m_meter = nullptr;
    }

private:
    QMutex m_mutex;
    QWaitCondition m_done;
    CStorageMeter* m_meter; // null once the answer is of no use
    Measure m_measure;
    std::shared_ptr<std::atomic<int>> m_runs;
    StorageCapacity m_figures;
    bool m_isDone = false;
};

CStorageMeter::CStorageMeter(QObject* parent, Measure disk, Measure usbDrive)
    : QObject(parent)
{
    const auto capacityOf = [](const char* path, int blockSize) {
        return [path, blockSize] { return measureCapacity(QString::fromLatin1(path), blockSize); };
    };
    m_disk.measure = disk ? std::move(disk) : capacityOf("/home", DiskBlock);
    m_usbDrive.measure = usbDrive ? std::move(usbDrive) : capacityOf("/home/usbd", USBDriveBlock);
}

CStorageMeter::~CStorageMeter()
{
    drop(m_disk);
    drop(m_usbDrive);
}

void CStorageMeter::note(const StorageStatus& record)
{
    m_record = record;
    if (record.bIsMounted)
        return;
    drop(m_usbDrive);
    m_usbDrive.figures = StorageCapacity();
}

StorageStatus CStorageMeter::measureWithin(const StorageStatus& record, int ms)
{
    note(record);
    // Only what is begun here is waited for: a storage that hung at the last record hangs at this one.
    const std::pair<Gauge&, bool> gauges[]
        = {{m_disk, begin(m_disk)}, {m_usbDrive, record.bIsMounted && begin(m_usbDrive)}};
    const QDeadlineTimer deadline(ms);
    for (const auto& [gauge, isBegun] : gauges) {
        if (isBegun && gauge.run->isDone(gauge.figures, deadline))
            gauge.run.reset();
    }
    return completed();
}

bool CStorageMeter::begin(Gauge& gauge)
{
    if (gauge.run)
        return false;
    if (*gauge.runs >= MostRuns) {
        qWarning("Storage is not measured: %d measurings hang", MostRuns);
        return false;
    }
    auto run = std::make_shared<CRun>(this, gauge);
    try {
        std::thread([run] { (*run)(); }).detach();
    } catch (const std::system_error& error) {
        qWarning("Storage cannot be measured: %s", error.what());
        return false;
    }
    gauge.run = std::move(run);
    return true;
}

void CStorageMeter::drop(Gauge& gauge)
{
    if (gauge.run)
        gauge.run->forgetMeter();
    gauge.run.reset();
}

void CStorageMeter::take()
{
    bool isTaken = false;
    for (Gauge* gauge : {&m_disk, &m_usbDrive}) {
        if (!gauge->run || !gauge->run->isDone(gauge->figures, QDeadlineTimer(0)))
            continue;
        gauge->run.reset();
        isTaken = true;
    }
    if (isTaken) // else the one who asked has had the figures at once
        emit measured(completed());
}

StorageStatus CStorageMeter::completed() const
{
    return withCapacities(m_record, m_disk.figures, m_usbDrive.figures);
}
