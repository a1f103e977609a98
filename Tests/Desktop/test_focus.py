"""Losing the keyboard to another window or to the desktop, and regaining it."""

import pytest
from accessibility import call, connect
from game import FRESH, MOVING, OVER, PAUSED
from gi.repository import GLib
from key_grab import F5, KeyboardGrab, KeyGrab
from waiting import eventually

# Qt reports a grab of the keyboard after 0.1 s, and the run pauses 0.2 s later.
TAP_SECONDS = "0.15"


def test_losing_the_focus_pauses_and_regaining_it_does_not_resume(game, other_window):
    game.start_run()
    other_window.take_focus_from(game)
    game.wait_for(PAUSED, "No rush.")
    other_window.give_focus_back_to(game)
    assert game.shows(PAUSED)
    # If it had resumed, this would pause.
    game.press("space")
    game.wait_for(MOVING)


def test_losing_the_focus_changes_nothing_before_the_first_run(game, other_window):
    other_window.take_focus_from(game)
    other_window.give_focus_back_to(game)
    assert game.shows(FRESH, "Find your flow.")


def test_losing_the_focus_keeps_a_partly_typed_name(game, other_window):
    game.start_run()
    game.press("Up")
    game.wait_for("Game over.")
    game.type("Pi")
    other_window.take_focus_from(game)
    other_window.give_focus_back_to(game)
    game.type("p")
    eventually(lambda: game.find("Player name").text == "Pip", "typing continues")
    assert game.shows(OVER)


def test_minimising_pauses(game):
    game.press("F11")
    game.wait_for("Minimise")
    game.start_run()
    pause = game.find("Pause")
    game.click(game.find("Minimise"))
    eventually(lambda: pause.name == "Resume", "the menu offers to resume")


@pytest.fixture
def grab(desktop):
    """Makes a grab of the given class, which ends with the test."""
    grabs = []

    def grab(kind, *arguments):
        grabs.append(kind(desktop.environment["DISPLAY"], *arguments))
        return grabs[-1]

    yield grab
    for each in grabs:
        each.close()


def test_a_tap_on_a_shortcut_of_the_desktop_does_not_disturb_the_run(game, grab):
    shortcut = grab(KeyGrab, {F5: 0})
    game.start_run()
    game.desktop.run("xdotool", "keydown", "F5", "sleep", TAP_SECONDS, "keyup", "F5")
    assert shortcut.was_used()
    # If the run had been paused, this would resume it.
    game.press("space")
    game.wait_for(PAUSED)


def test_holding_a_shortcut_of_the_desktop_pauses(game, grab):
    grab(KeyGrab, {F5: 0})
    game.start_run()
    game.desktop.run("xdotool", "keydown", "F5")
    try:
        game.wait_for(PAUSED)
    finally:
        game.desktop.run("xdotool", "keyup", "F5")


def test_a_lock_screen_pauses_and_its_end_does_not_resume(game, grab):
    game.start_run()
    lock_screen = grab(KeyboardGrab)
    game.wait_for(PAUSED)
    lock_screen.close()
    # If the run had resumed, this would pause it.
    game.press("space")
    game.wait_for(MOVING)


def show_overview(bus, shown):
    """Announces it as GNOME Shell does."""
    bus.emit_signal(
        None, "/org/gnome/Shell", "org.freedesktop.DBus.Properties", "PropertiesChanged",
        GLib.Variant("(sa{sv}as)", ("org.gnome.Shell",
                                    {"OverviewActive": GLib.Variant("b", shown)}, [])))
    bus.flush_sync()


def test_the_overview_of_gnome_shell_pauses_even_if_the_window_keeps_the_focus(game, desktop):
    bus = connect(desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
    eventually(lambda: call(bus, ("org.freedesktop.DBus", "/"), "org.freedesktop.DBus",
                            "NameHasOwner", "(s)", "org.fernwick.fernwick")[0],
               "the game follows the bus")
    game.start_run()
    show_overview(bus, True)
    game.wait_for(PAUSED)
    show_overview(bus, False)
    game.press("space")
    game.wait_for(MOVING)
    show_overview(bus, False)
    game.press("space")
    game.wait_for(PAUSED)
