"""A private desktop: X server, window manager, message bus and accessibility bus."""

import os
import shutil
import subprocess

from screen import Screen
from waiting import eventually


class Desktop:
    """Runs from `start` to `stop`; everything it writes lies in `folder`."""

    def __init__(self, folder):
        self.folder = folder
        self.processes = []
        # Made from nothing, so that no setting of the machine's own desktop leaks in.
        self.environment = {"PATH": os.environ["PATH"], "LANG": "C.UTF-8"}
        for name, place in {
            "HOME": "home",
            "XDG_CONFIG_HOME": "home/.config",
            "XDG_CACHE_HOME": "home/.cache",
            "XDG_DATA_HOME": "home/.local/share",
            "XDG_RUNTIME_DIR": "run",
        }.items():
            path = folder / place
            path.mkdir(mode=0o700, parents=True, exist_ok=True)
            self.environment[name] = str(path)

    def start(self):
        self._start_display()
        self._start_bus()
        self._spawn("openbox")
        eventually(self._has_window_manager, "the window manager is up")

    def stop(self):
        for process in reversed(self.processes):
            process.terminate()
            process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def end_display(self):
        """Ends the X server under all of its programs, as when it crashes."""
        self._display.kill()
        self._display.wait()

    def run(self, *command):
        """The output of a command that ends by itself; an error when it fails."""
        done = subprocess.run(command, env=self.environment, check=True, text=True,
                              stdout=subprocess.PIPE)
        return done.stdout

    def property(self, window, name):
        """What xprop says about one property of a window; "" when the window is gone."""
        done = subprocess.run(["xprop", "-id", str(window), name], env=self.environment, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        return done.stdout.partition("=")[2].strip()

    def active_window(self):
        line = self.run("xprop", "-root", "_NET_ACTIVE_WINDOW")
        number = line.rpartition("# ")[2].strip()
        return int(number, 16) if number.startswith("0x") else 0

    def run_folder(self):
        """Where programs put their sockets."""
        return self.folder / "run"

    def spawn(self, *command):
        """A program of the desktop that stays until its process is terminated."""
        return subprocess.Popen(command, env=self.environment, stdin=subprocess.DEVNULL,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def _spawn(self, *command, **options):
        options = {"stdout": subprocess.DEVNULL} | options
        process = subprocess.Popen(command, env=self.environment, stdin=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL, **options)
        self.processes.append(process)
        return process

    def _start_display(self):
        reading, writing = os.pipe()
        # Without -noreset the server would start over whenever its last client leaves, and take
        # along a window manager that is just arriving.
        self._display = self._spawn("Xvfb", "-displayfd", str(writing), "-screen", "0",
                    f"{Screen.WIDTH}x{Screen.HEIGHT}x24", "-nolisten", "tcp", "-noreset",
                    "-fbdir", str(self.folder), pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading) as number:
            self.environment["DISPLAY"] = f":{number.readline().strip()}"
        self.screen = Screen(self.folder / "Xvfb_screen0")

    def _start_bus(self):
        self.bus = self._spawn("dbus-daemon", "--session", "--nofork", "--nopidfile",
                               "--print-address", stdout=subprocess.PIPE, text=True)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.bus.stdout.readline().strip()

    def _has_window_manager(self):
        return "0x" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")
