"""Wayland compositors in a window on the private X server: the X server's XTEST keyboard and
pointer are their keyboard and pointer."""

import shutil

from compositor import BACKGROUND, Compositor
from screen import Screen
from tried_desktop import SCREEN, TriedDesktop
from waiting import eventually


class WaylandDesktop(TriedDesktop):
    IS_WAYLAND = True
    OTHER_WINDOW = ("weston-flower",)
    # The colour around the windows.
    BACKGROUND = 0, 0, 0

    def bounds(self, game):
        return self.screen.picture().bounds_without(self.BACKGROUND)

    def is_full_screen(self, game):
        return self.bounds(game) == SCREEN and not game.shows("Close")

    def use(self, socket):
        """Waits for the compositor's socket and makes programs connect to it."""
        eventually(socket.exists, f"{self.NAME} has started")
        self.environment |= {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": str(socket)}


class Weston(WaylandDesktop):
    NAME = "weston"
    PROGRAMS = ("weston", "openbox")
    # weston takes the keyboard only if a window manager gives its window the focus.
    X_SERVER_OPTIONS = ()
    # It compares the serial number with that of the modifiers event, which follows the key event.
    IMPOSSIBLE = {"menu by Alt": "weston 10 closes a menu that is opened with the serial number of "
                                 "a modifier key's press"}
    BACKGROUND = BACKGROUND

    def start_shell(self):
        self._compositor = Compositor(self, (Screen.WIDTH, Screen.HEIGHT))
        self._compositor.start()
        self.processes.append(self._compositor.process)
        self.environment |= self._compositor.environment

    def press(self, *keys):
        # Each key is held for 100 ms, as by a player. Qt opens a menu with the serial number of the
        # last key event that it has read; weston closes the menu at once if that is a release.
        self.run("xdotool", "key", "--delay", "200", *keys)


class KwinWayland(WaylandDesktop):
    NAME = "kwin-wayland"
    PROGRAMS = ("kwin_wayland",)

    def start_shell(self):
        # A copy: the installed file has a capability that containers do not grant.
        copy = self.folder / "kwin_wayland"
        shutil.copyfile(shutil.which("kwin_wayland"), copy)
        copy.chmod(0o700)
        self.service(str(copy), "--x11-display", self.environment["DISPLAY"],
                     "--width", str(Screen.WIDTH), "--height", str(Screen.HEIGHT),
                     "--no-kactivities", "--no-lockscreen", "--no-global-shortcuts",
                     "--socket", "kwin")
        self.use(self.run_folder() / "kwin")
