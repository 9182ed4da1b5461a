#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <csignal>
#include <sys/mount.h>
#include <sys/resource.h>

/** A real disk of some kilobytes over a directory, as long as it lives. Not every instrument can mount one.
 */
class CSmallDisk
{
public:
    CSmallDisk(const QString& directory, int kilobytes)
        : m_directory(QFile::encodeName(directory))
    {
        QDir().mkpath(directory);
        const QByteArray size = "mode=755,size=" + QByteArray::number(kilobytes) + "k";
        m_isMounted
            = ::mount("test", m_directory.constData(), "tmpfs", MS_NOSUID | MS_NODEV, size.constData()) == 0;
    }
    ~CSmallDisk()
    {
        if (m_isMounted)
            ::umount2(m_directory.constData(), MNT_DETACH);
    }
    CSmallDisk(const CSmallDisk&) = delete;
    CSmallDisk& operator=(const CSmallDisk&) = delete;

    bool isMounted() const { return m_isMounted; }

    /** Leaves room for nothing. */
    void fill() const
    {
        QFile file(fillerName());
        if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            while (file.write(QByteArray(4096, 'x')) > 0) { }
    }
    void makeRoom() const { QFile::remove(fillerName()); }

private:
    QString fillerName() const { return QFile::decodeName(m_directory) + QStringLiteral("/filler"); }

    QByteArray m_directory;
    bool m_isMounted;
};

/** No file of this process grows beyond `bytes` while this lives: what a full disk does. */
class CFileSizeLimit
{
public:
    explicit CFileSizeLimit(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small = {bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~CFileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    CFileSizeLimit(const CFileSizeLimit&) = delete;
    CFileSizeLimit& operator=(const CFileSizeLimit&) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int);
};
