"""The program prints nothing and needs nothing of a desktop but a display."""

import pytest
from seen import moves, shows_card
from waiting import eventually


def nowhere(home):
    """Addresses at which nobody answers."""
    place = f"unix:path={home.environment['HOME']}/nobody"
    return {
        "no session bus": {"DBUS_SESSION_BUS_ADDRESS": place},
        "no accessibility": {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "0",
                             "AT_SPI_BUS_ADDRESS": place},
        "no sound server": {"PULSE_SERVER": place},
    }


@pytest.mark.parametrize("variable, value", [
    ("LANG", "xx"),
    ("LC_CTYPE", "UTF-8"),
    ("WAYLAND_DISPLAY", "wayland-of-before"),
    ("XDG_RUNTIME_DIR", "/dev/null/runtime"),
    ("SESSION_MANAGER", "local/elsewhere:@/tmp/.ICE-unix/1"),
])
def test_an_odd_environment_is_no_reason_to_print(launch, home, variable, value):
    game = launch(**{variable: value})
    eventually(lambda: shows_card(game), "the start card is there")
    game.press("space")
    eventually(lambda: "best-Classic" in home.preferences(), "the first fruit counts")
    eventually(lambda: not moves(game), "the run has ended")
    game.type("Pip")
    game.press("Return")
    eventually(home.high_scores, "the run is saved")
    game.press("ctrl+q")
    assert game.exit_status() == 0


@pytest.mark.parametrize("missing", [
    ["no sound server"],
    ["no session bus"],
    ["no accessibility"],
    ["no sound server", "no session bus", "no accessibility"],
], ids=", ".join)
def test_a_whole_session_prints_nothing_and_is_kept(launch, home, missing):
    environment = {}
    for thing in missing:
        environment |= nowhere(home)[thing]
    game = launch(**environment)
    eventually(lambda: shows_card(game), "the start card is there")
    game.press("ctrl+l")
    eventually(lambda: not shows_card(game), "the sheet covers the card")
    game.press("Escape")
    eventually(lambda: shows_card(game), "the sheet is gone")
    game.press("F11", "F11", "space")
    eventually(lambda: moves(game), "the run moves")
    game.press("space")
    eventually(lambda: not moves(game), "the run rests")
    game.press("space")
    eventually(lambda: "best-Classic" in home.preferences(), "the first fruit counts")
    eventually(lambda: not moves(game), "the run has ended")
    game.type("Pip")
    game.press("Return")
    eventually(lambda: [entry["name"] for entry in home.high_scores()] == ["Pip"],
               "the run is saved")
    game.press("space")
    eventually(lambda: moves(game), "the next run moves")
    game.press("ctrl+q")
    assert game.exit_status() == 0
    assert game.printed() == ""
