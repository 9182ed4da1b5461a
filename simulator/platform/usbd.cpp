// The USB daemon: takes up the shell's requests to take the drive in or to release it.
//
// A request is an empty file in the marker directory ("req-mount", "req-umount"). The daemon removes it and,
// when a drive is plugged in ("stat-plugged"), tells the outcome by "stat-mounted". Runs until it is ended.
#include <cstdio>
#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr char Directory[] = "/tmp/var/lib/usbd";
constexpr char Plugged[] = "/tmp/var/lib/usbd/stat-plugged";
constexpr char Mounted[] = "/tmp/var/lib/usbd/stat-mounted";

constexpr struct
{
    const char* file;
    bool mounts;
} Requests[] = {
    {"/tmp/var/lib/usbd/req-mount", true},
    {"/tmp/var/lib/usbd/req-umount", false},
};

void setMounted(bool mounted)
{
    if (!mounted) {
        ::unlink(Mounted);
        return;
    }
    if (::access(Plugged, F_OK) != 0) {
        std::fprintf(stderr, "usbd: no drive to mount\n");
        return;
    }
    const int fd = ::open(Mounted, O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
    if (fd >= 0)
        ::close(fd);
}

void takeUpRequests()
{
    for (const auto& request : Requests) {
        if (::unlink(request.file) == 0)
            setMounted(request.mounts);
    }
}

} // namespace

int main()
{
    ::mkdir(Directory, 0755);
    const int watch = ::inotify_init1(IN_CLOEXEC);
    if (watch < 0 || ::inotify_add_watch(watch, Directory, IN_CREATE | IN_MOVED_TO) < 0) {
        std::perror("usbd: cannot watch the marker directory");
        return 1;
    }
    alignas(inotify_event) char events[4096];
    do
        takeUpRequests(); // what was left before the watch began, too
    while (::read(watch, events, sizeof events) > 0);
    return 0;
}
