"""The essentials on a Wayland desktop."""

import signal

import pytest
from compositor import GROUND, Compositor
from game import FRESH, MOVING, PAUSED, Game
from screen import Screen
from test_playing import LETTERS, steer_round
from waiting import eventually

SIZE = Screen.WIDTH, Screen.HEIGHT
OWN_SIZE = 940, 860


@pytest.fixture
def wayland(desktop):
    compositor = Compositor(desktop, SIZE)
    try:
        compositor.start()
        yield compositor
    finally:
        compositor.stop()


@pytest.fixture
def french_keyboard(desktop):
    desktop.run("setxkbmap", "fr")
    yield
    desktop.run("setxkbmap", "us")


@pytest.fixture
def launch(desktop, wayland, home, tmp_path):
    """Starts the program there and waits until it can be played; it may print nothing."""
    games = []

    def launch(**environment):
        game = Game(desktop, tmp_path, desktop.environment | home.environment
                    | wayland.environment | environment)
        games.append(game)
        # What the X server knows of the game is the compositor's window.
        game.window = wayland.window
        game.wait_for(FRESH, "Find your flow.")
        window, = game.top().children()
        eventually(window.is_active, "the window is in front")
        eventually(lambda: place_within_ground(game) == (0, 0, *SIZE), "the screen is filled")
        return game

    yield launch
    for game in games:
        game.kill()
        assert game.printed() == ""


@pytest.fixture
def game(launch):
    return launch()


def window_size(game):
    window, = game.top().children()
    return tuple(window.place_on_screen()[2:])


def place_within_ground(game):
    """Left, top, width and height of all on the screen that is not the compositor's ground."""
    return game.desktop.screen.picture().place_of_all_but(GROUND)


def test_full_screen_is_reached_on_launch(game):
    assert window_size(game) == SIZE
    assert not game.find("File").is_showing()


def test_the_letters_w_a_s_d_steer_the_snake(game):
    steer_round(game, LETTERS)


# The compositor asks for the keyboard's layout when it starts.
def test_the_same_places_steer_on_a_french_keyboard(french_keyboard, launch):
    steer_round(launch(), LETTERS)


# Coming back is tried on X only: this compositor misses, now and then, that its window is in front
# again.
def test_losing_the_focus_pauses(game, other_window):
    game.start_run()
    other_window.take_focus_from(game)
    game.wait_for(PAUSED, "No rush.")


def test_the_pointer_presses_buttons(game):
    game.point_at(*middle(game.find("Let's grow")))
    game.desktop.run("xdotool", "click", "1")
    game.wait_for(MOVING)


def test_outside_full_screen_the_window_has_its_own_size_and_no_frame(game):
    game.press("F11")
    game.wait_for("Minimise")
    eventually(lambda: place_within_ground(game)[2:] == OWN_SIZE, "nothing is drawn around it")
    game.press("F11")
    eventually(lambda: place_within_ground(game) == (0, 0, *SIZE), "full screen again")


@pytest.mark.parametrize("scale", [1.25, 1.5])
def test_it_plays_at_fractional_scales(launch, scale):
    game = launch(QT_SCALE_FACTOR=str(scale))
    game.start_run()
    game.press("space")
    game.wait_for(PAUSED)


@pytest.mark.parametrize("number", [signal.SIGTERM, signal.SIGINT, signal.SIGHUP])
def test_a_signal_ends_it_with_status_0(game, number):
    game.process.send_signal(number)
    assert game.exit_status() == 0


def middle(element):
    left, top, width, height = element.place_on_screen()
    return left + width // 2, top + height // 2
