"""The Help menu's sheets, and the hint about full screen."""

from game import FRESH, MOVING, PAUSED
from waiting import eventually

HINT = "Press F11 to leave full screen"
KEYS = "The keys.", "Menus: F10, Alt", "F11", "Quit: Ctrl + Q", "Ctrl+Q"


def leave_sheet(game):
    game.press("Escape")
    eventually(lambda: not game.shows("The keys."), "the sheet is closed")


def test_f1_opens_the_keys_in_full_screen_and_in_a_window(game):
    game.press("F1")
    game.wait_for(*KEYS)
    leave_sheet(game)
    game.press("F11")
    game.wait_for("Minimise")
    game.press("F1")
    game.wait_for(*KEYS)


def test_f1_pauses_the_run_and_no_key_reaches_it(game):
    game.start_run()
    game.press("F1")
    game.wait_for(PAUSED, *KEYS)
    game.press("space", "r", "ctrl+p")
    leave_sheet(game)
    assert game.shows(PAUSED)
    game.press("space")
    game.wait_for(MOVING)


def test_the_keys_name_the_way_out(game):
    game.press("F1")
    game.wait_for(*KEYS)
    game.press("F11")
    game.wait_for("Minimise", *KEYS)
    game.press("ctrl+q")
    assert game.exit_status() == 0


def test_about_tells_the_version(game):
    game.press("F10", "Right", "Right", "Up", "Return")
    game.wait_for("Fernwick: Version 1.0.0", "Qt: GNU LGPL 3")


def test_f1_in_a_menu_opens_nothing(game):
    game.press("F10", "Down")
    eventually(game.find("New Game").is_showing, "the menu is open")
    game.press("F1", "Escape")
    if not game.is_full_screen():
        game.press("Escape")
    game.press("space")
    game.wait_for(MOVING)


def test_a_first_start_tells_how_to_leave_full_screen_for_a_few_seconds(launch):
    game = launch()
    game.wait_for(FRESH, HINT)
    eventually(lambda: not game.shows(HINT), "the hint is gone")
    assert game.shows(FRESH)


def test_the_hint_goes_when_a_run_starts(launch):
    game = launch()
    game.wait_for(HINT)
    game.start_run()
    assert not game.shows(HINT)


def test_there_is_no_hint_after_a_score(launch, home):
    home.store({"best-Swift": 10})
    game = launch()
    game.wait_for(FRESH)
    for _ in range(10):
        assert not game.shows(HINT)


def test_the_letters_are_those_of_the_keyboards_of_the_country(launch):
    game = launch(LANG="fr_FR.UTF-8")
    game.wait_for("ou ZQSD pour se déplacer")
    game.press("F1")
    game.wait_for("Les touches.", "Z", "Q")
