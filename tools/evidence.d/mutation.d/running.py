"""Runs programs side by side, each in a folder and a home of its own and within limits."""

import os
import resource
import shutil
import signal
import subprocess
import threading
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

PLACE = Path(__file__).resolve().parent.parent.parent.parent / "build" / "mutation" / "at-work"
PROCESSORS = len(os.sched_getaffinity(0))


def environment(folder, **more):
    home = folder / "home"
    shutil.rmtree(home, ignore_errors=True)
    home.mkdir(parents=True)
    return {**os.environ, "QT_QPA_PLATFORM": "offscreen", "HOME": str(home), "XDG_DATA_HOME": f"{home}/data",
            "XDG_CONFIG_HOME": f"{home}/config", "XDG_STATE_HOME": f"{home}/state", "XDG_CACHE_HOME": f"{home}/cache", **more}


def own_folder():
    """Of the thread that asks: what runs at the same time has nothing in common."""
    folder = PLACE / threading.current_thread().name
    folder.mkdir(parents=True, exist_ok=True)
    return folder


def at_once(work, items):
    """Does the work for each, as many at once as there are processors; yields what came of it, in order."""
    with ThreadPoolExecutor(PROCESSORS, thread_name_prefix="worker") as workers:
        yield from workers.map(work, items)


def limits():
    os.setsid()
    resource.setrlimit(resource.RLIMIT_AS, (6 << 30, 6 << 30))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    resource.setrlimit(resource.RLIMIT_FSIZE, (1 << 28, 1 << 28))


RUNNING = set()  # the process groups


def end_everything():
    for group in list(RUNNING):
        try:
            os.killpg(group, signal.SIGKILL)
        except ProcessLookupError:
            pass


def attempt(command, seconds, **more):
    """Whether it ended well, badly or not at all: "passed", "failed" or "timed out"."""
    folder = own_folder()
    with open(folder / "last.log", "w") as log:
        program = subprocess.Popen(command, cwd=folder, env=environment(folder, **more), stdin=subprocess.DEVNULL, stdout=log, stderr=log, preexec_fn=limits)
        RUNNING.add(program.pid)
        try:
            status = program.wait(seconds)
        except subprocess.TimeoutExpired:
            status = None
        try:
            os.killpg(program.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        program.wait()
        RUNNING.discard(program.pid)
    return "timed out" if status in (None, -signal.SIGPROF) else "passed" if status == 0 else "failed"
