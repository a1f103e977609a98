"""X11 window managers."""

import re
import subprocess

from screen import Screen
from tried_desktop import SCREEN, TriedDesktop
from waiting import eventually


class X11Desktop(TriedDesktop):
    COMMAND = ()
    OTHER_WINDOW = ("xmessage", "Another window")

    def start_shell(self):
        self.configure()
        self.service(*self.COMMAND)
        eventually(self._is_managed, f"{self.NAME} manages the screen")

    def configure(self):
        """Writes its settings."""

    def bounds(self, game):
        bounds = self.bounds_of(game.window)
        if bounds is None:
            return None
        whole_left, whole_top, width, height = bounds
        left, right, top, bottom = self.margins(game)
        return whole_left + left, whole_top + top, width - left - right, height - top - bottom

    def margins(self, game):
        numbers = re.findall(r"\d+", self.property_lines(game.window, "_GTK_FRAME_EXTENTS")
                             .partition("=")[2])
        return tuple(map(int, numbers)) or super().margins(game)

    def bounds_of(self, window):
        lines = subprocess.run(["xwininfo", "-id", str(window)], env=self.environment,
                               text=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
        found = [re.search(rf"{name}: +(-?\d+)", lines) for name in
                 ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")]
        return tuple(int(each[1]) for each in found) if all(found) else None

    def work_area(self):
        numbers = re.findall(r"\d+", self.property_of_root("_NET_WORKAREA").partition("=")[2])
        return tuple(map(int, numbers[:4])) or SCREEN

    def is_full_screen(self, game):
        return game.window is not None and game.is_full_screen() and self.bounds(game) == SCREEN

    def is_active(self, game):
        # The property may be set before the game gets the keys.
        return game.is_active() and super().is_active(game)

    def wants_attention(self, game):
        return ("_NET_WM_STATE_DEMANDS_ATTENTION" in game.state()
                or "urgency hint" in self.property_lines(game.window, "WM_HINTS"))

    def property_lines(self, window, name):
        return self.run("xprop", "-id", str(window), name)

    def property_of_root(self, name):
        return self.run("xprop", "-root", name)

    def _is_managed(self):
        return "window id # 0x" in self.property_of_root("_NET_SUPPORTING_WM_CHECK")

    def write_setting(self, path, text):
        path = self.folder / "home" / path
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)


class Openbox(X11Desktop):
    NAME = "openbox"
    PROGRAMS = COMMAND = ("openbox",)


class Xfwm4(X11Desktop):
    NAME = "xfwm4"
    PROGRAMS = ("xfwm4",)
    COMMAND = ("xfwm4", "--compositor=off")


class Xfwm4Composited(X11Desktop):
    """Where the game's window has a shadow and is larger than its visible part."""

    NAME = "xfwm4-composited"
    PROGRAMS = ("xfwm4",)
    COMMAND = ("xfwm4", "--compositor=on")


class Marco(X11Desktop):
    NAME = "marco"
    PROGRAMS = COMMAND = ("marco",)


class Metacity(X11Desktop):
    NAME = "metacity"
    PROGRAMS = COMMAND = ("metacity",)


class Icewm(X11Desktop):
    NAME = "icewm"
    PROGRAMS = COMMAND = ("icewm",)


class Fluxbox(X11Desktop):
    NAME = "fluxbox"
    PROGRAMS = COMMAND = ("fluxbox",)

    def configure(self):
        # Without it, fluxbox opens a message: the wallpaper's program is not installed.
        self.write_setting(".fluxbox/overlay", "background: none\n")

    def open_other_window(self):
        # fluxbox opens it below one in full screen, without the focus.
        self.run("xdotool", "set_desktop", "1")
        super().open_other_window()

    def close_other_window(self):
        super().close_other_window()
        self.run("xdotool", "set_desktop", "0")


class I3(X11Desktop):
    NAME = "i3"
    PROGRAMS = COMMAND = ("i3",)
    TILES = True

    def configure(self):
        # With its own settings, i3 asks on the first start whether to write a file.
        self.write_setting(".config/i3/config", "# i3 config file (v4)\ndefault_border none\n")

    def open_other_window(self):
        # i3 gives the focus to no window that one in full screen hides.
        self.run("i3-msg", "workspace", "2")
        super().open_other_window()

    def close_other_window(self):
        super().close_other_window()
        self.run("i3-msg", "workspace", "1")

    def wants_attention(self, game):
        return '"urgent":true' in self.run("i3-msg", "-t", "get_tree")


class KwinX11(X11Desktop):
    NAME = "kwin-x11"
    PROGRAMS = ("kwin_x11",)
    COMMAND = ("kwin_x11", "--no-kactivities")
