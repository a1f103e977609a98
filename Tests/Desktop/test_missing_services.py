"""Without optional desktop services the program works as usual and prints nothing."""

import os

import pytest
from board import Board
from game import Game
from screen import Screen
from waiting import eventually

BUTTON_COLOUR = (166, 240, 163)
INSIDE_THE_BUTTON = Screen.WIDTH // 2 - 60, 650
NOBODY = 65534


# Read from pixels, because there may be no accessibility bus.

def shows_card(game):
    """Whether the button of the start card is visible, in full screen."""
    return game.desktop.screen.picture().colour(*INSIDE_THE_BUTTON) == BUTTON_COLOUR


def is_running(game):
    """Whether a run is in progress: otherwise the board is dimmed."""
    return Board.is_moving(game.desktop.screen.picture())


def unreachable(home):
    """Environment variables for services with an address at which nothing listens."""
    address = f"unix:path={home.environment['HOME']}/nothing"
    return {
        "session bus": {"DBUS_SESSION_BUS_ADDRESS": address},
        "accessibility bus": {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "0",
                              "AT_SPI_BUS_ADDRESS": address},
        "sound server": {"PULSE_SERVER": address},
    }


def play_and_save(game, home):
    game.press("space")
    eventually(lambda: "best-Classic" in home.preferences(), "the first fruit is counted")
    eventually(lambda: not is_running(game), "the run has ended")
    game.type("Pip")
    game.press("Return")
    eventually(lambda: [entry["name"] for entry in home.high_scores()] == ["Pip"],
               "the run is saved")


@pytest.mark.parametrize("variable, value", [
    ("LANG", "xx"),
    ("LC_CTYPE", "UTF-8"),
    ("WAYLAND_DISPLAY", "stale-wayland-display"),
    ("XDG_RUNTIME_DIR", "/dev/null/runtime"),
    ("XDG_RUNTIME_DIR", None),
    ("SESSION_MANAGER", "local/elsewhere:@/tmp/.ICE-unix/1"),
])
def test_prints_nothing_in_an_unusual_environment(launch, home, variable, value):
    game = launch(**{variable: value})
    eventually(lambda: shows_card(game), "the start card is shown")
    play_and_save(game, home)
    game.press("ctrl+q")
    assert game.exit_status() == 0
    assert game.printed() == ""


def test_prints_nothing_when_the_runtime_folder_belongs_to_another_user(launch, tmp_path):
    folder = "/usr"
    if os.geteuid() == 0:
        folder = tmp_path / "runtime"
        folder.mkdir(mode=0o700)
        os.chown(folder, NOBODY, NOBODY)
    game = launch(XDG_RUNTIME_DIR=str(folder), PULSE_SERVER=None)
    game.press("space", "Up")
    game.wait_for("Game over.")
    game.quit()
    assert game.printed() == ""


def test_prints_nothing_with_a_stale_wayland_display_and_no_runtime_folder(launch):
    game = launch(XDG_RUNTIME_DIR=None, WAYLAND_DISPLAY="stale-wayland-display")
    game.start_run()
    game.quit()
    assert game.printed() == ""


@pytest.mark.parametrize("missing", [
    ["sound server"],
    ["session bus"],
    ["accessibility bus"],
    ["sound server", "session bus", "accessibility bus"],
], ids=", ".join)
def test_a_whole_session_works_and_prints_nothing_without(launch, home, missing):
    environment = {}
    for service in missing:
        environment |= unreachable(home)[service]
    game = launch(**environment)
    eventually(lambda: shows_card(game), "the start card is shown")
    game.press("ctrl+l")
    eventually(lambda: not shows_card(game), "the sheet covers the card")
    game.press("Escape")
    eventually(lambda: shows_card(game), "the sheet is closed")
    game.press("F11", "F11", "space")
    eventually(lambda: is_running(game), "the run has started")
    game.press("space")
    eventually(lambda: not is_running(game), "the run is paused")
    play_and_save(game, home)
    game.press("space")
    eventually(lambda: is_running(game), "the next run has started")
    game.press("ctrl+q")
    assert game.exit_status() == 0
    assert game.printed() == ""


NO_DISPLAY = "cannot open a display: "
NO_PLUGIN = "cannot find the Qt platform plugin: "


@pytest.mark.parametrize("environment, line", [
    ({}, NO_DISPLAY + 'DISPLAY is not set, WAYLAND_DISPLAY is not set'),
    ({"XDG_RUNTIME_DIR": None}, NO_DISPLAY + 'DISPLAY is not set, WAYLAND_DISPLAY is not set'),
    ({"XDG_SESSION_TYPE": "wayland"},
     NO_DISPLAY + 'DISPLAY is not set, WAYLAND_DISPLAY is not set'),
    ({"XDG_RUNTIME_DIR": None, "XDG_SESSION_TYPE": "wayland"},
     NO_DISPLAY + 'DISPLAY is not set, WAYLAND_DISPLAY is not set'),
    ({"XDG_RUNTIME_DIR": None, "WAYLAND_DISPLAY": "nothing"},
     NO_DISPLAY + 'DISPLAY is not set, WAYLAND_DISPLAY="nothing"'),
    ({"DISPLAY": ""}, NO_DISPLAY + 'DISPLAY="", WAYLAND_DISPLAY is not set'),
    ({"DISPLAY": ":4711"}, NO_DISPLAY + 'DISPLAY=":4711", WAYLAND_DISPLAY is not set'),
    ({"WAYLAND_DISPLAY": "nothing"}, NO_DISPLAY + 'DISPLAY is not set, WAYLAND_DISPLAY="nothing"'),
    ({"DISPLAY": ":4711", "WAYLAND_DISPLAY": "nothing"},
     NO_DISPLAY + 'DISPLAY=":4711", WAYLAND_DISPLAY="nothing"'),
    ({"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": "nothing"},
     NO_DISPLAY + 'QT_QPA_PLATFORM="wayland", DISPLAY is not set, WAYLAND_DISPLAY="nothing"'),
    ({"QT_QPA_PLATFORM": "nothing"},
     NO_PLUGIN + 'QT_QPA_PLATFORM="nothing", DISPLAY is not set, WAYLAND_DISPLAY is not set'),
], ids=str)
def test_without_a_display_it_prints_one_line_and_exits_with_status_1(
        desktop, home, tmp_path, environment, line):
    environment = desktop.environment | home.environment | {"DISPLAY": None} | environment
    game = Game(desktop, tmp_path,
                {name: value for name, value in environment.items() if value is not None})
    try:
        assert game.exit_status() == 1
        assert game.printed() == f"fernwick: {line}\n"
    finally:
        game.kill()


def test_names_a_display_that_cannot_be_opened_when_it_uses_another_one(desktop, home, tmp_path):
    game = Game(desktop, tmp_path, desktop.environment | home.environment | {
        "DISPLAY": ":4711", "QT_QPA_PLATFORM": "xcb;offscreen"})
    try:
        eventually(lambda: "could not connect to display :4711" in game.printed(), "it is named")
        game.quit()
        assert game.printed().count("could not connect to display") == 1
    finally:
        game.kill()


def test_logging_rules_switch_on_its_log_and_the_messages_of_qt(desktop, home, tmp_path):
    rules = {"LANG": "xx", "QT_LOGGING_RULES": "fernwick.*=true;qt.xkb.compose.warning=true"}
    game = Game(desktop, tmp_path, desktop.environment | home.environment
                | {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"} | rules)
    try:
        game.wait_until_shown()
        eventually(lambda: "fernwick.sound: no connection to the sound server" in game.printed(),
                   "the sound is logged")
        # Qt reads the compose table when the first key goes into a text field.
        game.start_run()
        game.press("Up")
        game.wait_for("Game over.")
        game.type("Pip")
        eventually(lambda: "failed to create compose table" in game.printed(),
                   "Qt's message is shown")
        game.quit()
        assert "fernwick.instance: first instance" in game.printed()
        assert "preferences.cbor: absent" in game.printed()
    finally:
        game.kill()
