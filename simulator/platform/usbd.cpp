// The USB daemon: takes up the shell's requests to take the drive in or to release it.
//
// A request is an empty file in the marker directory ("req-mount", "req-umount"). The daemon removes it and,
// when a drive is plugged in ("stat-plugged"), does what it asks for by simctl. Runs until it is ended.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr char Directory[] = "/tmp/var/lib/usbd";
constexpr char Plugged[] = "/tmp/var/lib/usbd/stat-plugged";

constexpr struct
{
    const char* file;
    const char* command;
} Requests[] = {
    {"/tmp/var/lib/usbd/req-mount", "simctl usb mount"},
    {"/tmp/var/lib/usbd/req-umount", "simctl usb release"},
};

void takeUpRequests()
{
    for (const auto& request : Requests) {
        if (::unlink(request.file) != 0)
            continue;
        if (::access(Plugged, F_OK) != 0)
            std::fprintf(stderr, "usbd: no drive for %s\n", request.file);
        else if (std::system(request.command) != 0)
            std::fprintf(stderr, "usbd: '%s' failed\n", request.command);
    }
}

} // namespace

int main()
{
    const int watch = ::inotify_init1(IN_CLOEXEC);
    alignas(inotify_event) char events[4096];
    for (;;) {
        // Each time: a directory that somebody removed takes its watch along. Watching it twice is watching
        // it once.
        ::mkdir(Directory, 0755);
        if (watch < 0
            || ::inotify_add_watch(watch, Directory, IN_CREATE | IN_MOVED_TO | IN_DELETE_SELF | IN_MOVE_SELF)
                < 0) {
            std::perror("usbd: cannot watch the marker directory");
            return 1;
        }
        takeUpRequests(); // what was left before the watch began, too
        if (::read(watch, events, sizeof events) <= 0 && errno != EINTR) {
            std::perror("usbd: the watch ended");
            return 1;
        }
    }
}
