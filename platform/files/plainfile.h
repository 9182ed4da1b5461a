#pragma once

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/**
 * Opens a file that others make for reading, if it is a plain one (by itself or behind a link) or a built-in
 * resource. A pipe, device, socket or directory of that name is left alone, and nothing is waited for but the
 * disk. How much is read of it is for the caller to bound. Any thread.
 *
 * @param file has its name set and is not open
 * @param reason gets why it was not opened; may be null
 */
inline bool openPlainFile(QFile& file, QString* reason = nullptr)
{
    if (file.fileName().startsWith(QLatin1Char(':')))
        return file.open(QIODevice::ReadOnly);

    const QByteArray path = QFile::encodeName(file.fileName());
    // Asked twice: a pipe or a device may notice that it is opened, and the name may stand for another file
    // by then.
    struct stat state = {};
    const auto isPlain = [&state](int result) {
        if (result == 0 && !S_ISREG(state.st_mode))
            errno = S_ISDIR(state.st_mode) ? EISDIR : EINVAL;
        return result == 0 && S_ISREG(state.st_mode);
    };
    int fd = -1;
    if (isPlain(::stat(path.constData(), &state))) {
        do {
            fd = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
        } while (fd < 0 && errno == EINTR);
        if (fd >= 0 && isPlain(::fstat(fd, &state))
            && file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
            return true;
    }
    if (reason)
        *reason = qt_error_string(errno);
    if (fd >= 0)
        ::close(fd);
    return false;
}
