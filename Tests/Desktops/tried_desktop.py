"""What all desktops have in common: a private X server, on which they run or show their window."""

import shutil
import subprocess

from desktop import Desktop
from screen import Screen

SCREEN = 0, 0, Screen.WIDTH, Screen.HEIGHT
STOP_SECONDS = 5


class NotRun(Exception):
    """The desktop cannot be started on this machine."""


class TriedDesktop(Desktop):
    """A desktop on which the game is tried."""

    X_SERVER_OPTIONS = ("--no-window-manager",)
    NAME = ""
    # Commands that it needs.
    PROGRAMS = ()
    # A program that shows a small window.
    OTHER_WINDOW = ()
    IS_WAYLAND = False
    # Whether a window alone on the screen always fills it.
    TILES = False
    # Steps that the desktop itself prevents, and why.
    IMPOSSIBLE = {}
    # Pixels of the X server per unit in which programs place things in their windows.
    scale = 1

    def start(self):
        for program in (*self.PROGRAMS, self.OTHER_WINDOW[0]):
            if shutil.which(program) is None:
                raise NotRun(f"{program} is not installed")
        super().start()
        self.start_shell()

    def start_shell(self):
        """Starts the window manager or compositor and waits until it is ready."""
        raise NotImplementedError

    def bounds(self, game):
        """Left, top, width and height of the game's window in pixels of the X server, without its
        shadow."""
        raise NotImplementedError

    def margins(self, game):
        """How far the window's shadow reaches to the left, right, top and bottom, if it is a part
        of the window, in pixels of the X server."""
        return 0, 0, 0, 0

    def work_area(self):
        """What panels leave free of the screen, like `bounds`."""
        return SCREEN

    def is_full_screen(self, game):
        """Whether the desktop shows the game's window in full screen."""
        raise NotImplementedError

    def is_active(self, game):
        """Whether the game has the keyboard focus."""
        window, = game.top().children()
        return window.is_active()

    def wants_attention(self, game):
        """Whether the desktop marks the window for attention; None if it does not tell."""
        return None

    def ways_to_take_the_focus(self):
        """By name: a function that takes the focus away from the game, and one that returns it."""
        return {"another window": (self.open_other_window, self.close_other_window)}

    def open_other_window(self):
        self._other = self.spawn(*self.OTHER_WINDOW)

    def close_other_window(self):
        self._other.terminate()
        self._other.wait()

    def save_screenshot(self, path):
        subprocess.run(["import", "-window", "root", str(path)], env=self.environment, check=False)

    def service(self, *command, **environment):
        """Starts a program that runs until the desktop is stopped, even if this process dies."""
        log = open(self.folder / f"{command[0]}.log".replace("/", "-"), "wb")
        process = subprocess.Popen(
            ["setpriv", "--pdeathsig", "TERM", *command], env=self.environment | environment,
            stdin=subprocess.DEVNULL, stdout=log, stderr=log)
        log.close()
        self.processes.append(process)
        return process

    def stop(self):
        for process in reversed(self.processes):
            process.terminate()
            try:
                process.wait(STOP_SECONDS)
            except subprocess.TimeoutExpired:
                process.kill()
        super().stop()
