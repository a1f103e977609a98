"""How well texts stand out from their ground, measured on the pixels of the screen."""

import pathlib
import subprocess
import sys
from collections import Counter

import pytest
from game import PAUSED
from waiting import eventually

# What the accessibility guidelines ask of texts: at least, and at best.
LEAST = 4.5
BEST = 7
# Below this there is nothing to be seen yet.
DRAWN = 1.5
# The left end of a row of scores, up to the name.
RANK_WIDTH = 40
# Inside the name field, past its edge and the text cursor.
INSET = 18
PART_OF_PLACEHOLDER = 60

# Below LEAST in the calm look, which is as designed; the desktop's setting lifts them.
QUIETER_BY_DESIGN = {"Your name"}


SHEET = "The high scores.", "Done"
ON_SHEET = {*SHEET, "Top 10 for each speed · saved on this Mac", "Gentle", "Classic", "Swift",
            "01 Pip 0"}


def luminance(colour):
    def linear(component):
        fraction = component / 255
        return fraction / 12.92 if fraction <= 0.04045 else ((fraction + 0.055) / 1.055) ** 2.4

    red, green, blue = map(linear, colour)
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def ratio(one, other):
    brighter, darker = sorted((luminance(one), luminance(other)), reverse=True)
    return (brighter + 0.05) / (darker + 0.05)


def contrast(picture, place):
    """The best contrast to the most common colour there: that of the text to its ground."""
    left, top, width, height = place
    colours = Counter(picture.colour(x, y) for x in range(left, left + width)
                      for y in range(top, top + height))
    ground, _ = colours.most_common(1)[0]
    return max(ratio(colour, ground) for colour in colours)


def is_text(element):
    children = element.children()
    return (element.name != "" and not children and element.can_be_used()
            and not element.name.startswith("Snake board."))


def contrasts(game):
    """The contrast of each text that is to be seen now; under the sheet, of its own alone."""
    picture = game.desktop.screen.picture()
    measured = {}
    showing = list(game.top().everything_showing())
    on_sheet = {element.name for element in showing} & set(SHEET)
    # Those in front come last, and what is behind the sheet is not on it.
    for element in showing:
        if is_text(element) and (not on_sheet or element.name in ON_SHEET):
            left, top, width, height = element.place_on_screen()
            name = element.name
            if name == "Player name":
                # Its blinking cursor is not what is to be read.
                name = "Your name"
                place = left + INSET, top + INSET, PART_OF_PLACEHOLDER, height - 2 * INSET
            else:
                place = left, top, width, height
            measured[name] = contrast(picture, place)
            if name.startswith("01 "):
                measured["rank"] = contrast(picture, (left, top, RANK_WIDTH, height))
    return measured


def is_drawn(screens):
    return screens and min(screens[-1].values()) > DRAWN


def measured_on_every_screen(game):
    """The lowest contrast of each text over the screens of a run."""
    screens, lowest = [], {}

    def measure():
        # Digits roll and glows fade for a moment.
        eventually(lambda: is_drawn(screens) and screens[-1] == contrasts(game)
                   or screens.append(contrasts(game)), "the screen has settled")
        last = screens.pop()
        screens.clear()
        for name, value in last.items():
            lowest[name] = min(value, lowest.get(name, value))

    measure()
    game.start_run()
    game.press("space")
    game.wait_for(PAUSED)
    measure()
    game.press("space", "Up")
    game.wait_for("Game over.")
    measure()
    game.type("Pip")
    game.press("Return")
    game.wait_for("Score saved · Top 10")
    measure()
    game.press("ctrl+l")
    game.wait_for(*SHEET)
    measure()
    return lowest


# Desktops say it in one of two ways.
@pytest.fixture(params=["org.freedesktop.appearance contrast uint32 1",
                        "org.gnome.desktop.a11y.interface high-contrast true"])
def asking_for_high_contrast(request, desktop):
    portal = subprocess.Popen(
        [sys.executable, pathlib.Path(__file__).parent / "portal.py",
         *request.param.split(maxsplit=2)],
        env=desktop.environment, stdout=subprocess.PIPE, text=True)
    assert portal.stdout.readline() == "ready\n"
    yield
    portal.terminate()
    portal.wait()


def test_every_text_but_those_quieter_by_design_stands_out_enough(game):
    lowest = measured_on_every_screen(game)
    assert {name for name, value in lowest.items() if value < LEAST} == QUIETER_BY_DESIGN, lowest


def test_the_desktop_s_setting_makes_every_text_stand_out_best(asking_for_high_contrast, launch):
    lowest = measured_on_every_screen(launch())
    assert {name: value for name, value in lowest.items() if value < BEST} == {}
