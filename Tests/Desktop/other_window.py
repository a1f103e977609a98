"""A window of another program."""

from waiting import eventually


class OtherWindow:
    def __init__(self, desktop):
        self._desktop = desktop
        self._process = None

    def take_focus_from(self, game):
        self._process = self._desktop.spawn("xmessage", "Another window")
        eventually(lambda: self._desktop.active_window() not in (0, game.window),
                   "the other window has the focus")

    def give_focus_back_to(self, game):
        self.close()
        eventually(game.is_active, "the game has the focus again")

    def close(self):
        if self._process is not None:
            self._process.terminate()
            self._process.wait()
            self._process = None
