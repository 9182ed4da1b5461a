// Orderly end on SIGHUP and SIGTERM: the handler writes one byte, the event loop reads it and acts. One that
// does not come in time, because a plug-in hangs, is ended by force.

#include "mainwindow.h"

#include "logwrite.h"
#include "pluginman.h"
#include "startup.h"

#include <QCoreApplication>
#include <QDebug>
#include <QSocketNotifier>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr unsigned END_LIMIT = 5; // seconds from the signal

std::atomic<bool> isLimitToBeSet{false}; // by the first signal; only where limitEnd() was called

void endByForce(int)
{
    CLogLine line("###Signal: no end within ");
    line.number(END_LIMIT).text(" s");
    if (const char* library = CPluginManager::callInProgress())
        line.text(", in a call of ").text(library);
    line.write();
    ::_exit(1);
}

} // namespace

int CMainWindow::signalFd[2] = {0, 0};

void limitEnd()
{
    struct sigaction action = {};
    action.sa_handler = endByForce;
    sigfillset(&action.sa_mask);
    sigaction(SIGALRM, &action, nullptr);
    sigset_t alarms;
    sigemptyset(&alarms);
    sigaddset(&alarms, SIGALRM);
    pthread_sigmask(SIG_UNBLOCK, &alarms, nullptr);
    isLimitToBeSet = true;
}

void CMainWindow::signalInit()
{
    qDebug("CMainWindow::signalInit()!!");
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signalFd) != 0)
        qFatal("Couldn't create signalFd");

    snTerminate = std::make_unique<QSocketNotifier>(signalFd[1], QSocketNotifier::Read);
    connect(snTerminate.get(), &QSocketNotifier::activated, this, &CMainWindow::handleSignal);

    // main() holds the two signals back until their bytes have somewhere to go.
    sigset_t held;
    sigemptyset(&held);
    sigaddset(&held, SIGHUP);
    sigaddset(&held, SIGTERM);
    pthread_sigmask(SIG_UNBLOCK, &held, nullptr);
}

void CMainWindow::signalHandler(int sig)
{
    const int savedErrno = errno;
    CLogLine("###Signal ").number(sig).text(" Terminate is comming!").write();
    if (signalFd[0]) {
        CLogLine("socket fd = ").number(signalFd[0]).write();
        const char byte = 1;
        // A full socket already holds bytes that will wake the loop: a failed write loses nothing.
        const ssize_t written = ::send(signalFd[0], &byte, sizeof byte, MSG_DONTWAIT | MSG_NOSIGNAL);
        Q_UNUSED(written)
    }
    if (isLimitToBeSet.exchange(false))
        ::alarm(END_LIMIT);
    errno = savedErrno;
}

void CMainWindow::handleSignal()
{
    qDebug("###Signal handleSignal ready to save profile");
    snTerminate->setEnabled(false);
    m_isTerminating = true;
    m_transitions.close();
    if (signalFd[1]) {
        char byte = 0;
        while (::read(signalFd[1], &byte, sizeof byte) < 0 && errno == EINTR) { }
    }
    saveSysSettings();
    QCoreApplication::quit();
}

void CMainWindow::saveSysSettings()
{
    m_pPluginMan->terminatePlugin();
}
