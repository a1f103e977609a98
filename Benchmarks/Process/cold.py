"""The start of a program whose files are not in memory."""

import os
import pathlib
import statistics
import time

from program import STARTUP_SECONDS, Program
from startup import RUNS, first_frame, wait_for_background

DROP_CACHES = pathlib.Path("/proc/sys/vm/drop_caches")
PAGE_CACHE = "1"


def evict(files):
    """Removes files from the page cache: all files where that is permitted, otherwise those given.
    Pages that a running program has mapped stay."""
    os.sync()
    try:
        DROP_CACHES.write_text(PAGE_CACHE)
    except OSError:
        for path in files:
            file = os.open(path, os.O_RDONLY)
            os.posix_fadvise(file, 0, 0, os.POSIX_FADV_DONTNEED)
            os.close(file)


def files_of(testbed, path):
    with Program(testbed.desktop, path) as program:
        time.sleep(STARTUP_SECONDS)
        return program.mapped_files()


def measure(testbed):
    """Returns medians in seconds. The programs alternate."""
    paths = {"hello": testbed.hello, "game": testbed.game}
    files = set().union(*(files_of(testbed, path) for path in paths.values()))
    times = {name: [] for name in paths}
    for _ in range(RUNS):
        for name, path in paths.items():
            wait_for_background(testbed)
            evict(files)
            times[name].append(first_frame(testbed, path)[0])
    return {f"cold_start_{name}": statistics.median(seen) for name, seen in times.items()}
