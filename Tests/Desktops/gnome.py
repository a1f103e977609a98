"""GNOME Shell on X11 and on Wayland."""

import json
import subprocess

from accessibility import call, connect
from gi.repository import GLib
from remote_input import RemoteInput
from screen import BYTES_PER_PIXEL, Picture, Screen
from tried_desktop import SCREEN
from waiting import eventually
from wayland import WaylandDesktop
from x11 import X11Desktop

SHELL = "org.gnome.Shell", "/org/gnome/Shell"
SCREENSHOT = "org.gnome.Shell.Screenshot"

# A bus that stands for the system's, on which none of its services run.
SYSTEM_BUS = """
<busconfig>
  <type>system</type>
  <listen>unix:path={path}</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/>
  </policy>
</busconfig>
"""

# Permits org.gnome.Shell.Eval, and lets the shell start without its overview.
EXTENSION = """
const Main = imports.ui.main;
class Extension {
    constructor() {
        Main.sessionMode.hasOverview = false;
        Main.layoutManager.connect('startup-complete', () => {
            Main.sessionMode.hasOverview = true;
        });
    }
    enable() { global.context.unsafe_mode = true; }
    disable() {}
}
function init() { return new Extension(); }
"""
EXTENSION_NAME = "tests@fernwick"
EXTENSION_DESCRIPTION = {"uuid": EXTENSION_NAME, "name": "Tests", "description": "For tests",
                         "shell-version": ["43"]}
SETTINGS = (
    ("org.gnome.shell", "enabled-extensions", f"['{EXTENSION_NAME}']"),
    ("org.gnome.shell", "welcome-dialog-last-shown-version", "99"),
    ("org.gnome.desktop.interface", "enable-animations", "false"),
    ("org.gnome.desktop.interface", "enable-hot-corners", "false"),
    ("org.gnome.desktop.notifications", "show-banners", "false"),
    ("org.gnome.desktop.session", "idle-delay", "0"),
)
WORK_AREA = "Main.layoutManager.getWorkAreaForMonitor(0)"
RECTANGLE = "(r => [r.x, r.y, r.width, r.height])"


class GnomeShell:
    """What the two have in common."""

    def prepare(self):
        folder = self.folder / "home/.local/share/gnome-shell/extensions" / EXTENSION_NAME
        folder.mkdir(parents=True)
        (folder / "metadata.json").write_text(json.dumps(EXTENSION_DESCRIPTION))
        (folder / "extension.js").write_text(EXTENSION)
        for setting in SETTINGS:
            self.run("gsettings", "set", *setting)
        socket = self.run_folder() / "system-bus"
        settings = self.folder / "system-bus.conf"
        settings.write_text(SYSTEM_BUS.format(path=socket))
        self.service("dbus-daemon", f"--config-file={settings}", "--nofork", "--nopidfile")
        eventually(socket.exists, "the system bus has started")
        self.environment["DBUS_SYSTEM_BUS_ADDRESS"] = f"unix:path={socket}"
        self.environment["XDG_CURRENT_DESKTOP"] = "GNOME"

    def wait_for_shell(self):
        self.bus = connect(self.environment["DBUS_SESSION_BUS_ADDRESS"])
        eventually(lambda: self.evaluate("Main.layoutManager._startingUp") is False,
                   "the shell has started", timeout=30)

    def evaluate(self, script):
        """The value of a JavaScript expression in the shell; None if it has none."""
        try:
            succeeded, value = call(self.bus, SHELL, SHELL[0], "Eval", "(s)", script)
        except GLib.Error:
            return None
        return json.loads(value) if succeeded and value else None

    def ways_to_take_the_focus(self):
        return super().ways_to_take_the_focus() | {
            "the overview": (lambda: self.press("super"), lambda: self.press("super")),
            "the run dialog": (lambda: self.press("alt+F2"), lambda: self.press("Escape")),
            "another workspace": (lambda: self._workspace(1), lambda: self._workspace(0))}

    def work_area(self):
        return tuple(self.evaluate(f"{RECTANGLE}({WORK_AREA})"))

    def _workspace(self, index):
        self.evaluate("global.workspace_manager.get_workspace_by_index"
                      f"({index}).activate(global.get_current_time())")


def picture_from(desktop, *arguments):
    """The result of ImageMagick's convert, as large as the screen."""
    pixels = subprocess.run(["convert", *arguments, "-depth", "8", "bgra:-"], check=True,
                            env=desktop.environment, stdout=subprocess.PIPE).stdout
    return Picture(pixels, Screen.WIDTH * BYTES_PER_PIXEL)


class GnomeX11(GnomeShell, X11Desktop):
    NAME = "gnome-x11"
    PROGRAMS = ("gnome-shell",)
    COMMAND = ("gnome-shell", "--x11")

    def start_shell(self):
        self.prepare()
        super().start_shell()
        self.wait_for_shell()
        self.screen = self

    def picture(self):
        """The pixels of the active window on black.

        Not those of the screen: on Xvfb, which has no textures from pixmaps, mutter misses what a
        window has drawn just after a change of its size."""
        window = self.active_window()
        left, top, _, _ = self.bounds_of(window)
        path = self.folder / "window.png"
        self.run("import", "-window", str(window), str(path))
        return picture_from(self, "-size", f"{Screen.WIDTH}x{Screen.HEIGHT}", "xc:black", str(path),
                            "-geometry", f"{left:+}{top:+}", "-composite")


class GnomeWayland(GnomeShell, WaylandDesktop):
    """Headless, as a nested shell passes no motion of the pointer on."""

    NAME = "gnome-wayland"
    PROGRAMS = ("gnome-shell", "convert")

    def start_shell(self):
        self.prepare()
        self.service("gnome-shell", "--wayland", "--headless", "--no-x11",
                     "--virtual-monitor", f"{Screen.WIDTH}x{Screen.HEIGHT}",
                     "--wayland-display=gnome")
        self.use(self.run_folder() / "gnome")
        self.wait_for_shell()
        self._input = RemoteInput(self.bus)
        self.screen = self

    def press(self, *keys):
        self._input.press(*keys)

    def point_at(self, x, y):
        self._input.point_at(x, y)

    def click(self):
        self._input.click()

    def picture(self):
        """The pixels of the shell's screen."""
        path = self.folder / "screen.png"
        self.save_screenshot(path)
        return picture_from(self, str(path))

    def save_screenshot(self, path):
        call(self.bus, (SCREENSHOT, "/org/gnome/Shell/Screenshot"), SCREENSHOT, "Screenshot",
             "(bbs)", False, False, str(path.absolute()))

    def bounds(self, game):
        return self._of_window(game, f"{RECTANGLE}(window.get_frame_rect())", tuple)

    def is_full_screen(self, game):
        return self._of_window(game, "window.fullscreen", bool) and self.bounds(game) == SCREEN

    def wants_attention(self, game):
        return self._of_window(game, "window.demands_attention || window.urgent", bool)

    def _of_window(self, game, expression, kind):
        value = self.evaluate(
            "global.get_window_actors().map(actor => actor.meta_window)"
            f".filter(window => window.get_pid() == {game.process.pid})"
            f".map(window => {expression})[0]")
        return None if value is None else kind(value)
