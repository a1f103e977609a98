"""The essentials on a Wayland desktop."""

import signal

import pytest
from game import FRESH, Game
from waiting import eventually

SIZE = 1600, 1000
SOCKET = "fernwick-wayland"


@pytest.fixture(scope="module")
def wayland(desktop):
    """A compositor without a screen; the value is what tells programs of it."""
    width, height = SIZE
    compositor = desktop.spawn("weston", "--backend=headless-backend.so", "--no-config",
                               "--idle-time=0", f"--socket={SOCKET}",
                               f"--width={width}", f"--height={height}")
    eventually((desktop.run_folder() / SOCKET).exists, "the compositor is up")
    yield {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": SOCKET}
    compositor.terminate()
    compositor.wait()


@pytest.fixture
def game(desktop, wayland, home, tmp_path):
    game = Game(desktop, tmp_path, desktop.environment | home.environment | wayland
                | {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"})
    game.wait_for(FRESH, "Find your flow.")
    yield game
    game.kill()
    assert game.printed() == ""


def test_full_screen_is_reached_on_launch(game):
    window, = game.top().children()
    eventually(lambda: window.place_on_screen()[2:] == SIZE, "the window covers the screen")
    assert not game.find("File").is_showing()


@pytest.mark.parametrize("number", [signal.SIGTERM, signal.SIGINT, signal.SIGHUP])
def test_a_signal_ends_it_with_status_0(game, number):
    game.process.send_signal(number)
    assert game.exit_status() == 0
