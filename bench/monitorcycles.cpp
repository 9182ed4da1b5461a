// What one cycle of the device monitor costs, with nothing between the cycles. Prints one JSON object:
// processor time of this process alone in ms a cycle, processes started a cycle, and what the cycles left
// behind.
#include "devicemonitor.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cstdio>
#include <sys/resource.h>

namespace {

double ownCpuMs()
{
    rusage used = {};
    ::getrusage(RUSAGE_SELF, &used);
    const auto ms
        = [](const timeval& time) { return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3; };
    return ms(used.ru_utime) + ms(used.ru_stime);
}

/** The number given last to a process of this instrument. */
int lastPid()
{
    QFile file(QStringLiteral("/proc/loadavg"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().split(' ').last().toInt() : 0;
}

int residentKiB()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toInt() * 4 : 0;
}

int descriptors()
{
    return int(QDir(QStringLiteral("/proc/self/fd")).count());
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const int cycles = application.arguments().value(1, QStringLiteral("1000")).toInt();
    CDeviceMonitor monitor;
    for (int i = 0; i < 20; ++i)
        monitor.runCycle();
    const int fds = descriptors();
    const int resident = residentKiB();
    const int pid = lastPid();
    const double cpu = ownCpuMs();
    for (int i = 0; i < cycles; ++i)
        monitor.runCycle();
    std::printf(
        "{\"monitor_cpu\": %.4f, \"monitor_processes\": %.3f, \"monitor_fds\": %d, \"monitor_rss\": %d}\n",
        (ownCpuMs() - cpu) / cycles, double(lastPid() - pid) / cycles, descriptors() - fds,
        residentKiB() - resident);
    return 0;
}
