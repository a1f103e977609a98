"""A private desktop: X server, window manager, D-Bus session bus and AT-SPI bus."""

import os
import pathlib
import shutil
import signal
import subprocess

from screen import Screen
from waiting import eventually

WITH_X_SERVER = pathlib.Path(__file__).resolve().parents[2] / "scripts/with-x-server"


class Desktop:
    """Runs from `start` to `stop`; all its files are in `folder`."""

    # Options of scripts/with-x-server.
    X_SERVER_OPTIONS = ()

    def __init__(self, folder):
        self.folder = folder
        self.processes = []
        # Not os.environ: variables of the developer's own desktop would change the tests.
        self.environment = {"PATH": os.environ["PATH"], "LANG": "C.UTF-8"}
        for name, subfolder in {
            "HOME": "home",
            "XDG_CONFIG_HOME": "home/.config",
            "XDG_CACHE_HOME": "home/.cache",
            "XDG_DATA_HOME": "home/.local/share",
            "XDG_RUNTIME_DIR": "run",
        }.items():
            path = folder / subfolder
            path.mkdir(mode=0o700, parents=True, exist_ok=True)
            self.environment[name] = str(path)

    def start(self):
        self._start_x_server()
        self._start_bus()

    def stop(self):
        for process in reversed(self.processes):
            process.terminate()
            process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def end_display(self):
        """Kills the X server while programs use it, as if it had crashed."""
        os.kill(self._x_server, signal.SIGKILL)
        eventually(self._x_server_has_ended, "the X server has ended")

    def run(self, *command):
        """The output of a command; raises CalledProcessError if it fails."""
        done = subprocess.run(command, env=self.environment, check=True, text=True,
                              stdout=subprocess.PIPE)
        return done.stdout

    def press(self, *keys):
        """Presses keys one after the other, by X11 name; "ctrl+l" is a combination."""
        self.run("xdotool", "key", *keys)

    def point_at(self, x, y):
        """Moves the pointer."""
        self.run("xdotool", "mousemove", str(x), str(y))

    def click(self):
        self.run("xdotool", "click", "1")

    def property(self, window, name):
        """The value of a window's X11 property as xprop prints it; "" if the window is gone."""
        done = subprocess.run(["xprop", "-id", str(window), name], env=self.environment, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        return done.stdout.partition("=")[2].strip()

    def active_window(self):
        line = self.run("xprop", "-root", "_NET_ACTIVE_WINDOW")
        # xfwm4 adds a second, empty value.
        number = line.rpartition("# ")[2].partition(",")[0].strip()
        return int(number, 16) if number.startswith("0x") else 0

    def run_folder(self):
        """XDG_RUNTIME_DIR, where programs put their sockets."""
        return self.folder / "run"

    def spawn(self, *command):
        """Starts a program on this desktop; the caller terminates the returned process."""
        return subprocess.Popen(command, env=self.environment, stdin=subprocess.DEVNULL,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def _spawn(self, *command, **options):
        quiet = dict.fromkeys(("stdin", "stdout", "stderr"), subprocess.DEVNULL)
        process = subprocess.Popen(command, env=self.environment, **(quiet | options))
        self.processes.append(process)
        return process

    def _start_x_server(self):
        # `cat` exits when its standard input is closed, even if this process is killed.
        launcher = self._spawn(
            str(WITH_X_SERVER), "--framebuffer", str(self.folder), *self.X_SERVER_OPTIONS,
            "sh", "-c", "echo $DISPLAY $X_SERVER_PID; exec cat",
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=None, text=True)
        display, process = launcher.stdout.readline().split()
        self.environment["DISPLAY"] = display
        self._x_server = int(process)
        self.screen = Screen(self.folder / "Xvfb_screen0")

    def _x_server_has_ended(self):
        return not pathlib.Path("/proc", str(self._x_server)).exists()

    def _start_bus(self):
        self.bus = self._spawn("setpriv", "--pdeathsig", "TERM", "dbus-daemon", "--session",
                               "--nofork", "--nopidfile", "--print-address",
                               stdout=subprocess.PIPE, text=True)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.bus.stdout.readline().strip()
