"""A window of another program, to take the focus."""

from waiting import eventually


class OtherWindow:
    def __init__(self, desktop):
        self._desktop = desktop
        self._process = None

    def take_focus_from(self, game):
        self._process = self._desktop.spawn("xmessage", "Another window")
        eventually(lambda: self._desktop.active_window() not in (0, game.window),
                   "the other window is active")

    def give_focus_back_to(self, game):
        self.close()
        eventually(game.is_active, "the game is active again")

    def close(self):
        if self._process is not None:
            self._process.terminate()
            self._process.wait()
            self._process = None
