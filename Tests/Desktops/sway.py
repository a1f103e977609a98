"""sway, whose outputs can change while it runs."""

import json
import os
import pathlib
import re
import shutil
import tempfile

from close_window import close_window
from compositor import BACKGROUND
from screen import Screen
from waiting import eventually
from wayland import WaylandDesktop

# The user `nobody`.
NOBODY = 65534
FIRST = "X11-1"


class Sway(WaylandDesktop):
    NAME = "sway"
    PROGRAMS = ("sway", "swaymsg")
    TILES = True

    def __init__(self, folder):
        super().__init__(folder)
        # sway refuses to run as root, and another user cannot use the folder of this one.
        self._own_folder = pathlib.Path(tempfile.mkdtemp(prefix="fernwick-sway-"))

    def start_shell(self):
        colour = "#{:02x}{:02x}{:02x}".format(*BACKGROUND)
        settings = self._own_folder / "settings"
        settings.write_text(f"default_border none\noutput * bg {colour} solid_color\n"
                            f"output * mode --custom {Screen.WIDTH}x{Screen.HEIGHT}\n")
        # sway does not create these atoms, and without them it cannot be told to close an output.
        for atom in "WM_PROTOCOLS", "WM_DELETE_WINDOW":
            self.run("xprop", "-root", "-f", atom, "8s", "-set", atom, "")
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
        eventually(lambda: self.outputs()[0]["rect"]["width"] == Screen.WIDTH,
                   "the output is ready")
        # Not to the window below the pointer, as when there is no window manager.
        self.run("xdotool", "windowfocus", self._windows()[0])

    def stop(self):
        super().stop()
        shutil.rmtree(self._own_folder, ignore_errors=True)

    def command(self, *words):
        self.run("swaymsg", "--", *words)

    def outputs(self):
        return json.loads(self.run("swaymsg", "--type", "get_outputs"))

    def bring_forward(self, output):
        """The outputs are windows in the corner of the X server's screen; this raises one."""
        names = sorted(each["name"] for each in self.outputs())
        self.run("xdotool", "windowraise", self._windows()[names.index(output)])

    def unplug_second(self):
        close_window(self.environment["DISPLAY"], int(self._windows()[1], 16))
        eventually(lambda: len(self.outputs()) == 1, "the second output is gone")

    def second(self):
        """The name of the output that is not the first."""
        return next(each["name"] for each in self.outputs() if each["name"] != FIRST)

    def _windows(self):
        """The X windows of the outputs, oldest first."""
        lines = self.run("xwininfo", "-root", "-children")
        return sorted(re.findall(r"^ +(0x\w+) ", lines, re.MULTILINE), key=lambda id: int(id, 16))

    def bounds(self, game):
        output, window = self._output_and_window(game)
        if window is None:
            return None
        # The X window of each output is in the corner of the X server's screen.
        left, top, width, height = (window["rect"][key] for key in ("x", "y", "width", "height"))
        self.scale = output["scale"]
        return tuple(round(length * self.scale) for length in (
            left - output["rect"]["x"], top - output["rect"]["y"], width, height))

    def is_full_screen(self, game):
        _, window = self._output_and_window(game)
        return window is not None and window["fullscreen_mode"] == 1

    def wants_attention(self, game):
        _, window = self._output_and_window(game)
        return window["urgent"]

    def open_other_window(self):
        # sway gives the focus to no window that one in full screen hides.
        self.command("workspace", "2")
        super().open_other_window()

    def close_other_window(self):
        super().close_other_window()
        self.command("workspace", "1")

    def output_of(self, game):
        """The output that shows the game."""
        return self._output_and_window(game)[0]

    def _output_and_window(self, game):
        tree = json.loads(self.run("swaymsg", "--type", "get_tree"))
        for output in tree["nodes"]:
            for node in descendants(output):
                if node.get("pid") == game.process.pid:
                    return (next(each for each in self.outputs()
                                 if each["name"] == output["name"]), node)
        return None, None


def descendants(node):
    yield node
    for child in node["nodes"] + node["floating_nodes"]:
        yield from descendants(child)
