"""What runs beside the command inside an instrument: files of a fresh unit, the platform's processes, the screen."""
import os
import select
import shutil
import signal
import time

RUN = "/run/instrument"
BUS = "/run/dbus/system_bus_socket"
TOOLS = RUN + "/bin"  # links: a directory of the checkout could not stand in PATH whatever its name
START_LIMIT_S = 20
IGNORED_BY_PYTHON = (signal.SIGPIPE, signal.SIGXFSZ)

# Directories that exist on a unit after power-on.
DIRECTORIES = (
    "/home/root", "/home/arvo/arvo-prof/arvoglobal-setting", "/home/usbd", "/run/dbus", TOOLS,
    "/tmp/var/dev", "/tmp/var/etc", "/tmp/var/log", "/tmp/var/sim",
    "/tmp/var/lib/usbd", "/tmp/var/lib/vnc", "/tmp/var/lib/wmsv",
    "/usr/local/arvo/bin", "/usr/local/arvo/plugins", "/usr/local/module",
)
PROFILES = {"bare": (), "screen": ("x",), "full": ("x", "bus", "daemon", "wm")}


class StartError(Exception):
    """A part of the instrument did not come up; the text says which and shows its log."""


def runtime_directory():
    return "/run/user/%d" % os.geteuid()


def populate(source, build):
    """Fills the writable places; what a kept state already holds stays, but for the plug-ins just built."""
    for path in DIRECTORIES:
        os.makedirs(path, exist_ok=True)
    runtime = runtime_directory()
    os.makedirs(runtime, mode=0o700, exist_ok=True)
    shutil.copytree(os.path.join(source, "simulator/rootfs/usr/local/arvo"), "/usr/local/arvo", dirs_exist_ok=True)
    for tool in ("simulator/simctl", "simulator/tour"):
        os.symlink(os.path.join(source, tool), os.path.join(TOOLS, os.path.basename(tool)))
    for tool in ("globalsegment", "platformd"):
        os.symlink(os.path.join(build, "simulator", tool), os.path.join(TOOLS, tool))
    plugins = os.path.join(build, "plugins")
    if os.path.isdir(plugins):
        for entry in os.scandir(plugins):
            if entry.name.endswith(".so"):
                shutil.copyfile(entry.path, "/usr/local/arvo/plugins/" + entry.name)
    calibration = "/tmp/var/etc/pointercal"
    if not os.path.exists(calibration):
        with open(calibration, "w", encoding="ascii") as stream:
            stream.write("1 0 0 0 1 0 65536\n")
    os.makedirs("/tmp/.X11-unix", exist_ok=True)
    os.chmod("/tmp/.X11-unix", 0o1777)
    return runtime


def forget_screen(tmp):
    """Removes what the server that a kept state last saw left in its /tmp."""
    shutil.rmtree(os.path.join(tmp, ".X11-unix"), ignore_errors=True)
    for name in os.listdir(tmp) if os.path.isdir(tmp) else ():
        if name.startswith(".X") and name.endswith("-lock"):
            os.unlink(os.path.join(tmp, name))


def environment(source, build, runtime, has_screen, backend):
    """The caller's environment less what would tie the command to the caller's desktop or change how Qt looks."""
    dropped = ("QT_", "XDG_", "DBUS_", "LC_", "WAYLAND_")
    kept = ("QT_LOGGING_RULES", "QT_FATAL_WARNINGS", "QT_MESSAGE_PATTERN")
    result = {name: value for name, value in os.environ.items()
              if name in kept or not (name.startswith(dropped) or name in ("DISPLAY", "XAUTHORITY", "LANGUAGE"))}
    result.update(
        HOME="/home/root", USER="root", LOGNAME="root", LANG="C.UTF-8", XDG_RUNTIME_DIR=runtime,
        QT_QPA_PLATFORM="xcb" if has_screen else "offscreen",
        QT_XCB_GL_INTEGRATION="none",  # the shell sets it for itself; tests of its parts run as it does
        INSTRUMENT_SOURCE=source, INSTRUMENT_BUILD=build, INSTRUMENT_BACKEND=backend,
        PATH="%s:/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin" % TOOLS)
    result.pop("TMPDIR", None)
    return result


def remove_segment(build):
    """Where no namespace does it."""
    tool = os.path.join(build, "simulator/globalsegment")
    os.waitpid(os.posix_spawn(tool, [tool, "remove"], os.environ), 0)


class Services:
    """Starts the parts of one profile side by side and waits until each says that it is ready."""

    def __init__(self, source, build, env):
        self._source = source
        self._build = build
        self.env = env
        self._waiting = {}  # part: (descriptor, pid)

    def tool(self, name):
        path = os.path.join(self._build, "simulator", name)
        if not os.access(path, os.X_OK):
            raise StartError("%s is missing; build it first: ninja -C %s simulator" % (path, self._build))
        return path

    def launch(self, part, argv, ready_fd=None, inherited=None, write_end=None):
        """Starts argv with its output in /tmp/var/log; ready_fd becomes readable when the part is up."""
        null = os.open("/dev/null", os.O_RDONLY)
        log = os.open(self._log(part), os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o644)
        actions = [(os.POSIX_SPAWN_DUP2, null, 0), (os.POSIX_SPAWN_DUP2, log, 1), (os.POSIX_SPAWN_DUP2, log, 2)]
        if inherited is not None:
            os.set_inheritable(inherited, True)
        try:
            pid = os.posix_spawnp(argv[0], argv, self.env, file_actions=actions, setpgroup=0,
                                  setsigdef=IGNORED_BY_PYTHON)
        except OSError as error:
            raise StartError("cannot start %s: %s (scripts/install-deps installs it)" % (argv[0], error.strerror))
        finally:
            os.close(null)
            os.close(log)
            if write_end is not None:
                os.close(write_end)
        with open("%s/%s.pid" % (RUN, part), "w", encoding="ascii") as stream:
            stream.write("%d\n" % pid)
        if ready_fd is not None:
            self._waiting[part] = ready_fd
        return pid

    def launch_with_pipe(self, part, make_argv):
        """As launch; make_argv gets the number of the descriptor on which the part reports."""
        reading, writing = os.pipe()
        self.launch(part, make_argv(str(writing)), reading, writing, writing)

    def wait(self, part):
        """The line that the part reports once it is up."""
        fd = self._waiting.pop(part)
        end = time.monotonic() + START_LIMIT_S
        text = b""
        while not text.endswith(b"\n"):
            readable = select.select([fd], [], [], max(0, end - time.monotonic()))[0]
            chunk = os.read(fd, 4096) if readable else b""
            if not chunk:
                raise StartError("%s did not come up:\n%s" % (part, self._tail(part)))
            text += chunk
        os.close(fd)
        return text.decode().strip()

    @staticmethod
    def _log(part):
        return "/tmp/var/log/%s.log" % part

    def _tail(self, part):
        with open(self._log(part), encoding="utf-8", errors="replace") as stream:
            return "".join(stream.readlines()[-15:])

    def start(self, parts, window_of=None, number=None):
        """parts: of x, bus, daemon, wm. window_of: environment of the caller's display for a visible window; number:
        that of the new display, when it is not for the server to choose."""
        if "x" in parts:
            server = ["Xvfb", "-screen", "0", "800x480x24"]
            if window_of:
                server = ["Xephyr", "-screen", "800x480", "-title", "Instrument"]
                server += [":%d" % number] if number is not None else []
                self.env.update(window_of)
            self.launch_with_pipe("x", lambda fd: server + ["-displayfd", fd, "-dpi", "96", "-nolisten", "tcp",
                                                            "-noreset", "-s", "0"])
        if "bus" in parts:
            conf = os.path.join(self._source, "simulator/conf/dbus.conf")
            self.launch_with_pipe("bus", lambda fd: ["dbus-daemon", "--nofork", "--nopidfile", "--nosyslog",
                                                     "--config-file=" + conf, "--print-address=" + fd])
        if "bus" in parts:
            self.wait("bus")
        if "daemon" in parts and "bus" in parts:
            self.launch_with_pipe("daemon", lambda fd: [self.tool("platformd"), "--ready-fd", fd])
        if "daemon" in parts:
            self.launch("usbd", [self.tool("usbd")])
            self.launch("settings", [self.tool("globalsegment"), "keep"])
        if "x" in parts:
            number = self.wait("x")
            for name in window_of or ():
                self.env.pop(name, None)
            self.env["DISPLAY"] = ":" + number
        if "wm" in parts:
            fifo = RUN + "/wm-ready"
            os.mkfifo(fifo)
            ready = os.open(fifo, os.O_RDWR)
            conf = os.path.join(self._source, "simulator/conf/openbox.xml")
            self.launch("wm", ["openbox", "--sm-disable", "--config-file", conf,
                               "--startup", "sh -c 'echo up >%s'" % fifo], ready)
            self.wait("wm")
        if "daemon" in self._waiting:
            self.wait("daemon")
