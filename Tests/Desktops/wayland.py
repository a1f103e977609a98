"""Wayland compositors in a window on the private X server: the X server's XTEST keyboard and
pointer are their keyboard and pointer."""

import json
import os
import pathlib
import shutil
import tempfile

from compositor import BACKGROUND, Compositor
from screen import Screen
from tried_desktop import SCREEN, TriedDesktop
from waiting import eventually

# The user `nobody`.
NOBODY = 65534


class WaylandDesktop(TriedDesktop):
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
    BACKGROUND = BACKGROUND

    def start_shell(self):
        self._compositor = Compositor(self, (Screen.WIDTH, Screen.HEIGHT))
        self._compositor.start()
        self.processes.append(self._compositor.process)
        self.environment |= self._compositor.environment


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


class Sway(WaylandDesktop):
    NAME = "sway"
    PROGRAMS = ("sway",)
    TILES = True
    BACKGROUND = BACKGROUND
    OUTPUT = "X11-1"

    def __init__(self, folder):
        super().__init__(folder)
        # sway refuses to run as root, and another user cannot use the folder of this one.
        self._own_folder = pathlib.Path(tempfile.mkdtemp(prefix="fernwick-sway-"))

    def start_shell(self):
        settings = self._own_folder / "settings"
        settings.write_text("default_border none\n"
                            "output * bg #ff00ff solid_color\n"
                            f"output * mode --custom {Screen.WIDTH}x{Screen.HEIGHT}\n")
        as_user = ()
        if os.getuid() == 0:
            os.chmod(self._own_folder, 0o755)
            os.chown(self._own_folder, NOBODY, NOBODY)
            as_user = ("setpriv", "--reuid", str(NOBODY), "--regid", str(NOBODY),
                       "--clear-groups", "--pdeathsig", "TERM")
        self.service(*as_user, "sway", "--config", str(settings),
                     XDG_RUNTIME_DIR=str(self._own_folder), WLR_BACKENDS="x11",
                     WLR_RENDERER="pixman")
        self.use(self._own_folder / "wayland-1")
        control, = eventually(lambda: list(self._own_folder.glob("sway-ipc.*")),
                              "sway can be controlled")
        self.environment["SWAYSOCK"] = str(control)
        eventually(lambda: self.output()["rect"]["width"] == Screen.WIDTH, "the output is ready")

    def stop(self):
        super().stop()
        shutil.rmtree(self._own_folder, ignore_errors=True)

    def command(self, *words):
        self.run("swaymsg", "--", *words)

    def output(self, name=OUTPUT):
        return next(each for each in json.loads(self.run("swaymsg", "--type", "get_outputs"))
                    if each["name"] == name)

    def bounds(self, game):
        window = self._window(game)
        if window is None:
            return None
        return tuple(window["rect"][key] for key in ("x", "y", "width", "height"))

    def is_full_screen(self, game):
        window = self._window(game)
        return window is not None and window["fullscreen_mode"] == 1

    def wants_attention(self, game):
        return self._window(game)["urgent"]

    def open_other_window(self):
        # sway gives the focus to no window that one in full screen hides.
        self.command("workspace", "2")
        super().open_other_window()

    def close_other_window(self):
        super().close_other_window()
        self.command("workspace", "1")

    def _window(self, game):
        def all_nodes(node):
            yield node
            for child in node["nodes"] + node["floating_nodes"]:
                yield from all_nodes(child)

        tree = json.loads(self.run("swaymsg", "--type", "get_tree"))
        return next((each for each in all_nodes(tree) if each.get("pid") == game.process.pid),
                    None)
