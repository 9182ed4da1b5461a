// What the shell makes sure of before there is anything of it: its process, and that it is the only one.

#include "startup.h"

#include "filedescriptor.h"
#include "standardstreams.h"

#include <QDeadlineTimer>
#include <QDebug>
#include <QThread>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace {

constexpr const char LOCK_FILE[] = "/run/mainframe.lock";
constexpr int LOCK_WAIT = 2000; // ms
constexpr unsigned long LOCK_PAUSE = 50; // ms

void logMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const QString line = qFormatLogMessage(type, context, text);
    if (!line.isNull())
        standardstreams::write(STDERR_FILENO, line.toLocal8Bit() + '\n');
    if (type == QtFatalMsg)
        standardstreams::drain(); // the process is aborted next
}

/** A plain file and nothing else: what stands there may be a link of somebody's, or a pipe. */
CFileDescriptor openLockFile()
{
    CFileDescriptor file(
        ::open(LOCK_FILE, O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY, 0644));
    if (!file.isValid() && errno == EACCES) // another user's, which locks as well
        file.reset(::open(LOCK_FILE, O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY));
    struct stat status = {};
    if (file.isValid() && (::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))) {
        file.reset();
        errno = EINVAL;
    }
    return file;
}

} // namespace

void prepareProcess()
{
    standardstreams::prepare();
    qInstallMessageHandler(logMessage);
    ::umask(S_IWGRP | S_IWOTH); // also for what commands write: others read those files too
    // Caught, not ignored: a program that is started gets a caught signal's default back, and would inherit
    // an ignored one.
    struct sigaction action = {};
    action.sa_handler = [](int) {};
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(SIGPIPE, &action, nullptr);
}

bool lockInstrument()
{
    static const CFileDescriptor file
        = openLockFile(); // closed by the end of the process, however that comes
    const QDeadlineTimer deadline(LOCK_WAIT);
    while (!file.isValid() || ::flock(file.get(), LOCK_EX | LOCK_NB) != 0) {
        if (!file.isValid() || (errno != EWOULDBLOCK && errno != EINTR)) {
            qWarning("Can not lock %s - %s; another shell would not be noticed", LOCK_FILE,
                qPrintable(qt_error_string(errno)));
            return true;
        }
        if (deadline.hasExpired()) {
            qCritical("Another shell runs on this instrument (it holds %s)", LOCK_FILE);
            return false;
        }
        QThread::msleep(LOCK_PAUSE);
    }
    return true;
}
