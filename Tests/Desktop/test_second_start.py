"""One running game a player: a second start brings the first window forward and ends."""

import signal
import subprocess
import time

import pytest
from accessibility import call, connect
from game import PAUSED, PROGRAM
from gi.repository import GLib
from waiting import PATIENCE, eventually

BUS_NAME = "org.fernwick.fernwick"
NO_BUS = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent/bus"}


@pytest.fixture
def start_again(desktop, home):
    """Starts the program once more in the same home; the process."""
    started = []

    def start_again(**environment):
        started.append(subprocess.Popen(
            [PROGRAM], env=desktop.environment | home.environment | environment,
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT))
        return started[-1]

    yield start_again
    for process in started:
        process.kill()
        assert process.communicate()[0] == b""


def ends_at_once(process):
    return process.wait(PATIENCE) == 0


@pytest.mark.parametrize("environment", [{}, NO_BUS], ids=["session bus", "no session bus"])
def test_a_second_start_brings_the_first_to_the_front_and_ends(
        launch, other_window, start_again, environment):
    game = launch(**environment)
    other_window.take_focus_from(game)
    assert ends_at_once(start_again(**environment))
    eventually(game.is_active, "the first window is in front")
    assert game.is_full_screen()


def test_a_second_start_comes_before_the_window_that_was_last_typed_into(
        game, other_window, start_again):
    """Window managers keep from the front what was asked for before the player's last key."""
    game.press("shift")
    other_window.take_focus_from(game)
    game.press("shift", "a")
    assert ends_at_once(start_again())
    eventually(game.is_active, "the first window is in front")


def test_a_second_start_changes_nothing_of_a_run(game, start_again):
    game.start_run()
    game.press("space")
    game.wait_for(PAUSED)
    assert ends_at_once(start_again())
    eventually(game.is_active, "the first window is in front")
    assert game.shows(PAUSED)


def test_a_second_start_brings_a_minimised_window_back(game, other_window, start_again):
    other_window.take_focus_from(game)
    game.desktop.run("xdotool", "windowminimize", str(game.window))
    eventually(game.is_minimised, "the window is minimised")
    assert ends_at_once(start_again())
    eventually(lambda: not game.is_minimised(), "the window is back")
    eventually(game.is_active, "the window is in front")
    assert game.is_full_screen()


def test_after_a_kill_the_next_start_is_a_game(launch, start_again):
    for _ in range(3):
        killed = launch()
        killed.process.send_signal(signal.SIGKILL)
        killed.process.wait()
    launch().start_run()


def test_a_second_start_ends_even_when_the_first_hangs(game, other_window, start_again):
    other_window.take_focus_from(game)
    game.process.send_signal(signal.SIGSTOP)
    try:
        assert ends_at_once(start_again())
    finally:
        game.process.send_signal(signal.SIGCONT)
    eventually(game.is_active, "once it goes on, the first window is in front")


def test_of_two_starts_at_the_same_moment_exactly_one_stays(start_again):
    starts = [start_again(), start_again()]
    eventually(lambda: any(each.poll() is not None for each in starts), "one has ended")
    ended, = (each for each in starts if each.poll() is not None)
    stayed, = (each for each in starts if each is not ended)
    assert ended.returncode == 0
    # Long enough for the other to end as well, were it about to.
    time.sleep(2)
    assert stayed.poll() is None
    stayed.terminate()
    assert stayed.wait(PATIENCE) == 0


@pytest.fixture
def bus(desktop):
    """A connection to the desktop's session bus."""
    return connect(desktop.environment["DBUS_SESSION_BUS_ADDRESS"])


def has_owner(bus):
    return call(bus, ("org.freedesktop.DBus", "/"), "org.freedesktop.DBus", "NameHasOwner", "(s)",
                BUS_NAME)[0]


@pytest.mark.parametrize("method, signature, arguments", [
    ("Activate", "(a{sv})", [{}]),
    ("Activate", "(a{sv})", [{"desktop-startup-id": GLib.Variant("s", "launcher_TIME0")}]),
    ("Open", "(asa{sv})", [["file:///somewhere"], {}]),
], ids=["plainly", "with a token", "with a file"])
def test_the_desktop_brings_the_game_forward_over_the_bus(
        game, bus, other_window, method, signature, arguments):
    eventually(lambda: has_owner(bus), "the game has its name on the bus")
    other_window.take_focus_from(game)
    call(bus, (BUS_NAME, "/org/fernwick/fernwick"), "org.freedesktop.Application", method,
         signature, *arguments)
    eventually(game.is_active, "the window is in front")


def test_the_name_on_the_bus_goes_with_the_game(game, bus):
    eventually(lambda: has_owner(bus), "the game has its name on the bus")
    game.quit()
    eventually(lambda: not has_owner(bus), "the name is free")
