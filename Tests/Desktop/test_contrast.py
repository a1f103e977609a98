"""The contrast of all texts, measured on the pixels of the screen."""

import pathlib
import subprocess
import sys
from collections import Counter

import pytest
from game import PAUSED
from waiting import eventually

# WCAG contrast ratios.
LEVEL_AA = 4.5
LEVEL_AAA = 7
# Below this, the text has not been drawn yet.
DRAWN = 1.5
# The part of a score row to the left of the name.
RANK_WIDTH = 40
# Inside the name field, without its frame and cursor.
INSET = 18
PLACEHOLDER_WIDTH = 60
# Inside a menu item, and around the items.
SHORTCUT_WIDTH = 50
MENU_MARGIN = 6

# Below level AA by design; the desktop's high-contrast setting raises it.
LOW_BY_DESIGN = {"Your name"}


SHEET = "The high scores.", "Done"
ON_SHEET = {*SHEET, "Top 10 for each speed · saved on this computer", "Gentle", "Classic", "Swift",
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


def contrast(picture, area):
    """The highest contrast with the most common colour, which is the background."""
    left, top, width, height = area
    colours = Counter(picture.colour(x, y) for x in range(left, left + width)
                      for y in range(top, top + height))
    background, _ = colours.most_common(1)[0]
    return max(ratio(colour, background) for colour in colours)


def is_text(element):
    children = element.children()
    return (element.name != "" and not children and element.can_be_used()
            and element.role != "notification"  # is only spoken
            and not element.name.startswith("Snake board."))


def contrasts(game):
    """The contrast of each visible text; with the sheet open, of the texts on the sheet."""
    picture = game.desktop.screen.picture()
    measured = {}
    showing = list(game.top().everything_showing())
    on_sheet = {element.name for element in showing} & set(SHEET)
    # Elements in front come last and overwrite those behind the sheet.
    for element in showing:
        if is_text(element) and (not on_sheet or element.name in ON_SHEET):
            left, top, width, height = element.extents_on_screen()
            name = element.name
            if name == "Player name":
                # Measure the placeholder without the blinking cursor.
                name = "Your name"
                area = left + INSET, top + INSET, PLACEHOLDER_WIDTH, height - 2 * INSET
            else:
                area = left, top, width, height
            measured[name] = contrast(picture, area)
            if name.startswith("01 "):
                measured["rank"] = contrast(picture, (left, top, RANK_WIDTH, height))
    return measured


def is_drawn(screens):
    return screens and min(screens[-1].values()) > DRAWN


def measured_on_every_screen(game):
    """The lowest contrast of each text on all screens."""
    screens, lowest = [], {}

    def measure():
        # Wait for the end of animations.
        eventually(lambda: is_drawn(screens) and screens[-1] == contrasts(game)
                   or screens.append(contrasts(game)), "the screen is stable")
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


# Desktops use one of two keys.
@pytest.fixture(params=["org.freedesktop.appearance contrast uint32 1",
                        "org.gnome.desktop.a11y.interface high-contrast true"])
def high_contrast_setting(request, desktop):
    portal = subprocess.Popen(
        [sys.executable, pathlib.Path(__file__).parent / "portal.py",
         *request.param.split(maxsplit=2)],
        env=desktop.environment, stdout=subprocess.PIPE, text=True)
    assert portal.stdout.readline() == "ready\n"
    yield
    portal.terminate()
    portal.wait()


def test_texts_reach_level_aa(game):
    lowest = measured_on_every_screen(game)
    assert {name for name, value in lowest.items() if value < LEVEL_AA} == LOW_BY_DESIGN, lowest


def test_texts_reach_level_aaa_with_the_high_contrast_setting(high_contrast_setting, launch):
    lowest = measured_on_every_screen(launch())
    assert {name: value for name, value in lowest.items() if value < LEVEL_AAA} == {}


def wall_contrast(game):
    """The contrast of the board's left edge, which ends a run, with the ground on both sides."""
    board = next(element for element in game.top().everything_showing()
                 if element.name.startswith("Snake board."))
    left, top, _, height = board.extents_on_screen()
    middle = top + height // 2
    picture = game.desktop.screen.picture()
    return contrast(picture, (left - 4, middle, 9, 1))


def test_the_wall_stands_out_with_the_high_contrast_setting(high_contrast_setting, launch):
    game = launch()
    eventually(lambda: wall_contrast(game) >= 3, "the wall is drawn with high contrast")
    game.start_run()
    assert wall_contrast(game) >= 3


def test_the_wall_is_faint_by_default(game):
    assert 1.2 < wall_contrast(game) < 2


def menu_contrasts(game):
    """The contrast of a shortcut with the first menu, and of the menu's left edge with it."""
    item = game.find("New Game")
    eventually(item.is_showing, "the first menu is open")
    left, top, width, height = item.extents_on_screen()
    picture = game.desktop.screen.picture()
    return (contrast(picture, (left + width - SHORTCUT_WIDTH, top, SHORTCUT_WIDTH, height)),
            contrast(picture, (left - MENU_MARGIN, top + height // 2, MENU_MARGIN, 1)))


def test_shortcuts_in_the_menus_reach_level_aa(game):
    game.press("F10")
    eventually(lambda: menu_contrasts(game)[0] >= LEVEL_AA, "the shortcut is legible")
    assert menu_contrasts(game)[1] < 2


def test_menus_stand_out_with_the_high_contrast_setting(high_contrast_setting, launch):
    game = launch()
    game.press("F10")
    eventually(lambda: menu_contrasts(game)[0] >= LEVEL_AAA, "the shortcut is legible")
    assert menu_contrasts(game)[1] >= 3
