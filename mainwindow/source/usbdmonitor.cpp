#include "usbdmonitor.h"

#include "filedescriptor.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

void CUsbdMonitor::onMountUSBDisk(bool mount)
{
    const char* const request = mount ? MountRequest : UmountRequest;
    ::unlink(mount ? UmountRequest : MountRequest); // mostly there is none
    // In a directory below /tmp a link of the same name must not lead elsewhere, and a pipe must not hold
    // this thread.
    int fd = -1;
    do {
        fd = ::open(request, O_WRONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0644);
    } while (fd < 0 && errno == EINTR);
    const CFileDescriptor file(fd);
    if (!file.isValid())
        qWarning("Can not ask the USB daemon: %s: %s", request, std::strerror(errno));
}
