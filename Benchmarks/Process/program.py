"""A program under measurement, and what the kernel knows of it."""

import pathlib
import signal
import time

# Until the window of either program is up, in seconds.
UNTIL_SHOWN = 2


class Program:
    """Runs from its making until `end`."""

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
        """Bytes in memory: all of them, and with shared ones split among those who share."""
        lines = (self._folder / "smaps_rollup").read_text().splitlines()
        values = {line.split()[0]: int(line.split()[1]) * 1024 for line in lines[1:]}
        return values["Rss:"], values["Pss:"]

    def wakeups(self):
        """How often any thread has gone to sleep, and so has been woken, since its start."""
        return sum(self._voluntary_switches(each) for each in (self._folder / "task").iterdir())

    @staticmethod
    def _voluntary_switches(thread):
        lines = (thread / "status").read_text().splitlines()
        name = "voluntary_ctxt_switches:"
        return next(int(line.split()[1]) for line in lines if line.startswith(name))
