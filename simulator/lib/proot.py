"""The instrument's tree without namespaces: proot rewrites the paths of every system call.

Neither read-only nor private for shared memory and processes, so it is for looking at the shell where nothing better
is allowed.
"""
import ctypes
import os
import re
import signal
import time

import namespaces

# System calls that Debian 12's proot does not know and would let through with the path unchanged. Answered with
# "not implemented" they are replaced by their older kin, which it knows. (statx, openat2, faccessat2)
UNKNOWN_CALLS = {"x86_64": (332, 437, 439), "aarch64": (291, 437, 439)}
PR_SET_SECCOMP, SECCOMP_MODE_FILTER, PR_SET_NO_NEW_PRIVS = 22, 2, 38
BPF_LOAD_WORD, BPF_JUMP_EQUAL, BPF_RETURN = 0x20, 0x15, 0x06
RETURN_ALLOW, RETURN_NOT_IMPLEMENTED = 0x7FFF0000, 0x00050000 | 38


class _Instruction(ctypes.Structure):
    _fields_ = [("code", ctypes.c_uint16), ("jt", ctypes.c_uint8), ("jf", ctypes.c_uint8), ("k", ctypes.c_uint32)]


class _Program(ctypes.Structure):
    _fields_ = [("length", ctypes.c_uint16), ("filter", ctypes.POINTER(_Instruction))]


def hide_unknown_calls():
    """For this process and everything that it starts."""
    numbers = UNKNOWN_CALLS.get(os.uname().machine, ())
    lines = [_Instruction(BPF_LOAD_WORD, 0, 0, 0)]
    lines += [_Instruction(BPF_JUMP_EQUAL, len(numbers) - i, 0, number) for i, number in enumerate(numbers)]
    lines += [_Instruction(BPF_RETURN, 0, 0, RETURN_ALLOW), _Instruction(BPF_RETURN, 0, 0, RETURN_NOT_IMPLEMENTED)]
    program = _Program(len(lines), (_Instruction * len(lines))(*lines))
    namespaces.libc.prctl(PR_SET_NO_NEW_PRIVS, ctypes.c_ulong(1), 0, 0, 0)
    namespaces.libc.prctl(PR_SET_SECCOMP, ctypes.c_ulong(SECCOMP_MODE_FILTER), ctypes.byref(program), 0, 0)


def _traced_by(tracer):
    """The processes that this tracer holds."""
    found = []
    for name in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open("/proc/%s/status" % name, encoding="utf-8", errors="replace") as stream:
                if "TracerPid:\t%d\n" % tracer in stream.read():
                    found.append(int(name))
        except OSError:
            pass  # gone
    return found


def end_others(spared):
    """Ends everything that runs under the caller's proot but the processes `spared`."""
    with open("/proc/self/status", encoding="utf-8") as stream:
        tracer = int(re.search(r"TracerPid:\t(\d+)", stream.read()).group(1))
    while tracer:
        others = [pid for pid in _traced_by(tracer) if pid not in spared]
        if not others:
            return
        for pid in others:
            try:
                os.kill(pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
        time.sleep(0.01)  # one that was just forked, or has not ended yet


def command(source, visible, state, scratch, sockets):
    """The proot call that lays the tree, writable places in state or scratch; append the command."""
    bindings = []
    for place, mode, stays in namespaces.PLACES + (("/dev/shm", 0o1777, False),):
        store = os.path.join(state if state and stays else scratch, place.strip("/").replace("/", "-"))
        os.makedirs(store, exist_ok=True)
        os.chmod(store, mode)
        bindings += ["-b", "%s:%s" % (store, place)]
    rootfs = os.path.join(source, "simulator/rootfs")
    for directory, _, names in os.walk(rootfs):
        inside = directory[len(rootfs):]
        if not inside.startswith(("/usr/local/arvo", "/usr/local/module")):
            bindings += [word for name in names for word in ("-b", "%s/%s:%s/%s" % (directory, name, inside, name))]
    for path in dict.fromkeys(visible + sockets):
        bindings += ["-b", path]
    return ["proot", "-0", "-w", os.getcwd()] + bindings
