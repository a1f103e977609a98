"""The game for screen reader users: names, roles and actions."""

import pytest
from game import MOVING, PAUSED
from test_sheet import SHEET, wait_until_closed
from waiting import eventually

SAVED = "Score saved · Top 10"

# The action that each role must have.
ACTIONS = {"push button": "Press", "toggle button": "Press", "radio button": "Press",
           "check box": "Press", "text": "SetFocus", "dialog": "SetFocus", "frame": None,
           "window": None}


def end_run(game):
    game.start_run()
    game.press("Up")
    game.wait_for("Game over.")


def stay_at_start(game):
    """Stays on the first screen."""


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


@pytest.mark.parametrize("reach", [stay_at_start, pause, end_run, save, open_sheet,
                                   leave_full_screen])
def test_every_control_has_a_name_a_role_and_an_action(game, reach):
    reach(game)
    controls = [element for element in game.top().everything_showing() if element.is_focusable()]
    assert len(controls) >= 6
    for control in controls:
        assert control.name != ""
        assert control.role in ACTIONS, control.name
        if control.can_be_used():
            assert ACTIONS[control.role] in control.actions, control.name
    assert all(field.is_editable() for field in controls if field.role == "text")


def test_the_sheet_is_a_modal_dialog_that_keeps_the_focus(game):
    game.start_run()
    open_sheet(game)
    dialog = eventually(lambda: next((element for element in game.top().everything_showing()
                                      if element.role == "dialog"), None), "the dialog is shown")
    assert dialog.name == "The high scores."
    assert dialog.is_modal()
    inside = [element for element in dialog.everything() if element.is_focusable()]
    visited = set()
    for _ in range(2 * len(inside)):
        game.press("Tab")
        focused = eventually(lambda: focus_within(inside), "the focus is on the sheet")
        visited.add(focused)
    assert visited >= {"Classic", "Done"}
    game.press("Escape")
    wait_until_closed(game)
    assert game.shows(PAUSED)


def focus_within(elements):
    return next((element.name for element in elements if element.is_focused()), None)


@pytest.mark.parametrize("reach", [stay_at_start, end_run, save])
def test_tab_follows_the_reading_order(game, reach):
    reach(game)
    visited = []
    stops = [element for element in game.top().everything_showing()
             if element.is_focusable() and element.can_be_used()]
    # A radio group is a single tab stop.
    for _ in stops:
        game.press("Tab")
        extents = eventually(lambda: focused_extents(stops, visited), "the focus has moved on")
        if visited and extents == visited[0]:
            break
        visited.append(extents)
    # The focus may have started in the middle: rotate the list to start at the top.
    first = visited.index(min(visited, key=row_and_column))
    in_order = visited[first:] + visited[:first]
    assert in_order == sorted(visited, key=row_and_column)
    assert len(visited) >= 4


def focused_extents(stops, visited):
    extents = next((tuple(stop.extents_on_screen()) for stop in stops if stop.is_focused()), None)
    return extents if not visited or extents != visited[-1] else None


def row_and_column(extents):
    left, top, _, height = extents
    return top + height // 2, left


def test_a_whole_run_can_be_played_with_actions_and_keys(game, home):
    game.find("Swift").do("Press")
    eventually(game.find("Swift").is_checked, "Swift is chosen")
    game.find("Let's grow").do("Press")
    game.wait_for(MOVING)
    game.press("Up")
    game.wait_for("Game over.", "0 POINTS  ·  Swift")
    name = game.find("Player name")
    assert name.is_focused()
    name.write("Pip")
    save_score = game.find("Save score")
    eventually(save_score.can_be_used, "the name can be saved")
    save_score.do("Press")
    game.wait_for(SAVED, "01 Pip 0")
    home.saved()
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
