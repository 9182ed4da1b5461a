"""The instruments that run on this machine and want to be found: a file each in build/instruments of the checkout.

A file belongs to a running instrument while that holds a lock on it; what is not locked was left behind.
"""
import fcntl
import json
import os


class Unknown(Exception):
    """No such instrument; the text says which there are."""


def _directory(source):
    return os.path.join(source, "build/instruments")


def register(source, entry):
    """Lists this process's instrument; returns what unregister() takes. The lock goes with the process."""
    directory = _directory(source)
    os.makedirs(directory, exist_ok=True)
    path = os.path.join(directory, str(os.getpid()))
    stream = open(path + ".new", "w", encoding="utf-8")
    fcntl.flock(stream, fcntl.LOCK_EX)
    json.dump(entry, stream)
    stream.flush()
    os.rename(path + ".new", path)
    return path, stream


def unregister(registered):
    os.unlink(registered[0])
    registered[1].close()


def running(source):
    """The instruments that run, as (number, entry), the oldest first."""
    found = []
    directory = _directory(source)
    for name in filter(str.isdigit, os.listdir(directory) if os.path.isdir(directory) else ()):
        path = os.path.join(directory, name)
        try:
            with open(path, encoding="utf-8") as stream:
                try:
                    fcntl.flock(stream, fcntl.LOCK_SH | fcntl.LOCK_NB)
                    os.unlink(path)
                except BlockingIOError:
                    found.append((os.fstat(stream.fileno()).st_mtime_ns, int(name), json.load(stream)))
        except OSError:
            pass  # gone meanwhile, or left behind by somebody else
    return [(number, entry) for _, number, entry in sorted(found, key=lambda item: item[:2])]


def choose(source, number):
    """The entry of instrument `number`, or of the newest for None; and a remark when that was a choice."""
    listed = running(source)
    numbers = [each for each, _ in listed]
    if not listed:
        raise Unknown("no instrument runs: start one with ./run, or use simulator/instrument -- simctl ...")
    if number is None:
        remark = "" if len(listed) == 1 else "%d instruments run (%s); this is %d, the newest; -i NUMBER chooses" % (
            len(listed), ", ".join(map(str, numbers)), numbers[-1])
        return listed[-1][1], remark
    if number not in numbers:
        raise Unknown("no instrument %d; there %s %s" % (
            number, "is" if len(numbers) == 1 else "are", ", ".join(map(str, numbers))))
    return dict(listed)[number], ""
