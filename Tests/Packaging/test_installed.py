"""The files that `cmake --install` installs in addition to the program."""

import configparser
import os
import re
import subprocess
import xml.etree.ElementTree as ElementTree

import pytest

ID = "org.fernwick.fernwick"
XML_LANG = "{http://www.w3.org/XML/1998/namespace}lang"
PNG_SIZE_AT = 16


@pytest.fixture
def entry(installed):
    parser = configparser.ConfigParser(interpolation=None)
    parser.optionxform = str
    parser.read(installed / f"share/applications/{ID}.desktop")
    return parser["Desktop Entry"]


@pytest.fixture
def metainfo(installed):
    return ElementTree.parse(installed / f"share/metainfo/{ID}.metainfo.xml").getroot()


def test_the_desktop_entry_is_valid(installed):
    done = subprocess.run(
        ["desktop-file-validate", installed / f"share/applications/{ID}.desktop"], text=True,
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    assert (done.returncode, done.stdout) == (0, "")


def test_the_desktop_entry_starts_the_program_that_sets_the_same_application_id(installed, entry):
    program = installed / "bin" / entry["Exec"]
    assert os.access(program, os.X_OK)
    # Desktops match windows with desktop entries by this ID.
    assert ID.encode("utf-16-le") in program.read_bytes()


@pytest.mark.parametrize("size", [48, 128, 256])
def test_the_icon_is_installed_as_svg_and_in_every_png_size(installed, entry, size):
    picture = installed / f"share/icons/hicolor/{size}x{size}/apps/{entry['Icon']}.png"
    sides = picture.read_bytes()[PNG_SIZE_AT:PNG_SIZE_AT + 8]
    assert sides == size.to_bytes(4, "big") * 2
    assert (installed / f"share/icons/hicolor/scalable/apps/{entry['Icon']}.svg").is_file()


def test_the_metainfo_file_passes_pedantic_validation(installed):
    done = subprocess.run(
        ["appstreamcli", "validate", "--no-net", "--pedantic", "--no-color",
         installed / f"share/metainfo/{ID}.metainfo.xml"], text=True,
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    assert done.returncode == 0
    assert done.stdout.split() == ["✔", "Validation", "was", "successful."]


def test_the_metainfo_file_has_everything_that_software_centres_show(metainfo, entry):
    assert metainfo.findtext("id") == ID
    assert metainfo.findtext("launchable") == f"{ID}.desktop"
    assert metainfo.findtext("provides/binary") == entry["Exec"]
    assert metainfo.find("content_rating").get("type") == "oars-1.1"
    schemes = {colour.get("scheme_preference") for colour in metainfo.findall("branding/color")}
    assert schemes == {"light", "dark"}
    shots = metainfo.findall("screenshots/screenshot")
    assert len(shots) >= 3
    assert all(shot.findtext("caption") and shot.findtext("image").startswith("https://")
               for shot in shots)
    assert metainfo.find("releases/release/description/p") is not None


def test_every_summary_has_10_to_35_characters(metainfo):
    summaries = {each.get(XML_LANG): each.text for each in metainfo.findall("summary")}
    assert None in summaries
    assert {language: text for language, text in summaries.items()
            if not 10 <= len(text) <= 35} == {}


def test_the_manual_page_renders_without_warnings(installed):
    done = subprocess.run(
        ["man", "--warnings", "--local-file", installed / "share/man/man6/fernwick.6"], text=True,
        env=os.environ | {"LC_ALL": "C.UTF-8", "MANWIDTH": "80", "MANROFFSEQ": ""},
        stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    assert (done.returncode, done.stderr) == (0, "")
    assert "fernwick - grow a snake in a night garden" in re.sub(r"\s+", " ", done.stdout)
