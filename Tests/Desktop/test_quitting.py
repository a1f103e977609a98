"""Every way to quit gives status 0, prints nothing and stores everything."""

import os
import pathlib
import re
import signal
import socket
import time

import pytest
from game import ACCESSIBLE, Game
from key_flood import press_fast
from waiting import TIMEOUT, eventually


def close_by_window_manager(game):
    # The window manager handles this key and closes the window.
    game.press("alt+F4")


def press_ctrl_q(game):
    game.press("ctrl+q")


def send(number):
    return lambda game: game.process.send_signal(number)


WAYS_TO_QUIT = {
    "window manager": close_by_window_manager,
    "Ctrl Q": press_ctrl_q,
    "SIGTERM": send(signal.SIGTERM),
    "SIGINT": send(signal.SIGINT),
    "SIGHUP": send(signal.SIGHUP),
}
# An X11 key code.
SPACE = 65
# So many that the game takes longer than EXIT_LIMIT, in seconds, to handle them all.
FLOOD = 300_000
EXIT_LIMIT = 10
# In /proc/PID/stat, after the name.
USER_TIME = 11

# Signals do not depend on what the window shows; these two do.
by_the_window = pytest.mark.parametrize("quit_by", [close_by_window_manager, press_ctrl_q])
ways_to_quit = pytest.mark.parametrize("quit_by", WAYS_TO_QUIT.values(), ids=WAYS_TO_QUIT.keys())


@ways_to_quit
def test_quits_during_a_run_with_status_0_and_the_best_stored(game, home, quit_by):
    game.start_run()
    eventually(lambda: "best-Classic" in home.preferences(), "the best is on disk")
    quit_by(game)
    assert game.exit_status() == 0
    assert list(home.preferences()) == ["best-Classic"]
    assert home.preferences()["best-Classic"] >= 10


def test_repeated_signals_until_the_end_give_status_0(game):
    """Terminals and service managers may send several."""
    while game.process.poll() is None:
        for number in (signal.SIGHUP, signal.SIGTERM, signal.SIGINT):
            game.process.send_signal(number)
    assert game.exit_status() == 0


def cpu_seconds(process):
    """The CPU time that a process has used in user mode."""
    fields = pathlib.Path(f"/proc/{process.pid}/stat").read_text().rpartition(")")[2].split()
    return int(fields[USER_TIME]) / os.sysconf("SC_CLK_TCK")


def test_a_backlog_of_keys_does_not_delay_the_exit(short_lived_desktop, home, tmp_path):
    """Each Space pauses or resumes the run, which shows or hides a card. On a desktop of its own,
    because the window manager is busy for long afterwards."""
    environment = short_lived_desktop.environment
    game = Game(short_lived_desktop, tmp_path, environment | home.environment | ACCESSIBLE)
    try:
        game.wait_until_shown()
        game.start_run()
        game.process.send_signal(signal.SIGSTOP)
        press_fast(environment["DISPLAY"], SPACE, FLOOD)
        before = cpu_seconds(game.process)
        game.process.send_signal(signal.SIGCONT)
        eventually(lambda: cpu_seconds(game.process) > before + 0.5, "the game handles the keys")
        game.process.send_signal(signal.SIGTERM)
        assert game.process.wait(EXIT_LIMIT) == 0
        assert game.printed() == ""
    finally:
        game.kill()


@pytest.fixture
def silent_bus(home):
    """A socket that accepts connections and never replies: connecting to this bus blocks."""
    with socket.socket(socket.AF_UNIX) as listener:
        listener.bind(f"{home.environment['HOME']}/bus")
        listener.listen()
        listener.settimeout(TIMEOUT)
        yield listener


@pytest.mark.parametrize("number", [signal.SIGTERM, signal.SIGINT, signal.SIGHUP])
def test_a_signal_before_there_is_a_window_gives_status_0(start, silent_bus, number):
    game = start(DBUS_SESSION_BUS_ADDRESS=f"unix:path={silent_bus.getsockname()}")
    silent_bus.accept()
    game.process.send_signal(number)
    assert game.exit_status() == 0


def handles(process, number):
    """Whether a process has a handler for a signal, by the bits of SigCgt in /proc/PID/status."""
    status = pathlib.Path(f"/proc/{process.pid}/status").read_text()
    mask = int(re.search(r"^SigCgt:\s*(\w+)", status, re.MULTILINE)[1], 16)
    return mask >> (number - 1) & 1


@pytest.mark.parametrize("milliseconds", range(0, 140, 10))
def test_a_signal_at_any_moment_of_the_start_gives_status_0(start, milliseconds):
    """The window is shown before its content is made, and a thread paints the board."""
    game = start()
    # While its libraries are loaded, nothing can handle a signal.
    eventually(lambda: handles(game.process, signal.SIGTERM), "SIGTERM is handled", interval=0.001)
    time.sleep(milliseconds / 1000)
    game.process.send_signal(signal.SIGTERM)
    assert game.exit_status() == 0


def test_an_exit_waits_for_a_slow_disk_and_a_start_for_the_exit(launch, home, slow_disk):
    first = launch(**slow_disk)
    first.save_a_run("Pip")
    first.process.send_signal(signal.SIGTERM)
    second = launch()
    assert first.exit_status() == 0
    assert home.saved()["player-name"] == "Pip"
    second.press("ctrl+l")
    second.wait_for("The high scores.", "01 Pip 0")


@by_the_window
def test_quits_during_name_entry_with_status_0(game, quit_by):
    game.start_run()
    game.press("Up")
    game.wait_for("Game over.")
    quit_by(game)
    assert game.exit_status() == 0


@by_the_window
def test_quits_with_the_sheet_open_with_status_0(game, quit_by):
    game.press("ctrl+l")
    game.wait_for("The high scores.")
    quit_by(game)
    assert game.exit_status() == 0


def test_a_saved_run_and_the_sound_setting_persist(game, home):
    game.click(game.find("Toggle sound effects"))
    game.start_run()
    game.press("Up")
    game.wait_for("Game over.")
    game.type("Pip")
    game.press("Return", "ctrl+q")
    assert game.exit_status() == 0
    assert [entry["name"] for entry in home.high_scores()] == ["Pip"]
    assert home.preferences()["player-name"] == "Pip"
    assert home.preferences()["sound"] is False
