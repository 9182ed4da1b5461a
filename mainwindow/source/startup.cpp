#include "startup.h"

#include "commutils.h"
#include "logwrite.h"
#include "mainwindow.h"
#include "standardstreams.h"
#include "wholefile.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <QThread>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int RECOVER_ATTEMPTS = 5;
constexpr unsigned long RECOVER_PAUSE = 100; // ms
constexpr qint64 MIN_ROOM = 65536; // bytes that stay free beside what was moved aside
constexpr size_t FRAMEBUFFER_BYTES = 768000; // 800 by 480 pixels of 16 bits

constexpr const char RESULT_DIR[] = "/home/root/.resultmanager";

bool ensureDirectory(const QString& path)
{
    // mkpath() succeeds for a directory that is there, and fails for a file of that name.
    if (QDir().mkpath(path))
        return true;
    qWarning("[zentra mainframe]: Can not initialize configuration.");
    return false;
}

void drop(const QString& path)
{
    if (!QFile::remove(path)) // a directory that had a file's name may be there
        QDir(path).removeRecursively();
}

/** Moves a file that could not be read aside, so that what it holds is not lost. */
void keepRejected(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists() || file.size() == 0)
        return;
    const QString rejected = path + QStringLiteral(".rejected");
    drop(rejected);
    QFile::rename(path, rejected);
}

/** Replaces a configuration file by its built-in default. What was moved aside goes if it takes the room. */
void restoreDefault(const QString& path, const QString& name)
{
    QFile::remove(path);
    QFile source(QStringLiteral(":/conf/%1").arg(name));
    const QByteArray content = source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
    // A change of a setting writes the next file beside this one.
    if (writeWholeFile(path, content) == WriteResult::Ok && QStorageInfo(path).bytesAvailable() >= MIN_ROOM)
        return;
    const QFileInfoList rejected
        = QDir(QFileInfo(path).path())
              .entryInfoList({QStringLiteral("*.rejected")}, QDir::AllEntries | QDir::Hidden | QDir::System);
    for (const QFileInfo& file : rejected)
        drop(file.filePath());
    writeWholeFile(path, content);
}

bool recoverFile(const QString& path, const QString& name)
{
    for (int attempt = 0; attempt < RECOVER_ATTEMPTS; ++attempt) {
        if (CUICommUtils::checkConfFile(path))
            return true;
        if (attempt == 0) {
            qWarning("[%s]: Configuration is %s, replaced by the built-in default", qPrintable(path),
                QFile::exists(path) ? "not readable" : "missing");
            keepRejected(path);
        }
        restoreDefault(path, name);
        QThread::msleep(RECOVER_PAUSE);
    }
    // The last copy is not looked at any more: a file that only it would have repaired counts as lost.
    qWarning().noquote() << QStringLiteral("[%1]: Can not recover configuration").arg(path);
    return false;
}

} // namespace

bool initConfiguration()
{
    const QString confDir = CUICommUtils::getConfPath();
    const QString resultDir = QString::fromLatin1(RESULT_DIR);
    if (!ensureDirectory(confDir) || !ensureDirectory(resultDir))
        return false;

    const struct
    {
        QString name;
        QString directory;
    } files[] = {
        {QStringLiteral("zentra-settings.xml"), confDir},
        {QStringLiteral("widget-style.xml"), confDir},
        {QStringLiteral("result-config.xml"), resultDir},
        {QStringLiteral("result-type-config.xml"), resultDir},
    };
    for (const auto& file : files) {
        if (!recoverFile(file.directory + QLatin1Char('/') + file.name, file.name))
            return false;
    }
    return true;
}

void setup_unix_signal_handlers()
{
    sigset_t held;
    sigemptyset(&held);
    for (const int sig : {SIGHUP, SIGTERM}) {
        struct sigaction action = {};
        action.sa_handler = CMainWindow::signalHandler;
        sigemptyset(&action.sa_mask);
        action.sa_flags = SA_RESTART;
        sigaction(sig, &action, nullptr);
        sigaddset(&held, sig);
    }
    limitEnd();
    // There is no event loop to wake yet: the signals wait until CMainWindow::signalInit() lets them through.
    pthread_sigmask(SIG_BLOCK, &held, nullptr);
}

void child_handler(int sig)
{
    Q_UNUSED(sig)
    const int savedErrno = errno;
    while (::waitpid(-1, nullptr, 0) > 0) { }
    errno = savedErrno;
}

void clearScreen(int value)
{
    const int fd = ::open("/dev/fb0", O_RDWR | O_CLOEXEC);
    if (fd) {
        void* memory = ::mmap(nullptr, FRAMEBUFFER_BYTES, PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0);
        if (memory != MAP_FAILED) {
            std::memset(memory, value, FRAMEBUFFER_BYTES);
            ::munmap(memory, FRAMEBUFFER_BYTES);
        }
        ::close(fd);
    }
}

void exit_sig_handler(int sig)
{
    Q_UNUSED(sig)
    clearScreen(0);
    std::exit(0);
}

void poweroff_sig_handler(int sig)
{
    CLogLine("poweroff_sig_handler signo=").number(sig).write(STDOUT_FILENO);
}
