"""The game under a Wayland compositor."""

import re
import signal
import subprocess

import pytest
from compositor import BACKGROUND, Compositor
from game import FRESH, MOVING, PAUSED, PROGRAM, Game
from screen import Screen
from test_help import HINT
from test_playing import KEYPAD_ARROWS, LETTERS, press_with_alt_gr, steer_in_a_square
from test_window import GRIP, MINIMUM_SIZE, STEPS
from waiting import TIMEOUT, eventually

SIZE = Screen.WIDTH, Screen.HEIGHT
WINDOW_SIZE = 940, 860


@pytest.fixture
def wayland(desktop):
    compositor = Compositor(desktop, SIZE)
    try:
        compositor.start()
        yield compositor
    finally:
        compositor.stop()


@pytest.fixture
def french_layout(desktop):
    desktop.run("setxkbmap", "fr")
    yield
    desktop.run("setxkbmap", "us")


@pytest.fixture
def launch(desktop, wayland, home, tmp_path):
    """Starts the program and checks afterwards that it has printed nothing."""
    games = []

    def launch(**environment):
        game = Game(desktop, tmp_path, desktop.environment | home.environment
                    | wayland.environment | environment)
        games.append(game)
        # The X server only sees the window of the compositor.
        game.window = wayland.window
        game.wait_for(FRESH, "Find your flow.")
        window, = game.top().children()
        eventually(window.is_active, "the window is active")
        eventually(lambda: bounds_of_game(game) == (0, 0, *SIZE), "the window fills the screen")
        return game

    yield launch
    for game in games:
        game.kill()
        assert game.printed() == ""


@pytest.fixture
def game(launch):
    return launch()


@pytest.fixture
def traced(desktop, wayland, home, tmp_path):
    """The game, which prints what it sends to the compositor and what it receives."""
    game = Game(desktop, tmp_path, desktop.environment | home.environment
                | wayland.environment | {"WAYLAND_DEBUG": "1"})
    game.window = wayland.window
    yield game
    game.kill()


def window_size(game):
    window, = game.top().children()
    return tuple(window.extents_on_screen()[2:])


def drag_slowly(game, start, by):
    """Gives the compositor time to take the drag over: it does not know where the drag began."""
    steps = ["mousemove", *map(str, start), "mousedown", "1"]
    for step in range(1, STEPS + 1):
        place = (at + offset * step // STEPS for at, offset in zip(start, by))
        steps += ["mousemove", *map(str, place), "sleep", "0.05"]
    game.desktop.run("xdotool", *steps, "mouseup", "1")


def bounds_of_game(game):
    """Left, top, width and height of everything but the compositor's background."""
    return game.desktop.screen.picture().bounds_without(BACKGROUND)


def test_a_first_start_tells_how_to_leave_full_screen_until_it_is_left(game):
    game.wait_for(HINT)
    game.press("F11")
    game.wait_for("Minimise")
    assert not game.shows(HINT)


def test_starts_in_full_screen(game):
    assert window_size(game) == SIZE
    assert not game.find("File").is_showing()


# mutter gives a window its place when it first presents it. A window that is in full screen before
# that has no place to go back to.
def test_enters_full_screen_after_its_first_frame_was_presented(traced):
    traced.wait_for(FRESH)
    eventually(lambda: window_size(traced) == SIZE, "the window is in full screen")
    requests = traced.printed()
    attached = requests.index(".attach(wl_buffer")
    presented = requests.index(".done(", requests.index(".commit()", attached))
    assert attached < presented < requests.index(".set_fullscreen(")


def test_w_a_s_d_steer_the_snake(game):
    steer_in_a_square(game, LETTERS)


def test_the_arrows_of_the_keypad_steer_the_snake(game):
    steer_in_a_square(game, KEYPAD_ARROWS)


def test_keys_pressed_with_alt_gr_do_nothing(game):
    press_with_alt_gr(game)
    assert game.shows(FRESH, "Find your flow.")


# The compositor reads the keyboard layout when it starts.
def test_the_same_physical_keys_steer_with_a_french_layout(french_layout, launch):
    steer_in_a_square(launch(), LETTERS)


# Regaining the focus is tested under X11 only: weston sometimes misses that its window is active
# again.
def test_pauses_when_it_loses_the_focus(game, other_window):
    game.start_run()
    other_window.take_focus_from(game)
    game.wait_for(PAUSED, "No rush.")


def test_pauses_while_the_compositor_switches_windows(game):
    game.start_run()
    game.desktop.run("xdotool", "keydown", "super", "key", "Tab")
    try:
        game.wait_for(PAUSED, "No rush.")
    finally:
        game.desktop.run("xdotool", "keyup", "super")


def test_buttons_can_be_clicked(game):
    game.point_at(*middle(game.find("Let's grow")))
    game.desktop.run("xdotool", "click", "1")
    game.wait_for(MOVING)


def test_leaving_full_screen_restores_the_window_size_without_a_frame(game):
    game.press("F11")
    game.wait_for("Minimise")
    eventually(lambda: bounds_of_game(game)[2:] == WINDOW_SIZE, "there is no frame")
    game.press("F11")
    eventually(lambda: bounds_of_game(game) == (0, 0, *SIZE), "full screen again")


# Not the size after the drag: weston 14 ignores the minimum of any window.
def test_asks_the_compositor_for_the_minimum_size_before_an_edge_is_dragged(traced):
    traced.wait_for(FRESH)
    traced.press("F11")
    traced.wait_for("Minimise")
    eventually(lambda: bounds_of_game(traced)[2:] == WINDOW_SIZE, "full screen is left")

    def is_resized():
        left, top, width, height = bounds_of_game(traced)
        drag_slowly(traced, (left + width - GRIP, top + height - GRIP), by=(-20, -20))
        return ".resize(wl_seat" in traced.printed()

    # Again and again: on a busy machine the pointer may have arrived before the drag begins.
    eventually(is_resized, "the compositor resizes the window")
    before, _, after = traced.printed().partition(".resize(wl_seat")
    *_, minimum = re.findall(r"\.set_min_size\((\d+), (\d+)\)", before)
    assert tuple(map(int, minimum)) == MINIMUM_SIZE
    assert ".commit()" in after


@pytest.mark.parametrize("scale", [1.25, 1.5])
def test_plays_at_fractional_scale_factors(launch, scale):
    game = launch(QT_SCALE_FACTOR=str(scale))
    game.start_run()
    game.press("space")
    game.wait_for(PAUSED)


@pytest.mark.parametrize("token, printed", [
    ({}, "fernwick: the game is already running\n"),
    ({"XDG_ACTIVATION_TOKEN": "token"}, ""),
], ids=["no token", "token"])
def test_a_second_start_prints_one_line_if_the_window_may_not_come_forward(
        game, wayland, home, token, printed):
    done = subprocess.run(
        [PROGRAM], env=game.desktop.environment | home.environment | wayland.environment | token,
        timeout=TIMEOUT, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    assert (done.returncode, done.stdout) == (0, printed)


@pytest.mark.parametrize("number", [signal.SIGTERM, signal.SIGINT, signal.SIGHUP])
def test_a_signal_quits_with_status_0(game, number):
    game.process.send_signal(number)
    assert game.exit_status() == 0


def middle(element):
    left, top, width, height = element.extents_on_screen()
    return left + width // 2, top + height // 2


def test_a_crash_of_the_compositor_loses_no_score_on_a_slow_disk(
        desktop, wayland, home, tmp_path, slow_disk):
    game = Game(desktop, tmp_path, desktop.environment | home.environment
                | wayland.environment | slow_disk)
    try:
        game.wait_for(FRESH)
        game.save_a_run("Pip")
        wayland.crash()
        # Qt calls _exit(1), since 6.5 _exit(-1).
        assert game.process.wait(TIMEOUT) in (1, 255)
    finally:
        game.kill()
    assert home.saved()["player-name"] == "Pip"
    assert "The Wayland connection broke" in game.printed()
