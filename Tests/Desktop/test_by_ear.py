"""The game as a screen reader's user meets it: by what is told, by keys and by named actions."""

import pytest
from accessibility import Listener
from game import MOVING, OVER, PAUSED
from test_sheet import SHEET, wait_until_closed
from waiting import eventually

SAVED = "Score saved · Top 10"
BOARD = "Snake board. Score {}. Use arrow keys or W A S D to move."

# What each kind of control can be asked to do.
ACTIONS = {"push button": "Press", "toggle button": "Press", "radio button": "Press",
           "text": "SetFocus", "dialog": "SetFocus", "frame": None, "window": None}


@pytest.fixture
def listener(game):
    listener = Listener(game.desktop.accessibility)
    # The program learns that someone listens, and says so by telling what happens next.
    sound = game.find("Toggle sound effects")
    was_on = sound.is_checked()
    sound.do("Press")
    eventually(lambda: sound.is_checked() != was_on, "the sound is switched")
    sound.do("Press")
    eventually(lambda: sound.is_checked() == was_on, "the sound is switched back")
    yield listener
    listener.close()


def eventually_hears(listener, name):
    eventually(lambda: name in listener.names(), f"'{name}' is told")


def end_run(game):
    game.start_run()
    game.press("Up")
    game.wait_for("Game over.")


def show_nothing_more(game):
    """The first screen, as it is."""


def pause(game):
    game.start_run()
    game.press("space")
    game.wait_for(PAUSED)


def save(game):
    end_run(game)
    game.type("Pip")
    game.press("Return")
    game.wait_for(SAVED)


def open_sheet(game):
    game.press("ctrl+l")
    game.wait_for(*SHEET)


def leave_full_screen(game):
    game.press("F11")
    game.wait_for("Minimise")


@pytest.mark.parametrize("reach", [show_nothing_more, pause, end_run, save, open_sheet,
                                   leave_full_screen])
def test_every_control_says_what_it_is_and_what_it_does(game, reach):
    reach(game)
    controls = [element for element in game.top().everything_showing() if element.is_focusable()]
    assert len(controls) >= 6
    for control in controls:
        assert control.name != ""
        assert control.role in ACTIONS, control.name
        if control.can_be_used():
            assert ACTIONS[control.role] in control.actions, control.name
    assert all(field.is_editable() for field in controls if field.role == "text")


def test_the_window_is_one_to_a_screen_reader(game):
    window, = game.top().children()
    assert (window.role, window.name) == ("frame", "Fernwick")
    eventually(window.is_active, "it has the keyboard")


def test_a_choice_and_a_switch_tell_how_they_stand(game):
    assert [game.find(speed).is_checked() for speed in ("Gentle", "Classic", "Swift")] == [
        False, True, False]
    sound = game.find("Toggle sound effects")
    assert sound.is_checked()
    sound.do("Press")
    eventually(lambda: not sound.is_checked(), "the sound is off")


def test_every_turn_of_a_run_is_told_once(game, listener):
    game.press("space")
    eventually_hears(listener, MOVING)
    game.press("space")
    eventually_hears(listener, PAUSED)
    game.press("space", "Up")
    eventually_hears(listener, OVER)
    game.type("Pip")
    game.press("Return")
    eventually_hears(listener, SAVED)
    told = [name for name in listener.names() if name in (MOVING, PAUSED, OVER, SAVED)]
    assert told == [MOVING, PAUSED, MOVING, OVER, SAVED]


def test_the_board_tells_a_new_score_once(game, listener):
    # Straight ahead lies the first fruit.
    game.press("space")
    eventually_hears(listener, BOARD.format(10))
    assert listener.names().count(BOARD.format(10)) == 1


def test_the_sheet_is_a_dialog_that_keeps_the_focus(game):
    game.start_run()
    open_sheet(game)
    dialog = eventually(lambda: next((element for element in game.top().everything_showing()
                                      if element.role == "dialog"), None), "the dialog is up")
    assert dialog.name == "The high scores."
    assert dialog.is_modal()
    inside = [element for element in dialog.everything() if element.is_focusable()]
    met = set()
    for _ in range(2 * len(inside)):
        game.press("Tab")
        focused = eventually(lambda: focus_within(inside), "the focus is on the sheet")
        met.add(focused)
    assert met >= {"Classic", "Done"}
    game.press("Escape")
    wait_until_closed(game)
    assert game.shows(PAUSED)


def focus_within(elements):
    return next((element.name for element in elements if element.is_focused()), None)


@pytest.mark.parametrize("reach", [show_nothing_more, end_run, save])
def test_tab_goes_the_way_one_reads(game, reach):
    reach(game)
    places = []
    stops = [element for element in game.top().everything_showing()
             if element.is_focusable() and element.can_be_used()]
    # One stop for a group of choices: arrows choose within it.
    for _ in stops:
        game.press("Tab")
        place = eventually(lambda: focused_place(stops, places), "the focus has moved on")
        if places and place == places[0]:
            break
        places.append(place)
    # The focus may have begun in the middle; from the topmost on it goes down, then to the right.
    begin = places.index(min(places, key=row_and_column))
    in_order = places[begin:] + places[:begin]
    assert in_order == sorted(places, key=row_and_column)
    assert len(places) >= 4


def focused_place(stops, places):
    place = next((tuple(stop.place_on_screen()) for stop in stops if stop.is_focused()), None)
    return place if not places or place != places[-1] else None


def row_and_column(place):
    left, top, _, height = place
    return top + height // 2, left


def test_a_whole_run_is_played_by_actions_and_keys_alone(game, home, listener):
    game.find("Swift").do("Press")
    eventually(game.find("Swift").is_checked, "Swift is chosen")
    game.find("Let's grow").do("Press")
    eventually_hears(listener, MOVING)
    game.press("Up")
    eventually_hears(listener, OVER)
    game.wait_for("Game over.", "0 POINTS  ·  Swift")
    name = game.find("Player name")
    assert name.is_focused()
    name.write("Pip")
    save_score = game.find("Save score")
    eventually(save_score.can_be_used, "the name can be saved")
    save_score.do("Press")
    eventually_hears(listener, SAVED)
    game.wait_for("01 Pip 0")
    entry, = home.high_scores()
    assert (entry["name"], entry["pace"]) == ("Pip", "Swift")
    game.find("Play again").do("Press")
    game.wait_for(MOVING)
    game.find("Pause or resume").do("Press")
    game.wait_for(PAUSED)
    game.find("High scores").do("Press")
    game.wait_for(*SHEET)
    game.find("Done").do("Press")
    wait_until_closed(game)
