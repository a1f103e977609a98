"""A process under measurement, and what /proc says about it."""

import pathlib
import signal
import time

# After so many seconds the window of either program is visible.
STARTUP_SECONDS = 2


class Program:
    """Starts a program, which runs until `end`."""

    def __init__(self, desktop, path, *arguments):
        self.began = time.monotonic()
        self._process = desktop.spawn(str(path), *arguments)
        self._folder = pathlib.Path("/proc") / str(self._process.pid)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.end()

    def end(self):
        self._process.send_signal(signal.SIGTERM)
        self._process.wait()

    def assert_running(self):
        assert self._process.poll() is None, f"{self._process.args} has ended"

    def memory(self):
        """Resident set size, and proportional set size (shared pages divided by their users)."""
        lines = (self._folder / "smaps_rollup").read_text().splitlines()
        values = {line.split()[0]: int(line.split()[1]) * 1024 for line in lines[1:]}
        return values["Rss:"], values["Pss:"]

    def wakeups(self):
        """Voluntary context switches of all threads: each time one went to sleep."""
        return sum(self._voluntary_switches(each) for each in (self._folder / "task").iterdir())

    def cpu_time(self):
        """User and system time of all threads so far, in seconds."""
        # What clock_getcpuclockid() returns: the scheduler's clock of the process.
        return time.clock_gettime(~self._process.pid << 3 | 2)

    def mapped_files(self):
        """The program, its libraries, and the fonts and caches that it has mapped."""
        lines = (self._folder / "maps").read_text().splitlines()
        paths = {line.split(maxsplit=5)[5] for line in lines if "/" in line}
        return {path for path in paths if pathlib.Path(path).is_file()}

    @staticmethod
    def _voluntary_switches(thread):
        lines = (thread / "status").read_text().splitlines()
        name = "voluntary_ctxt_switches:"
        return next(int(line.split()[1]) for line in lines if line.startswith(name))
