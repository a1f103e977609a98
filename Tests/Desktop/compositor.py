"""Runs weston in a window on the private X server, so that xdotool can drive it."""

from waiting import eventually

SOCKET = "fernwick-wayland"
# A colour that does not occur in the game.
BACKGROUND = 255, 0, 255
SETTINGS = """
[shell]
panel-position=none
background-color=0xffff00ff
locking=false
animation=none
startup-animation=none
"""


class Compositor:
    """A weston that runs from `start` to `stop`."""

    def __init__(self, desktop, size):
        self._desktop = desktop
        self.size = size
        self.process = None
        self.window = None
        # With these variables, programs connect to it.
        self.environment = {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": SOCKET,
                            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}

    def start(self):
        settings = self._desktop.folder / "weston.ini"
        settings.write_text(SETTINGS)
        width, height = self.size
        self.process = self._desktop.spawn(
            "weston", "--backend=x11-backend.so", f"--config={settings}", "--fullscreen",
            "--idle-time=0", f"--socket={SOCKET}", f"--width={width}", f"--height={height}")
        socket = self._desktop.run_folder() / SOCKET
        assert not socket.exists()
        eventually(socket.exists, "the compositor has started")
        self.window = eventually(self._active_window, "the compositor is active")
        eventually(self._fills_the_screen, "the compositor fills the screen")
        self._synchronise_pointer()

    def crash(self):
        self.process.kill()

    def stop(self):
        self.process.terminate()
        self.process.wait()

    def _fills_the_screen(self):
        picture = self._desktop.screen.picture()
        width, height = self.size
        # Not in the corners, where the pointer may be.
        edges = (0, height // 2), (width - 1, height // 2), (width // 2, 0)
        return all(picture.colour(x, y) == BACKGROUND for x, y in edges)

    def _synchronise_pointer(self):
        """Moves weston's pointer to the position of the X server's.

        weston tracks relative motion from where it first saw the pointer, which was before its
        window was placed. Moving to opposite corners removes the offset."""
        width, height = self.size
        for x, y in ((0, 0), (width - 1, height - 1)):
            self._desktop.run("xdotool", "mousemove", str(x), str(y))

    def _active_window(self):
        window = self._desktop.active_window()
        name = self._desktop.property(window, "WM_CLASS") if window else ""
        return window if "Weston" in name else None
