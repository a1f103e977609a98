"""Single instance: a second start activates the first window and exits."""

import re
import signal
import subprocess
import time
from itertools import pairwise

import pytest
from accessibility import call, connect
from game import MOVING, PAUSED, PROGRAM
from gi.repository import GLib
from waiting import TIMEOUT, eventually

BUS_NAME = "org.fernwick.fernwick"
NO_BUS = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent/bus"}
ALREADY_RUNNING = b"fernwick: the game is already running\n"


@pytest.fixture
def start_again(desktop, home):
    """Starts another instance with the same home folder and returns its process.

    Checks afterwards that it has printed what was expected."""
    started = []

    def start_again(prints=b"", **environment):
        process = subprocess.Popen(
            [PROGRAM], env=desktop.environment | home.environment | environment,
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        started.append((process, prints))
        return process

    yield start_again
    for process, prints in started:
        process.kill()
        assert process.communicate()[0] == prints


def exits_normally(process):
    return process.wait(TIMEOUT) == 0


@pytest.mark.parametrize("environment", [{}, NO_BUS], ids=["session bus", "no session bus"])
def test_a_second_start_activates_the_first_window_and_exits(
        launch, other_window, start_again, environment):
    game = launch(**environment)
    other_window.take_focus_from(game)
    assert exits_normally(start_again(**environment))
    eventually(game.is_active, "the first window is active")
    assert game.is_full_screen()


def test_a_second_start_activates_despite_focus_stealing_prevention(
        game, other_window, start_again):
    """Window managers refuse activation requests older than the last user input."""
    game.press("shift")
    other_window.take_focus_from(game)
    game.press("shift", "a")
    assert exits_normally(start_again())
    eventually(game.is_active, "the first window is active")


def user_time(game):
    """The time of the latest input or activation request of the window, in ms of the X server."""
    return int(game.desktop.property(game.window, "_NET_WM_USER_TIME"))


@pytest.fixture
def typing(game, desktop, tmp_path):
    """Another window that has the focus and has got a key press; the time of that."""
    events = tmp_path / "events"
    with open(events, "wb") as file:
        process = subprocess.Popen(["stdbuf", "-oL", "xev", "-event", "keyboard"],
                                   env=desktop.environment, stdout=file)
    eventually(lambda: not game.is_active(), "the other window is active")
    # The first one may change the state of the keyboard, of which the X server informs every program.
    game.press("a", "b")
    presses = eventually(lambda: re.findall(r"KeyPress.*\n.* time (\d+)", events.read_text())[1:],
                         "the other window gets keys")
    yield int(presses[0])
    process.terminate()
    process.wait()


def test_a_second_start_activates_with_a_time_after_the_latest_input(game, typing, start_again):
    """Window managers may refuse older requests; KWin and Mutter do."""
    assert user_time(game) < typing
    assert exits_normally(start_again())
    eventually(lambda: user_time(game) >= typing, "the window is activated with the current time")


def test_a_second_start_does_not_affect_the_run(game, start_again):
    game.start_run()
    game.press("space")
    game.wait_for(PAUSED)
    assert exits_normally(start_again())
    eventually(game.is_active, "the first window is active")
    assert game.shows(PAUSED)


def test_a_second_start_restores_a_minimised_window(game, other_window, start_again):
    other_window.take_focus_from(game)
    game.desktop.run("xdotool", "windowminimize", str(game.window))
    eventually(game.is_minimised, "the window is minimised")
    assert exits_normally(start_again())
    eventually(lambda: not game.is_minimised(), "the window is restored")
    eventually(game.is_active, "the window is active")
    assert game.is_full_screen()


def test_starts_after_a_kill(launch, start_again):
    for _ in range(3):
        killed = launch()
        killed.process.send_signal(signal.SIGKILL)
        killed.process.wait()
    launch().start_run()


def test_a_second_start_exits_even_if_the_first_is_stopped(game, other_window, start_again):
    other_window.take_focus_from(game)
    game.process.send_signal(signal.SIGSTOP)
    try:
        assert exits_normally(start_again(prints=ALREADY_RUNNING))
    finally:
        game.process.send_signal(signal.SIGCONT)
    eventually(game.is_active, "the first window is active after SIGCONT")


def test_of_two_simultaneous_starts_exactly_one_keeps_running(start_again):
    starts = [start_again(), start_again()]
    eventually(lambda: any(each.poll() is not None for each in starts), "one has exited")
    exited, = (each for each in starts if each.poll() is not None)
    running, = (each for each in starts if each is not exited)
    assert exited.returncode == 0
    # Give the other time to exit too, if it wrongly does.
    time.sleep(2)
    assert running.poll() is None
    running.terminate()
    assert running.wait(TIMEOUT) == 0


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
], ids=["without a token", "with a token", "with a file"])
def test_the_desktop_activates_the_window_over_d_bus(
        game, bus, other_window, method, signature, arguments):
    eventually(lambda: has_owner(bus), "the game owns its bus name")
    other_window.take_focus_from(game)
    call(bus, (BUS_NAME, "/org/fernwick/fernwick"), "org.freedesktop.Application", method,
         signature, *arguments)
    eventually(game.is_active, "the window is active")


def test_ends_the_busy_cursor_of_an_activation_over_d_bus(game, bus, desktop, tmp_path):
    eventually(lambda: has_owner(bus), "the game owns its bus name")
    events = tmp_path / "events"
    with open(events, "wb") as file:
        process = subprocess.Popen(["stdbuf", "-oL", "xev", "-root", "-event", "property"],
                                   env=desktop.environment, stdout=file)

    def parts():
        return re.findall(r"ClientMessage event.*\n.*\((_NET_STARTUP_INFO\w*)\), format 8",
                          events.read_text())

    try:
        # Until xev listens, nothing arrives.
        eventually(lambda: choose_action(bus, "new-game") or "_NET_STARTUP_INFO_BEGIN" in parts(),
                   "the message begins")
        # 'remove: ID="launcher_TIME0"' has two parts of at most 20 bytes. xev may have begun to
        # listen between those of an earlier message.
        eventually(lambda: ("_NET_STARTUP_INFO_BEGIN", "_NET_STARTUP_INFO") in pairwise(parts()),
                   "the message is complete")
    finally:
        process.terminate()
        process.wait()


def choose_action(bus, action):
    call(bus, (BUS_NAME, "/org/fernwick/fernwick"), "org.freedesktop.Application", "ActivateAction",
         "(sava{sv})", action, [], {"desktop-startup-id": GLib.Variant("s", "launcher_TIME0")})


def test_the_new_game_action_activates_the_window_and_starts_a_run(game, bus, other_window):
    eventually(lambda: has_owner(bus), "the game owns its bus name")
    other_window.take_focus_from(game)
    choose_action(bus, "new-game")
    eventually(game.is_active, "the window is active")
    game.wait_for(MOVING)


def test_the_new_game_action_does_not_discard_a_score_that_waits_for_a_name(game, bus):
    eventually(lambda: has_owner(bus), "the game owns its bus name")
    game.start_run()
    game.press("Up")
    game.wait_for("Game over.")
    choose_action(bus, "new-game")
    # The reply to the next call comes after the action has been handled.
    call(bus, (BUS_NAME, "/org/fernwick/fernwick"), "org.freedesktop.DBus.Peer", "Ping", "()")
    assert game.shows("Game over.")


def test_ignores_an_action_that_it_does_not_have(game, bus, other_window):
    eventually(lambda: has_owner(bus), "the game owns its bus name")
    other_window.take_focus_from(game)
    choose_action(bus, "old-game")
    # Give the window time to become active, if it wrongly does.
    time.sleep(0.5)
    assert not game.is_active()


def test_releases_its_bus_name_on_exit(game, bus):
    eventually(lambda: has_owner(bus), "the game owns its bus name")
    game.quit()
    eventually(lambda: not has_owner(bus), "the bus name is released")
