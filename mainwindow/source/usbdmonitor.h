#pragma once

#include "devicemonitor.h"

/**
 * The device monitor of a unit whose USB daemon takes requests: it passes them on as marker files beside the
 * daemon's own ("stat-plugged", "stat-mounted"). The daemon removes a request when it has taken it up, and
 * tells the outcome by its own markers.
 */
class CUsbdMonitor : public CDeviceMonitor
{
    Q_OBJECT

public:
    /** Directory in which daemon and shell leave their markers; the daemon makes it. */
    static constexpr char Directory[] = "/tmp/var/lib/usbd";
    /** Empty file: the disk is to be taken in, and to be released. At most one of the two exists. */
    static constexpr char MountRequest[] = "/tmp/var/lib/usbd/req-mount";
    static constexpr char UmountRequest[] = "/tmp/var/lib/usbd/req-umount";

    using CDeviceMonitor::CDeviceMonitor;
    ~CUsbdMonitor() override { stop(); }

    /** Leaves the request and takes back an opposite one. One that cannot be left is a line in the log. */
    void onMountUSBDisk(bool mount) override;
};
