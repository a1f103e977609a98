"""Plays with random keys and clicks, and checks the screen for contradictions."""

import pathlib
import re
import time

from gi.repository import GLib

from game import FRESH, MOVING, OVER, PAUSED
from waiting import eventually

STATES = FRESH, MOVING, PAUSED, OVER
CARDS = {
    FRESH: {"Find your flow."},
    PAUSED: {"No rush."},
    OVER: {"Game over.", "Fully grown."},
}
ALL_CARDS = set.union(*CARDS.values())
SHEET = "The high scores."
CLICKABLE = ["Gentle", "Classic", "Swift", "Toggle sound effects", "High scores"]
CIRCLE = ["Up", "Left", "Down", "Right"]
TURNS = [*CIRCLE, "w", "a", "s", "d"]
KILOBYTES_PER_MEGABYTE = 1024
# Written to clear_refs, this resets VmHWM.
RESET_PEAK = "5"


class RandomPlayer:
    """Plays one game with the random numbers of `random`."""

    def __init__(self, game, other_window, random):
        self._game = game
        self._other_window = other_window
        self._random = random
        self.actions = 0
        self.checks = 0

    def play(self, seconds):
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            assert self._game.process.poll() is None, "the program has exited"
            self._act()
            self.actions += 1
            time.sleep(self._random.uniform(0, 0.3))
            if self._random.random() < 0.2:
                self.check()

    def visit_every_screen(self):
        """Shows every screen once, as some are created when first shown."""
        for finish in (self._save, self._skip):
            self._game.press("space", "Up")
            self._game.wait_for("Save score")
            finish()
            eventually(lambda: not self._awaits_name(self._texts()), "the name entry is closed")
        for _ in range(2):
            for action in (self._open_sheet, self._come_to_rest, self._lose_focus,
                           self._press_menu, self._switch_screen):
                action()
        for name in CLICKABLE:
            self._click(name)
            self._come_to_rest()

    def memory(self):
        """The peak resident memory in MB during a fixed sequence: full screen, window, sheet.

        The peak is more stable than the memory at rest, which depends on what was freed before.
        """
        process = pathlib.Path(f"/proc/{self._game.process.pid}")
        self._come_to_rest()
        process.joinpath("clear_refs").write_text(RESET_PEAK)
        for _ in range(2 if self._game.is_full_screen() else 1):
            self._switch_screen()
        self._open_sheet()
        self._game.wait_for(SHEET)
        self._come_to_rest()
        peak = re.search(r"VmHWM:\s+(\d+) kB", process.joinpath("status").read_text())
        return int(peak.group(1)) / KILOBYTES_PER_MEGABYTE

    def check(self):
        """Pauses and checks that the accessible texts are consistent."""
        self._come_to_rest()
        texts = self._texts()
        state, = [text for text in texts if text in STATES]
        assert state != MOVING
        cards = ALL_CARDS & set(texts)
        assert cards <= CARDS[state] and len(cards) == 1
        (score,), (best,) = self._numbers(texts, "SCORE"), self._numbers(texts, "PERSONAL BEST")
        assert score % 10 == 0
        if state == PAUSED:
            assert best >= score
        assert any(text.startswith(f"Snake board. Score {score}. ") for text in texts)
        assert [self._game.find(name).can_be_used() for name in ("Gentle", "Classic", "Swift")] \
            == [state != PAUSED and not self._awaits_name(texts)] * 3
        assert self._game.find("New Game").can_be_used() == (not self._awaits_name(texts))
        self.checks += 1

    # Actions.

    def _act(self):
        texts = self._texts()
        if SHEET in texts:
            self._game.press("Escape")
        elif self._awaits_name(texts):
            self._end_naming()
        elif self._random.random() < 0.6:
            self._steer_or_start(texts)
        else:
            self._random.choice([self._press_one, self._press_menu, self._open_sheet,
                                 self._switch_screen, self._lose_focus, self._click_one])()

    def _steer_or_start(self, texts):
        if MOVING not in texts:
            self._game.press("space")
        # Mostly in circles: purely random turns soon hit a wall.
        first = self._random.randrange(len(CIRCLE))
        for step in range(self._random.randint(4, 16)):
            self._game.press(CIRCLE[(first + step) % len(CIRCLE)])
            time.sleep(self._random.uniform(0.05, 0.25))
        if self._random.random() < 0.3:
            self._game.press(*self._random.choices(TURNS, k=4))

    def _press_one(self):
        self._game.press(self._random.choice(
            ["space", "Escape", "r", "ctrl+n", "ctrl+p", "Tab"]))

    def _press_menu(self):
        self._game.press("F10", "Right", "Escape", "Escape")

    def _open_sheet(self):
        self._game.press("ctrl+l")

    def _switch_screen(self):
        was = self._game.is_full_screen()
        self._game.press("F11")
        eventually(lambda: self._game.is_full_screen() != was, "full screen is toggled")

    def _lose_focus(self):
        self._other_window.take_focus_from(self._game)
        self._other_window.give_focus_back_to(self._game)

    def _click_one(self):
        self._click(self._random.choice(CLICKABLE))

    def _end_naming(self):
        if self._random.random() < 0.3:
            self._skip()
        else:
            self._save(self._random.choice(["", "  ", "Pip ", "Wren of the Fern "]))

    def _save(self, name="Pip"):
        self._game.type(name)
        self._game.press("Return")

    def _skip(self):
        self._click("Skip saving")

    def _click(self, name):
        shown = self._game.find_showing(name)
        if shown and shown[-1].can_be_used():
            self._game.click(shown[-1])

    # Observations.

    def _texts(self):
        return eventually(self._texts_or_none, "the screen can be read")

    def _texts_or_none(self):
        try:
            return self._game.texts()
        except GLib.Error:
            # An element was removed during the query.
            return None

    def _come_to_rest(self):
        """Pauses the run and closes the sheet."""
        def is_at_rest():
            texts = self._texts()
            if SHEET in texts or MOVING in texts:
                self._game.press("Escape")
            else:
                return sum(text in STATES for text in texts) == 1
            time.sleep(0.1)
            return False
        eventually(is_at_rest, "the game is at rest")

    @staticmethod
    def _awaits_name(texts):
        return "Save score" in texts

    @staticmethod
    def _numbers(texts, label):
        return [int(text.partition(": ")[2]) for text in texts if text.startswith(f"{label}: ")]
