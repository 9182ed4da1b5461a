"""Private mount, ipc and pid namespaces and the instrument's file tree in them.

Plain system calls through ctypes: the mount command of Debian 12 cannot make a whole tree read-only in one step,
and unshare(1) holds back the signals that have to reach the command.
"""
import ctypes
import os

libc = ctypes.CDLL(None, use_errno=True)

CLONE_NEWNS, CLONE_NEWIPC, CLONE_NEWUSER, CLONE_NEWPID = 0x00020000, 0x08000000, 0x10000000, 0x20000000
MS_RDONLY, MS_NOSUID, MS_NODEV, MS_NOEXEC, MS_BIND, MS_REC, MS_PRIVATE = 1, 2, 4, 8, 4096, 16384, 1 << 18
SYS_OPEN_TREE, SYS_MOVE_MOUNT, SYS_MOUNT_SETATTR = 428, 429, 442  # the same numbers on every architecture
OPEN_TREE_CLONE, OPEN_TREE_CLOEXEC = 1, os.O_CLOEXEC
AT_FDCWD, AT_EMPTY_PATH, AT_RECURSIVE = -100, 0x1000, 0x8000
MOVE_MOUNT_F_EMPTY_PATH = 4
MNT_DETACH = 2
MOUNT_ATTR_RDONLY = 1
PR_SET_PDEATHSIG, PR_CAPBSET_DROP = 1, 24
# Powers over the machine itself that no namespace confines: network set-up, modules, raw I/O, reboot, clock, nodes.
DROPPED_CAPABILITIES = (12, 16, 17, 22, 25, 27)

# Writable places of a unit: path, mode, kept by --state.
PLACES = (
    ("/home", 0o755, True),
    ("/tmp", 0o1777, True),
    ("/run", 0o755, False),
    ("/var/tmp", 0o1777, False),
    ("/usr/local/arvo", 0o755, True),
    ("/usr/local/module", 0o755, True),
)
DEVICES = ("null", "zero", "full", "random", "urandom", "tty")


class Refused(Exception):
    """The kernel or a container does not let us make the namespaces or mounts."""


def _check(result, what):
    if result < 0:
        number = ctypes.get_errno()
        raise Refused("%s: %s" % (what, os.strerror(number)))
    return result


class _MountAttr(ctypes.Structure):
    _fields_ = [(name, ctypes.c_uint64) for name in ("attr_set", "attr_clr", "propagation", "userns_fd")]


def _syscall(what, number, *arguments):
    converted = [a.encode() if isinstance(a, str) else a for a in arguments]
    converted = [ctypes.c_long(a) if isinstance(a, int) else a for a in converted]
    return _check(libc.syscall(ctypes.c_long(number), *converted), what)


def mount(source, target, kind, flags=0, data=None):
    encode = lambda text: None if text is None else text.encode()
    _check(libc.mount(encode(source), encode(target), encode(kind), ctypes.c_ulong(flags), encode(data)),
           "mount %s" % target)


def make_readonly(fd, path, recursive=True):
    attr = _MountAttr(attr_set=MOUNT_ATTR_RDONLY)
    flags = (AT_RECURSIVE if recursive else 0) | (AT_EMPTY_PATH if not path else 0)
    _syscall("read-only %s" % path, SYS_MOUNT_SETATTR, fd, path, flags, ctypes.byref(attr), ctypes.sizeof(attr))


def clone_tree(path, readonly):
    """A detached copy of the mounts at path; attach() puts it somewhere."""
    fd = _syscall("open %s" % path, SYS_OPEN_TREE, AT_FDCWD, path,
                  OPEN_TREE_CLONE | OPEN_TREE_CLOEXEC | AT_RECURSIVE)
    if readonly:
        make_readonly(fd, "")
    return fd


def attach(fd, target):
    _syscall("attach %s" % target, SYS_MOVE_MOUNT, fd, "", AT_FDCWD, target, MOVE_MOUNT_F_EMPTY_PATH)
    os.close(fd)


def die_with_parent():
    libc.prctl(PR_SET_PDEATHSIG, ctypes.c_ulong(9), 0, 0, 0)


def enter():
    """Moves the caller into new namespaces; its next child is process 1 there. True when a user namespace was
    needed, that is without the privilege to do it directly."""
    wanted = CLONE_NEWNS | CLONE_NEWIPC | CLONE_NEWPID
    if os.geteuid() == 0 and libc.unshare(wanted) == 0:
        return False
    uid, gid = os.geteuid(), os.getegid()
    _check(libc.unshare(wanted | CLONE_NEWUSER), "unshare")
    try:
        for name, text in (("setgroups", "deny"), ("uid_map", "0 %d 1" % uid), ("gid_map", "0 %d 1" % gid)):
            with open("/proc/self/" + name, "w", encoding="ascii") as stream:
                stream.write(text)
    except OSError as error:
        raise Refused(str(error)) from error
    return True


def _is_below(path, directory):
    return path == directory or path.startswith(directory + "/")


def _overlay_option(path):
    for special in "\\:,":
        path = path.replace(special, "\\" + special)
    return path


def _private_dev():
    nodes = {name: clone_tree("/dev/" + name, False) for name in DEVICES}
    mount("tmpfs", "/dev", "tmpfs", MS_NOSUID, "mode=755")
    for name, fd in nodes.items():
        os.close(os.open("/dev/" + name, os.O_CREAT | os.O_WRONLY, 0o666))
        attach(fd, "/dev/" + name)
    for name, target in (("fd", "/proc/self/fd"), ("stdin", "/proc/self/fd/0"), ("stdout", "/proc/self/fd/1"),
                         ("stderr", "/proc/self/fd/2"), ("ptmx", "pts/ptmx")):
        os.symlink(target, "/dev/" + name)
    os.mkdir("/dev/pts")
    mount("devpts", "/dev/pts", "devpts", MS_NOSUID | MS_NOEXEC, "newinstance,ptmxmode=0666,mode=0620")
    os.mkdir("/dev/shm")
    mount("tmpfs", "/dev/shm", "tmpfs", MS_NOSUID | MS_NODEV, "mode=1777")


def _private_proc():
    mount("proc", "/proc", "proc", MS_NOSUID | MS_NODEV | MS_NOEXEC)
    for name in ("sys", "sysrq-trigger", "irq", "bus"):
        path = "/proc/" + name
        if os.path.exists(path):
            mount(path, path, None, MS_BIND | MS_REC)
            make_readonly(AT_FDCWD, path)


def detach(path):
    """Takes away a file that build_tree() laid over; best effort."""
    libc.umount2(path.encode(), MNT_DETACH)
    os.unlink(path)


def joining(first):
    """The nsenter call that runs a command beside process `first`; append the command."""
    same_user = os.readlink("/proc/%d/ns/user" % first) == os.readlink("/proc/self/ns/user")
    return (["nsenter", "-t", str(first)] + ([] if same_user else ["--user", "--preserve-credentials"])
            + ["--mount", "--ipc", "--pid", "--"])


def build_tree(source, visible, outputs, state, sockets):
    """Lays the instrument's tree over the machine's, for process 1 of the namespaces.

    source: the checkout; visible: directories that stay visible, read-only, at their own paths; outputs:
    directories that stay writable at their own paths; state: directory that keeps the writable places, or None;
    sockets: paths of sockets of the machine that stay in reach.
    """
    mount(None, "/", None, MS_REC | MS_PRIVATE)
    covered = [place for place, _, _ in PLACES] + ["/dev", "/proc", "/usr"]
    seen = {path: clone_tree(path, True) for path in visible
            if path not in outputs and any(_is_below(path, place) for place in covered)}
    kept = {path: clone_tree(path, False) for path in outputs}
    reached = {path: clone_tree(path, False) for path in sockets}
    stores = {}
    if state:
        for place, mode, stays in PLACES:
            if stays:
                store = os.path.join(state, place.strip("/").replace("/", "-"))
                os.makedirs(store, exist_ok=True)
                os.chmod(store, mode)
                stores[place] = clone_tree(store, False)
    make_readonly(AT_FDCWD, "/")
    mount("instrument", "/usr", "overlay", MS_RDONLY,
          "lowerdir=%s:/usr" % _overlay_option(os.path.join(source, "simulator/rootfs/usr")))
    for place, mode, _ in PLACES:
        if place in stores:
            attach(stores[place], place)
        else:
            mount("tmpfs", place, "tmpfs", MS_NOSUID | MS_NODEV, "mode=%o" % mode)
    _private_dev()
    _private_proc()
    for path, tree in sorted({**seen, **kept}.items(), key=lambda item: len(item[0])):
        os.makedirs(path, exist_ok=True)
        attach(tree, path)
    for path, tree in reached.items():
        os.makedirs(os.path.dirname(path), exist_ok=True)
        os.close(os.open(path, os.O_CREAT | os.O_WRONLY, 0o600))
        attach(tree, path)


def drop_machine_powers():
    for capability in DROPPED_CAPABILITIES:
        libc.prctl(PR_CAPBSET_DROP, ctypes.c_ulong(capability), 0, 0, 0)
