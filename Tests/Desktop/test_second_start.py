"""Single instance: a second start activates the first window and exits."""

import signal
import subprocess
import time

import pytest
from accessibility import call, connect
from game import PAUSED, PROGRAM
from gi.repository import GLib
from waiting import TIMEOUT, eventually

BUS_NAME = "org.fernwick.fernwick"
NO_BUS = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent/bus"}


@pytest.fixture
def start_again(desktop, home):
    """Starts another instance with the same home folder and returns its process."""
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
        assert exits_normally(start_again())
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


def test_releases_its_bus_name_on_exit(game, bus):
    eventually(lambda: has_owner(bus), "the game owns its bus name")
    game.quit()
    eventually(lambda: not has_owner(bus), "the bus name is released")
