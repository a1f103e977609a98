"""What Orca says during a game."""

import pytest
from game import Game
from screen_reader import ScreenReader
from waiting import eventually

EMPTY = "A fresh start. Be the first on the board"


@pytest.fixture
def orca(short_lived_desktop):
    reader = ScreenReader(short_lived_desktop)
    yield reader
    reader.close()


@pytest.fixture
def game(short_lived_desktop, orca, home, tmp_path):
    # Orca turns the accessibility of the desktop on, and thereby the program's.
    game = Game(short_lived_desktop, tmp_path, short_lived_desktop.environment | home.environment)
    game.wait_until_shown()
    yield game
    game.kill()


def score(game):
    name, = (text for text in game.texts() if text.startswith("SCORE: "))
    return int(name.removeprefix("SCORE: "))


def play(game, orca):
    """Plays and saves a run at the speed Gentle; returns the scores at the pause and at the end."""
    orca.hear("Press F11 to leave full screen", "Find your flow. Let's grow. PRESS SPACE.")
    game.press("Tab")
    orca.hear("Gentle", "radio button", "Press Return to choose.")
    game.press("Return")
    orca.hear("Gentle.")
    game.press("space")
    orca.hear("IN THE FLOW.")
    # A run that is started anew.
    game.press("r")
    orca.hear("IN THE FLOW.")
    game.press("space")
    orca.hear("TAKE A BREATH. SCORE: ")
    at_pause = score(game)
    game.press("space")
    orca.hear("IN THE FLOW.")
    game.press("Up")
    orca.hear("Player name text.", "Game over. ")
    at_end = score(game)
    game.type("Pip")
    game.press("Return")
    orca.hear("Score saved, Top 10.")
    return at_pause, at_end


def browse_the_sheet(game, orca):
    game.press("ctrl+l")
    orca.hear("The high scores. dialog", "Gentle. 01 Pip")
    for speed in "Classic", "Swift":
        # From the sheet itself to "Gentle", and then from speed to speed.
        game.press(*(["Tab", "Tab"] if speed == "Classic" else ["Tab"]))
        orca.hear(speed, "radio button", "Press Return to choose.")
        game.press("Return")
        orca.hear(f"{speed}. {EMPTY}")
    game.press("Tab")
    orca.hear("Done")
    game.press("Escape")
    eventually(lambda: not game.shows("The high scores."), "the sheet is closed")


def read_the_keys(game, orca):
    game.press("F1")
    orca.hear("The keys. dialog Move: ↑ ↓", "W A S D Start, pause or resume: Space", "Quit: Ctrl + Q")
    game.press("Escape")
    eventually(lambda: not game.shows("The keys."), "the sheet is closed")


def read_what_the_game_is_made_of(game, orca):
    for key, item in ("F10", "File"), ("Right", "Toggle Full Screen"), ("Right", "Keys"), \
            ("Down", "About Fernwick"):
        game.press(key)
        orca.hear(item)
    game.press("Return")
    orca.hear("Fernwick dialog Fernwick: Version ", "Qt: GNU LGPL 3")
    game.press("Escape")
    eventually(lambda: not game.shows("Grown from what others share. Thank you."),
               "the sheet is closed")


def turn_the_sound_off(game, orca):
    game.find("Toggle sound effects").do("SetFocus")
    orca.hear("Toggle sound effects check box checked")
    game.press("Return")
    orca.hear("not checked")


def content(text):
    # Orca 43 says "notification" in the same text, Orca 48 in one of its own, and without the full
    # stop after "full screen".
    return text.removeprefix("notification ").removesuffix(".")


def test_every_change_in_a_game_is_said_once(game, orca):
    at_pause, at_end = play(game, orca)
    browse_the_sheet(game, orca)
    read_the_keys(game, orca)
    read_what_the_game_is_made_of(game, orca)
    turn_the_sound_off(game, orca)
    said = [content(text) for text in orca.texts()]
    print(*said, sep="\n")
    announcements = [
        "Press F11 to leave full screen",
        "Find your flow. Let's grow. PRESS SPACE",
        "IN THE FLOW",
        "IN THE FLOW",
        f"TAKE A BREATH. SCORE: {at_pause}",
        "IN THE FLOW",
        f"Game over. {at_end} POINTS, Gentle. Leave your name in the garden",
        f"Score saved, Top 10. 01 Pip {at_end}. SPACE TO PLAY AGAIN",
        f"Gentle. 01 Pip {at_end}",
        f"Classic. {EMPTY}",
        f"Swift. {EMPTY}",
    ]
    assert [text for text in said if text in announcements] == announcements
