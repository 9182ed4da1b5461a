#include "settingsfile.h"

#include "files/plainfile.h"
#include "wholefile.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QMutex>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QWaitCondition>

#include <algorithm>
#include <functional>
#include <future>
#include <system_error>
#include <thread>
#include <vector>

struct CSettingsFile::Shared
{
    QString name;
    QMutex mutex;
    QWaitCondition idle;
    QVariantMap values;
    bool isUnwritten = false; // the file does not hold the values yet
    bool isRunning = false; // there is a thread
};

namespace {

constexpr std::chrono::seconds ReadWait(1);
constexpr int FlushWait = 2000; // ms
constexpr qint64 MaxFileSize = qint64(1024) * 1024; // bytes; what is larger is none of ours

// The file that Qt gives the application below a directory of configurations, and the organization's.
QStringList fileNames(const QString& directory)
{
    QString organization = QCoreApplication::organizationName();
    if (organization.isEmpty())
        organization = QStringLiteral("Unknown Organization"); // as Qt does
    const QString start = directory + QLatin1Char('/') + organization;
    return {start + QLatin1Char('/') + QCoreApplication::applicationName() + QStringLiteral(".conf"),
        start + QStringLiteral(".conf")};
}

bool startThread(std::function<void()> work)
{
    try {
        std::thread(std::move(work)).detach();
    } catch (const std::system_error&) {
        return false;
    }
    return true;
}

bool openSettings(QFile& file)
{
    if (openPlainFile(file) && file.size() > MaxFileSize)
        file.close();
    return file.isOpen();
}

// The files are opened here, and Qt's object gets the open ones: it would open whatever has the name. All at
// a time, since Qt takes two files of one name, size and time for the same.
QVariantMap readFiles(const QStringList& names)
{
    std::vector<std::unique_ptr<QFile>> files;
    for (const QString& name : names) {
        files.push_back(std::make_unique<QFile>(name));
        if (!openSettings(*files.back()) && QFileInfo::exists(name))
            qWarning("[%s]: Settings can not be read.", qPrintable(name));
    }
    QVariantMap values;
    for (const auto& file : files) {
        if (!file->isOpen())
            continue;
        const QSettings stored(
            QStringLiteral("/proc/self/fd/%1").arg(file->handle()), QSettings::NativeFormat);
        const QStringList keys = stored.allKeys();
        for (const QString& key : keys) {
            if (!values.contains(key)) // an earlier file goes before
                values.insert(key, stored.value(key));
        }
    }
    return values;
}

// Qt's own writing does not notice that the end of the text found no room.
bool isWhole(const QByteArray& text, int keyCount)
{
    const QList<QByteArray> lines = text.split('\n');
    const auto isKey = [](const QByteArray& line) { return !line.isEmpty() && line[0] != '['; };
    return (text.isEmpty() || text.endsWith('\n'))
        && std::count_if(lines.cbegin(), lines.cend(), isKey) == keyCount;
}

// Why the values are not in the file; empty if they are. Qt composes the text in a private directory, where
// nobody else's lock can be; so a foreign one is neither waited for nor needed.
QString store(const QString& name, const QVariantMap& values)
{
    const QTemporaryDir place;
    if (!place.isValid())
        return place.errorString();
    const QString draft = place.filePath(QStringLiteral("settings"));
    QFile stored(name);
    const bool isOpen = openSettings(stored);
    const qint64 size = isOpen ? stored.size() : 0;
    const QByteArray before = isOpen ? stored.readAll() : QByteArray();
    stored.close();
    // A pipe or directory holds nothing of anybody's, and what is too large is none of ours; a file that
    // cannot be read, or not whole, may be.
    const QFileInfo there(name);
    if (before.size() < size || (!isOpen && there.isFile() && there.size() <= MaxFileSize))
        return QStringLiteral("What the file holds can not be read.");

    QString reason;
    if (!before.isEmpty() && writeWholeFile(draft, before, &reason) != WriteResult::Ok)
        return reason;
    QSettings settings(draft, QSettings::NativeFormat);
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        settings.setValue(value.key(), value.value());
    settings.sync();
    QFile composed(draft);
    const QByteArray text = composed.open(QIODevice::ReadOnly) ? composed.readAll() : QByteArray();
    if (settings.status() == QSettings::AccessError || !isWhole(text, settings.allKeys().size()))
        return qt_error_string(ENOSPC);

    QDir().mkpath(QFileInfo(name).path()); // where that fails, so does the next line
    if (text != before)
        writeWholeFile(name, text, &reason);
    return reason;
}

} // namespace

CMemorySettings::CMemorySettings()
    // No file can be made among the resources.
    : QSettings(QStringLiteral(":/settings-in-memory/settings"), QSettings::NativeFormat)
{ }

bool CMemorySettings::event(QEvent* event)
{
    return event->type() == QEvent::UpdateRequest || QSettings::event(event); // the request to write the file
}

CSettingsFile::CSettingsFile()
    : m_shared(std::make_shared<Shared>())
{
    m_shared->name
        = fileNames(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)).first();
}

CSettingsFile::~CSettingsFile()
{
    flush();
}

QVariantMap CSettingsFile::read() const
{
    QStringList names;
    const QStringList directories
        = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation); // the user's first
    for (const QString& directory : directories)
        names += fileNames(directory);
    const auto answer = std::make_shared<std::promise<QVariantMap>>();
    std::future<QVariantMap> values = answer->get_future();
    if (startThread([answer, names] { answer->set_value(readFiles(names)); })
        && values.wait_for(ReadWait) == std::future_status::ready)
        return values.get();
    qWarning("[%s]: Settings can not be read in time.", qPrintable(m_shared->name));
    return {};
}

void CSettingsFile::write(const QVariantMap& values)
{
    const QMutexLocker locker(&m_shared->mutex);
    m_shared->values = values;
    m_shared->isUnwritten = true;
    start();
}

void CSettingsFile::flush()
{
    const QMutexLocker locker(&m_shared->mutex);
    start();
    const QDeadlineTimer deadline(FlushWait);
    while (m_shared->isRunning && m_shared->idle.wait(&m_shared->mutex, deadline)) { }
    if (m_shared->isRunning)
        qWarning("[%s]: Settings can not be stored in time.", qPrintable(m_shared->name));
}

// With the mutex held.
void CSettingsFile::start()
{
    if (m_shared->isRunning || !m_shared->isUnwritten)
        return;
    m_shared->isRunning = startThread([shared = m_shared] {
        QMutexLocker locker(&shared->mutex);
        bool isStored = true;
        while (shared->isUnwritten) { // also what came while the thread was at the disk
            shared->isUnwritten = false;
            const QVariantMap values = shared->values;
            locker.unlock();
            const QString reason = store(shared->name, values);
            isStored = reason.isEmpty();
            if (!isStored)
                qWarning(
                    "[%s]: Settings can not be stored. %s", qPrintable(shared->name), qPrintable(reason));
            locker.relock();
        }
        shared->isUnwritten = !isStored;
        shared->isRunning = false;
        shared->idle.wakeAll();
    });
    if (!m_shared->isRunning)
        qWarning("[%s]: Settings can not be stored. No thread.", qPrintable(m_shared->name));
}
