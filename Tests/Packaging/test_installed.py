"""What stands beside the program under an installation's prefix."""

import configparser
import os
import re
import subprocess
import xml.etree.ElementTree as ElementTree

import pytest

ID = "org.fernwick.fernwick"
WITHOUT_LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"
PNG_SIZE_AT = 16


@pytest.fixture
def entry(installed):
    parser = configparser.ConfigParser(interpolation=None)
    parser.optionxform = str
    parser.read(installed / f"share/applications/{ID}.desktop")
    return parser["Desktop Entry"]


@pytest.fixture
def page(installed):
    return ElementTree.parse(installed / f"share/metainfo/{ID}.metainfo.xml").getroot()


def test_the_desktop_entry_is_valid(installed):
    done = subprocess.run(
        ["desktop-file-validate", installed / f"share/applications/{ID}.desktop"], text=True,
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    assert (done.returncode, done.stdout) == (0, "")


def test_the_entry_starts_the_installed_program_under_the_window_s_name(installed, entry):
    program = installed / "bin" / entry["Exec"]
    assert os.access(program, os.X_OK)
    # Desktops match a window with its entry by this name.
    assert ID.encode("utf-16-le") in program.read_bytes()


@pytest.mark.parametrize("size", [48, 128, 256])
def test_the_entry_s_icon_is_there_in_every_size(installed, entry, size):
    picture = installed / f"share/icons/hicolor/{size}x{size}/apps/{entry['Icon']}.png"
    sides = picture.read_bytes()[PNG_SIZE_AT:PNG_SIZE_AT + 8]
    assert sides == size.to_bytes(4, "big") * 2
    assert (installed / f"share/icons/hicolor/scalable/apps/{entry['Icon']}.svg").is_file()


def test_the_catalogue_page_is_valid_down_to_pedantry(installed):
    done = subprocess.run(
        ["appstreamcli", "validate", "--no-net", "--pedantic", "--no-color",
         installed / f"share/metainfo/{ID}.metainfo.xml"], text=True,
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    assert done.returncode == 0
    assert done.stdout.split() == ["✔", "Validation", "was", "successful."]


def test_the_catalogue_page_is_complete(page, entry):
    assert page.findtext("id") == ID
    assert page.findtext("launchable") == f"{ID}.desktop"
    assert page.findtext("provides/binary") == entry["Exec"]
    assert page.find("content_rating").get("type") == "oars-1.1"
    schemes = {colour.get("scheme_preference") for colour in page.findall("branding/color")}
    assert schemes == {"light", "dark"}
    shots = page.findall("screenshots/screenshot")
    assert len(shots) >= 3
    assert all(shot.findtext("caption") and shot.findtext("image").startswith("https://")
               for shot in shots)
    assert page.find("releases/release/description/p") is not None


def test_every_summary_has_10_to_35_characters(page):
    summaries = {each.get(WITHOUT_LANGUAGE): each.text for each in page.findall("summary")}
    assert None in summaries
    assert {language: text for language, text in summaries.items()
            if not 10 <= len(text) <= 35} == {}


def test_the_manual_page_renders_without_warning(installed):
    done = subprocess.run(
        ["man", "--warnings", "--local-file", installed / "share/man/man6/fernwick.6"], text=True,
        env=os.environ | {"LC_ALL": "C.UTF-8", "MANWIDTH": "80", "MANROFFSEQ": ""},
        stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    assert (done.returncode, done.stderr) == (0, "")
    assert "fernwick - grow a snake in a night garden" in re.sub(r"\s+", " ", done.stdout)
