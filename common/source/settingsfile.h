#pragma once

#include <QSettings>
#include <QString>
#include <QVariantMap>

#include <memory>

/** Qt's settings object without a file of its own: it never opens, locks or writes one. */
class CMemorySettings : public QSettings
{
public:
    CMemorySettings();

protected:
    bool event(QEvent* event) override;
};

/**
 * The application's native settings file, in Qt's format at Qt's place. Whatever stands at its name or at its
 * lock's name, and however slow or full the disk is: the caller waits for no longer than said here, since a
 * thread of its own reads and writes the file. The file is all old or all new at any time, and keeps what
 * others put into it. A failure is logged.
 *
 * Any thread.
 */
class CSettingsFile
{
public:
    CSettingsFile();
    /** As flush(). */
    ~CSettingsFile();
    CSettingsFile(const CSettingsFile&) = delete;
    CSettingsFile& operator=(const CSettingsFile&) = delete;

    /**
     * What earlier processes stored, with what the unit's system-wide files hold for keys without a value.
     * All of it is text. Waits at most a second; empty if that is too short.
     */
    QVariantMap read() const;

    /** The file shall hold these values; returns at once. Values of an earlier call may have been left out.
     */
    void write(const QVariantMap& values);

    /** Waits until the file holds the values, at most two seconds; what failed before is tried once more. */
    void flush();

private:
    struct Shared;
    void start();

    std::shared_ptr<Shared> m_shared; // with the thread, which may outlive this object
};
