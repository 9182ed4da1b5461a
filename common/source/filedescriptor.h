#pragma once

#include <unistd.h>

/**
 * Owner of one file descriptor: closes it when it goes out of scope. Movable, not copyable.
 *
 * close() is called once and never retried: on Linux the descriptor is gone even when the call was
 * interrupted.
 */
class CFileDescriptor
{
public:
    CFileDescriptor() = default;
    explicit CFileDescriptor(int fd)
        : m_fd(fd)
    { }
    CFileDescriptor(CFileDescriptor&& other) noexcept
        : m_fd(other.release())
    { }
    CFileDescriptor& operator=(CFileDescriptor&& other) noexcept
    {
        if (this != &other)
            reset(other.release());
        return *this;
    }
    CFileDescriptor(const CFileDescriptor&) = delete;
    CFileDescriptor& operator=(const CFileDescriptor&) = delete;
    ~CFileDescriptor() { reset(); }

    int get() const { return m_fd; }
    bool isValid() const { return m_fd >= 0; }

    /** Closes the descriptor held so far and takes over `fd`. */
    void reset(int fd = -1)
    {
        if (m_fd >= 0)
            ::close(m_fd);
        m_fd = fd;
    }

    /** Gives the descriptor away; the caller closes it. */
    int release()
    {
        const int fd = m_fd;
        m_fd = -1;
        return fd;
    }

private:
    int m_fd = -1;
};
