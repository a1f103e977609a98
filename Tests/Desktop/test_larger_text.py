"""The size of the texts where the desktop enlarges them."""

import pathlib
import subprocess
import sys

import pytest
from compositor import Compositor
from game import ACCESSIBLE, FRESH, Game
from screen import Screen
from waiting import eventually

SIZE = Screen.WIDTH, Screen.HEIGHT
FACTOR = 1.25
# 96 times the factor: GNOME sets Xft.dpi to this on X11.
DPI = 120
# The part of the screen with the line below the name of the game.
WIDTH, HEIGHT = 700, 160
# Each component of its colour, where a letter covers a pixel.
BRIGHT = 150


class Portal:
    """Serves GNOME's factor for texts."""

    def __init__(self, desktop, value):
        self._process = subprocess.Popen(
            [sys.executable, pathlib.Path(__file__).parent / "portal.py",
             "org.gnome.desktop.interface", "text-scaling-factor", value],
            env=desktop.environment, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        assert self._process.stdout.readline() == "ready\n"

    def change(self, value):
        print(value, file=self._process.stdin, flush=True)

    def stop(self):
        self._process.terminate()
        self._process.communicate()


@pytest.fixture
def serve(desktop):
    """Starts a portal with this value of the setting."""
    portals = []

    def serve(value):
        portals.append(Portal(desktop, value))
        return portals[-1]

    yield serve
    for portal in portals:
        portal.stop()


@pytest.fixture
def wayland(desktop):
    compositor = Compositor(desktop, SIZE)
    try:
        compositor.start()
        yield compositor.environment
    finally:
        compositor.stop()


@pytest.fixture
def font_resolution(desktop):
    """Sets the X server's resource Xft.dpi."""
    def set_resolution(dpi):
        subprocess.run(["xrdb", "-merge"], env=desktop.environment, input=f"Xft.dpi: {dpi}\n",
                       text=True, check=True)

    yield set_resolution
    desktop.run("xrdb", "-remove")


@pytest.fixture
def launch(desktop, home, tmp_path):
    """Starts the program in place of the one that runs. Checks that it prints nothing."""
    games = []

    def end():
        for game in games:
            game.kill()
            assert game.printed() == ""
        games.clear()

    def launch(environment):
        end()
        games.append(Game(desktop, tmp_path, desktop.environment | home.environment | ACCESSIBLE
                          | environment))
        games[0].wait_for(FRESH, "Find your flow.")
        eventually(lambda: text_width(desktop) > 0, "the window is painted")
        return games[0]

    yield launch
    end()


def text_width(desktop):
    """Of the line below the name of the game, in pixels of the screen; 0 if there is none."""
    picture = desktop.screen.picture()
    columns = [x for x in range(WIDTH)
               if any(min(picture.colour(x, y)) > BRIGHT for y in range(HEIGHT))]
    return columns[-1] - columns[0] + 1 if columns else 0


def wait_for_text_width(desktop, width):
    eventually(lambda: text_width(desktop) == pytest.approx(width, rel=0.03),
               f"the line is {width:.0f} pixels wide")


def test_texts_are_as_large_as_the_desktop_asks_under_wayland(desktop, serve, wayland, launch):
    launch(wayland)
    usual = text_width(desktop)
    serve(f"{FACTOR}")
    launch(wayland)
    wait_for_text_width(desktop, FACTOR * usual)


def test_texts_follow_a_change_under_wayland(desktop, serve, wayland, launch):
    portal = serve("1.0")
    launch(wayland)
    usual = text_width(desktop)
    for factor in FACTOR, 1.0:
        portal.change(factor)
        wait_for_text_width(desktop, factor * usual)


@pytest.mark.parametrize("value", ["nan", "0.0", "1000.0", "'1.25'", "uint32 2"])
def test_texts_keep_their_size_with_a_senseless_factor(desktop, serve, wayland, launch, value):
    portal = serve(f"{FACTOR}")
    launch(wayland)
    larger = text_width(desktop)
    portal.change(value)
    wait_for_text_width(desktop, larger / FACTOR)


def test_a_font_resolution_of_the_player_replaces_the_factor_under_wayland(
        desktop, serve, wayland, launch):
    launch(wayland)
    usual = text_width(desktop)
    portal = serve(f"{FACTOR}")
    game = launch(wayland | {"QT_FONT_DPI": str(DPI)})
    portal.change(FACTOR)
    game.start_run()
    wait_for_text_width(desktop, FACTOR * usual)


# There, the factor is part of the resolution already.
def test_the_font_resolution_alone_decides_under_x11(desktop, serve, font_resolution, launch):
    launch({})
    usual = text_width(desktop)
    portal = serve(f"{FACTOR}")
    font_resolution(DPI)
    game = launch({})
    portal.change(FACTOR)
    # What the portal has told until then is in effect.
    game.start_run()
    wait_for_text_width(desktop, FACTOR * usual)
