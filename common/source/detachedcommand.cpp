#include "detachedcommand.h"

#include <QByteArray>
#include <QStandardPaths>
#include <QVarLengthArray>
#include <QVector>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>

namespace {

// What the two processes on the way to the command report to the starter, through a pipe that exec closes.
enum class Event : int { Running, Failed };

struct Report
{
    Event event;
    int value; // Running: process id; Failed: errno
};

// Everything the processes between fork and exec need, prepared before the fork: there only async-signal-safe
// calls are allowed.
struct Launch
{
    const char* program;
    char* const* arguments;
    char* const* environment;
    int input;
    int output;
    int reports;
    int descriptorLimit;
};

// Moves a descriptor away from 0, 1 and 2 (which may be closed in this process), so that putting the
// descriptors into their standard places overwrites none of them and takes the close-on-exec mark off.
bool moveUp(CFileDescriptor& descriptor)
{
    if (descriptor.isValid() && descriptor.get() <= STDERR_FILENO)
        descriptor.reset(::fcntl(descriptor.get(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
    return descriptor.isValid();
}

bool openPipe(CFileDescriptor& readEnd, CFileDescriptor& writeEnd)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return false;
    readEnd.reset(ends[0]);
    writeEnd.reset(ends[1]);
    return moveUp(readEnd) && moveUp(writeEnd);
}

QString findProgram(const QString& name)
{
    if (name.isEmpty() || name.contains(QLatin1Char('/')))
        return name;
    QString found = QStandardPaths::findExecutable(name);
    if (!found.isEmpty())
        return found;
    // The tools of a unit live in directories that a user's PATH may lack.
    return QStandardPaths::findExecutable(name,
        {QStringLiteral("/usr/local/sbin"), QStringLiteral("/usr/local/bin"), QStringLiteral("/usr/sbin"),
            QStringLiteral("/usr/bin"), QStringLiteral("/sbin"), QStringLiteral("/bin")});
}

QList<QByteArray> keptTexts;
QVector<char*> kept; // their addresses and a null; empty: nothing is kept

void sendReport(int fd, Event event, int value)
{
    const Report report = {event, value};
    while (::write(fd, &report, sizeof report) < 0 && errno == EINTR) { }
}

bool receiveReport(int fd, Report& report)
{
    ssize_t count;
    do {
        count = ::read(fd, &report, sizeof report); // shorter than PIPE_BUF: arrives whole
    } while (count < 0 && errno == EINTR);
    return count == static_cast<ssize_t>(sizeof report);
}

/** @param spared the one descriptor beside the standard ones that stays, -1 for none */
void closeOthers(int spared, int limit)
{
    if (spared > 3)
        ::close_range(3, unsigned(spared) - 1, 0);
    if (::close_range(unsigned(spared > 2 ? spared + 1 : 3), ~0U, 0) == 0)
        return;
    for (int fd = 3; fd < limit; ++fd) { // a kernel without close_range
        if (fd != spared)
            ::close(fd);
    }
}

int descriptorLimit()
{
    rlimit limit = {};
    ::getrlimit(RLIMIT_NOFILE, &limit);
    return static_cast<int>(qMin<rlim_t>(limit.rlim_cur, 65536));
}

void restoreSignals()
{
    struct sigaction action = {};
    action.sa_handler = SIG_DFL;
    for (int number = 1; number < NSIG; ++number)
        ::sigaction(
            number, &action, nullptr); // fails for SIGKILL, SIGSTOP and the C library's own, as it should
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

[[noreturn]] void runCommand(const Launch& launch)
{
    ::setpgid(0, 0);
    sendReport(launch.reports, Event::Running, ::getpid());
    if (::dup2(launch.input, STDIN_FILENO) >= 0 && ::dup2(launch.output, STDOUT_FILENO) >= 0
        && ::dup2(launch.output, STDERR_FILENO) >= 0) {
        closeOthers(launch.reports, launch.descriptorLimit);
        restoreSignals();
        ::execve(launch.program, launch.arguments, launch.environment);
    }
    sendReport(launch.reports, Event::Failed, errno);
    ::_exit(127);
}

/**
 * Forks a child that does `work` and ends; the parent's result is fork()'s. No handler of this process may
 * run in the child and its children: they share its signal pipe. So they start with every signal blocked.
 */
template <typename Work> pid_t forkQuietly(const Work& work)
{
    sigset_t all, before;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before);
    const pid_t child = ::fork();
    if (child == 0) {
        work();
        ::_exit(0);
    }
    const int forkError = errno;
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    errno = forkError;
    return child;
}

void waitFor(pid_t child)
{
    // ECHILD is fine: the SIGCHLD handler, in whatever thread it runs, may have been faster.
    while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) { }
}

} // namespace

bool CDetachedCommand::start(const QStringList& argv, Output output)
{
    m_output.reset();
    m_process.reset();
    m_pid = -1;
    m_errorText.clear();

    const QString name = argv.value(0);
    const QByteArray program = findProgram(name).toLocal8Bit();
    if (program.isEmpty())
        return fail(name, ENOENT);
    QList<QByteArray> texts;
    QVarLengthArray<char*, 16> arguments;
    for (const QString& argument : argv)
        texts << argument.toLocal8Bit();
    for (QByteArray& text : texts)
        arguments.append(text.data());
    arguments.append(nullptr);

    CFileDescriptor reportRead, reportWrite, outputRead, outputWrite;
    if (!openPipe(reportRead, reportWrite) || (output == Output::Pipe && !openPipe(outputRead, outputWrite)))
        return fail(name, errno);
    CFileDescriptor null(::open("/dev/null", O_RDWR | O_CLOEXEC));
    if (!moveUp(null))
        return fail(name, errno);
    const Launch launch = {program.constData(), arguments.constData(), environment(), null.get(),
        output == Output::Pipe ? outputWrite.get() : null.get(), reportWrite.get(), descriptorLimit()};

    const pid_t child = forkQuietly([&launch] {
        const pid_t command = ::fork();
        if (command == 0)
            runCommand(launch);
        if (command < 0)
            sendReport(launch.reports, Event::Failed, errno);
    });
    if (child < 0)
        return fail(name, errno);
    waitFor(child);
    reportWrite.reset();
    outputWrite.reset();

    Report report = {};
    while (receiveReport(reportRead.get(), report)) {
        if (report.event == Event::Failed) {
            m_process.reset();
            m_pid = -1;
            return fail(name, report.value);
        }
        m_pid = report.value;
        m_process.reset(int(::syscall(SYS_pidfd_open, m_pid, 0))); // it has yet to become the program
    }
    if (m_pid < 0)
        return fail(name, ECHILD); // killed before it could say why

    if (outputRead.isValid())
        ::fcntl(outputRead.get(), F_SETFL, O_NONBLOCK);
    m_output = std::move(outputRead);
    return true;
}

void CDetachedCommand::keepEnvironment()
{
    keptTexts.clear();
    kept.clear();
    for (char** variable = environ; *variable; ++variable)
        keptTexts << QByteArray(*variable);
    for (QByteArray& text : keptTexts)
        kept << text.data();
    kept << nullptr;
}

char* const* CDetachedCommand::environment()
{
    return kept.isEmpty() ? environ : kept.constData();
}

bool CDetachedCommand::runApart(void (*work)(const void* data), const void* data)
{
    const CFileDescriptor null(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    const int input = null.get();
    const int limit = descriptorLimit();
    const pid_t child = forkQuietly([=] {
        if (::_Fork() != 0) // fork() is not async-signal-safe
            return; // a failure costs the work, and nobody is there to tell
        ::setpgid(0, 0);
        ::dup2(input, STDIN_FILENO);
        closeOthers(-1, limit);
        restoreSignals();
        work(data);
    });
    if (child < 0) {
        qWarning("Can not make a process - %s", std::strerror(errno));
        return false;
    }
    waitFor(child);
    return true;
}

bool CDetachedCommand::terminate(int signalNumber)
{
    return m_pid > 0 && ::kill(-m_pid, signalNumber) == 0;
}

bool CDetachedCommand::isRunningAfter(int ms) const
{
    pollfd entry = {m_process.get(), POLLIN, 0};
    int ready = 0;
    while (m_process.isValid() && (ready = ::poll(&entry, 1, ms)) < 0 && errno == EINTR) { }
    return m_process.isValid() && ready == 0;
}

bool CDetachedCommand::fail(const QString& program, int error)
{
    m_errorText = QStringLiteral("%1: %2").arg(program, QString::fromLocal8Bit(std::strerror(error)));
    return false;
}
