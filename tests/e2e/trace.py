#!/usr/bin/env python3
"""Reads what strace wrote of a visit, and complains of every internet socket and of every file that was
made, changed or opened for writing where the game has no business.

  trace.py --home HOME TRACE...

HOME is the folder in which the visitor has config, state, data and cache. Whoever adds an exception
names it here, with the library whose it is.
"""

import os
import re
import sys
from pathlib import Path

# Below HOME, where the player's things lie.
PLAYERS = ("config/veyrand/", "state/veyrand/", "data/veyrand/")
# The folders on the way to them, which may have to be made.
ON_THE_WAY = ("config", "state", "data", "config/veyrand", "state/veyrand", "data/veyrand", "cache")
# Below HOME, what libraries keep for themselves.
CACHES = {
    "cache/fontconfig/": "fontconfig: which letters are installed",
    "config/pulse/": "libpulse: the cookie by which its server knows the user",
    "run/pulse/": "libpulse: where its server would listen",
}
# Elsewhere.
OTHERS = {
    r"/dev/null": "nowhere",
    r"/dev/shm/[\w.-]+": "shared memory: pictures for the X server, samples for the sound server",
}
FAMILIES = {"AF_UNIX": "the X server, the sound server, the bus"}

WRITES = ("O_WRONLY", "O_RDWR", "O_CREAT", "O_TRUNC", "O_APPEND", "O_TMPFILE")
CALL = re.compile(r"^(?:\d+ +)?(\w+)\((.*)\)\s*= (-?\d+|\?)")
TEXT = re.compile(r'(?:(AT_FDCWD|\d+)<([^>]*)>, )?"((?:[^"\\]|\\.)*)"')


def may_be_written(path, home):
    path = os.path.normpath(path) + ("/" if path.endswith("/") else "")
    if path.startswith(home + "/"):
        inside = path[len(home) + 1 :]
        return inside.startswith(PLAYERS) or inside.startswith(tuple(CACHES)) or inside in ON_THE_WAY or inside + "/" in CACHES
    return any(re.fullmatch(pattern, path) for pattern in OTHERS)


def paths_of(arguments):
    """Every path among the arguments, whole: strace says which folder a relative one begins at."""
    for _, folder, name in TEXT.findall(arguments):
        yield name if name.startswith("/") else os.path.join(folder or "/", name)


def complaint(line, home):
    """What is wrong with a line of the trace, if anything."""
    found = CALL.match(line)
    if not found:
        return None
    call, arguments, result = found.groups()
    if call == "socket":
        family = arguments.split(",")[0]
        return None if family in FAMILIES else f"a socket of {family}"
    if call == "execve":
        return None
    if result.startswith("-"):
        return None  # it did not come to pass
    if call in ("open", "openat", "openat2") and not any(flag in arguments for flag in WRITES):
        return None
    bad = [path for path in paths_of(arguments) if not may_be_written(path, home)]
    return f"{call} of {bad[0]}" if bad else None


def whole(lines):
    """Puts together the calls that strace had to break off while another thread called."""
    begun = {}
    for line in lines:
        process = line.split(" ", 1)[0]
        if line.rstrip().endswith("<unfinished ...>"):
            begun[process] = line.rstrip()[: -len("<unfinished ...>")].rstrip()
            continue
        resumed = re.match(r"(\d+) +<\.\.\. \w+ resumed>(.*)", line)
        if resumed and process in begun:
            yield begun.pop(process) + resumed[2]
        else:
            yield line


def main(arguments):
    if arguments[:1] != ["--home"] or len(arguments) < 3:
        sys.exit(__doc__)
    home = os.path.normpath(arguments[1])
    lines = [line for name in arguments[2:] for line in whole(Path(name).read_text(errors="replace").splitlines())]
    complaints = sorted({found for line in lines if (found := complaint(line, home))})
    for found in complaints:
        print(found)
    # A trace in which the visit itself does not show proves nothing.
    if not any("rename(" in line and "/preferences.json\"" in line for line in lines):
        sys.exit("the trace does not show the player's file being written")
    if not any(line.split(" ", 1)[-1].lstrip().startswith("socket(AF_UNIX") for line in lines):
        sys.exit("the trace does not show a connection to the display")
    print(f"{len(lines)} calls, {len(complaints)} out of place")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
