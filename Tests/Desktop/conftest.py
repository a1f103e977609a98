import pathlib
import subprocess

import pytest
from accessible_desktop import accessible_desktop
from game import ACCESSIBLE, Game
from home import Home
from other_window import OtherWindow
from screen import Screen

DELAYED_FLUSH = pathlib.Path(__file__).parents[1] / "Support/DelayedFlush.cpp"

# Below all controls.
POINTER_AWAY = str(Screen.WIDTH // 2), str(Screen.HEIGHT - 2)


@pytest.fixture(scope="session")
def desktop():
    with accessible_desktop() as desktop:
        yield desktop


@pytest.fixture
def short_lived_desktop():
    """A separate desktop, which the test may ruin."""
    with accessible_desktop() as desktop:
        yield desktop


@pytest.fixture(scope="session")
def slow_disk(tmp_path_factory):
    """Environment variables that make every fsync() take 300 ms."""
    library = tmp_path_factory.mktemp("slow_disk") / "DelayedFlush.so"
    subprocess.run(["g++", "-std=c++20", "-shared", "-fPIC", "-o", library, DELAYED_FLUSH],
                   check=True)
    return {"LD_PRELOAD": str(library), "FERNWICK_FLUSH_DELAY": "300"}


@pytest.fixture
def home(tmp_path):
    return Home(tmp_path)


@pytest.fixture
def start(desktop, home, tmp_path):
    """Starts the program and checks afterwards that it has printed nothing.

    Keyword arguments are environment variables; None unsets one."""
    games = []

    def start(**environment):
        environment = (desktop.environment | home.environment
                       | ACCESSIBLE | environment)
        games.append(Game(desktop, tmp_path, {name: value for name, value in environment.items()
                                              if value is not None}))
        return games[-1]

    yield start
    for game in games:
        game.kill()
        assert game.printed() == ""


@pytest.fixture
def launch(desktop, start):
    """Starts the program as `start` does and waits for its window."""
    def launch(**environment):
        desktop.run("xdotool", "mousemove", *POINTER_AWAY)
        game = start(**environment)
        game.wait_until_shown()
        return game

    return launch


@pytest.fixture
def game(launch):
    return launch()


@pytest.fixture
def other_window(desktop):
    window = OtherWindow(desktop)
    yield window
    window.close()
