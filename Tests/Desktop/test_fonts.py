"""When the program reads which fonts are installed."""

import pathlib

import pytest
from game import FRESH
from waiting import eventually


def knows_the_installed_fonts(game):
    """Whether it has mapped fontconfig's cache files, which list them."""
    maps = pathlib.Path(f"/proc/{game.process.pid}/maps").read_text()
    return "fontconfig/" in maps


def test_the_first_frame_needs_only_the_embedded_fonts(launch):
    game = launch()
    game.wait_for(FRESH)
    assert not knows_the_installed_fonts(game)
    game.start_run()
    assert not knows_the_installed_fonts(game)
    game.press("Up")
    game.wait_for("Game over.")
    assert knows_the_installed_fonts(game)


def test_the_score_sheet_needs_the_installed_fonts(launch):
    game = launch()
    game.wait_for(FRESH)
    game.press("ctrl+l")
    eventually(lambda: knows_the_installed_fonts(game), "the sheet can show names in any script")


@pytest.mark.parametrize("language", ["ar", "hi", "ja", "ko", "uk", "zh_CN"])
def test_a_language_may_need_the_installed_fonts_at_once(launch, language):
    game = launch(LANGUAGE=language)
    eventually(game.texts, "the screen can be read")
    assert knows_the_installed_fonts(game)
