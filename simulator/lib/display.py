#!/usr/bin/python3 -IS
"""The caller's X display: whether it can be opened, and what opens it from inside the tree, which hides /home and /tmp.

As a program: ends with 0 when $DISPLAY can be opened, else prints why not and ends with 1.
"""
import ctypes
import os
import re
import socket
import stat
import subprocess
import sys

SOCKETS = "/tmp/.X11-unix/X"
COOKIES_INSIDE = "/run/callers-cookies"
OPEN_LIMIT_S = 10
COOKIES_LIMIT = 1 << 20


def _answers(address):
    with socket.socket(socket.AF_UNIX) as probe:
        probe.settimeout(OPEN_LIMIT_S)
        try:
            probe.connect(address)
        except OSError:
            return False
        return True


def path_only(name):
    """The number of display `name` when nothing but a socket in the file system leads to it, else None."""
    match = re.fullmatch(r"(?:unix)?:(\d+)(?:\.\d+)?", name)
    if not match:
        return None
    path = SOCKETS + match.group(1)
    return int(match.group(1)) if not _answers("\0" + path) and _answers(path) else None


def free_beside(number):
    """A display number that nobody uses, also not by the names that all trees share."""
    with open("/proc/net/unix", encoding="ascii", errors="replace") as stream:
        used = stream.read()
    while True:
        number += 1
        if "@%s%d\n" % (SOCKETS, number) not in used:
            return number


def cookies(environment):
    """What the caller's authority file holds, or nothing."""
    path = environment.get("XAUTHORITY") or os.path.join(environment.get("HOME", "/"), ".Xauthority")
    try:
        with open(os.open(path, os.O_RDONLY | os.O_NONBLOCK | os.O_CLOEXEC), "rb") as stream:
            return stream.read(COOKIES_LIMIT) if stat.S_ISREG(os.fstat(stream.fileno()).st_mode) else b""
    except OSError:
        return b""


def keep_cookies(data, path):
    with open(os.open(path, os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o600), "wb") as stream:
        stream.write(data)


def trouble():
    """Why $DISPLAY can not be opened, or nothing. Found out by another process, since a display may hang."""
    try:
        ended = subprocess.run([sys.executable, "-IS", os.path.realpath(__file__), "--open"], text=True,
                               stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
                               timeout=OPEN_LIMIT_S, check=False)
    except subprocess.TimeoutExpired:
        return "it does not answer"
    return "" if ended.returncode == 0 else " ".join(ended.stderr.split()) or "nobody serves it"


if __name__ == "__main__":
    if sys.argv[1:] == ["--open"]:
        library = ctypes.CDLL("libX11.so.6")
        library.XOpenDisplay.restype = ctypes.c_void_p
        sys.exit(0 if library.XOpenDisplay(None) else 1)
    reason = trouble()
    print(reason, end="")
    sys.exit(1 if reason else 0)
