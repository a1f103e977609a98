"""The language of the user interface."""

import pytest
from game import FRESH
from waiting import eventually

IN_GERMAN = "DER KLASSIKER, NEU GEPFLANZT"
IN_ARABIC = "لعبة كلاسيكية، بغرس جديد"


def launched(launch, **environment):
    """The program, once its texts can be read."""
    game = launch(**environment)
    eventually(game.texts, "the screen can be read")
    return game


@pytest.mark.parametrize("environment", [
    {"LANG": "de_DE.UTF-8"},
    {"LC_ALL": "de_AT.UTF-8", "LANG": "fr_FR.UTF-8"},
    {"LANGUAGE": "de", "LANG": "C.UTF-8"},
    {"LANGUAGE": "nl:de:fr", "LANG": "fr_FR.UTF-8"},
], ids=str)
def test_the_environment_selects_the_language(launch, environment):
    game = launched(launch, **environment)
    game.wait_for(IN_GERMAN, "Finde deinen Rhythmus.", "Lass uns wachsen")
    assert game.find("Klänge ein- oder ausschalten") is not None


@pytest.mark.parametrize("environment", [
    {"LANG": "nl_NL.UTF-8"},
    {"LANGUAGE": "en_GB:de", "LANG": "de_DE.UTF-8"},
], ids=str)
def test_falls_back_to_english(launch, environment):
    game = launched(launch, **environment)
    game.wait_for(FRESH, "Find your flow.")


def test_a_run_in_arabic_can_be_played_and_saved(launch, home):
    game = launched(launch, LANGUAGE="ar")
    game.wait_for(IN_ARABIC)
    left, _, width, _ = game.find("FERNWICK").extents_on_screen()
    assert left + width // 2 > game.geometry()[2] // 2
    game.press("space")
    game.wait_for("على إيقاعك")
    game.press("Up")
    game.wait_for("انتهت اللعبة.")
    game.type("Ada")
    game.press("Return")
    game.wait_for("العب مجددًا")
    assert home.saved()["player-name"] == "Ada"
    assert home.high_scores()[0]["pace"] == "Classic"


def test_prints_nothing_for_a_script_that_the_embedded_fonts_lack(launch):
    game = launched(launch, LANGUAGE="hi")
    game.wait_for("पुराना खेल, नई मिट्टी में")
    game.quit()
    assert game.printed() == ""
