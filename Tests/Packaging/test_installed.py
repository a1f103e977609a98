"""The files that `cmake --install` installs in addition to the program."""

import collections
import configparser
import os
import re
import subprocess
import xml.etree.ElementTree as ElementTree

import pytest
from conftest import ROOT

ID = "org.fernwick.fernwick"
XML_LANG = "{http://www.w3.org/XML/1998/namespace}lang"
PNG_SIZE_AT = 16
LANGUAGES = sorted(path.stem.removeprefix("fernwick_") for path in
                   (ROOT / "Sources/Fernwick/Resources/Translations").glob("fernwick_*.ts"))


@pytest.fixture
def groups(installed):
    """The groups of the desktop entry."""
    parser = configparser.ConfigParser(interpolation=None)
    parser.optionxform = str
    parser.read(installed / f"share/applications/{ID}.desktop")
    return parser


@pytest.fixture
def entry(groups):
    return groups["Desktop Entry"]


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


def test_the_desktop_entry_has_a_translated_action_that_the_program_knows(
        installed, groups, entry):
    assert entry["DBusActivatable"] == "true"
    action = entry["Actions"].removesuffix(";")
    assert set(groups[f"Desktop Action {action}"]) == {
        "Name", "Exec", *(f"Name[{language}]" for language in LANGUAGES)}
    assert action.encode("utf-16-le") in (installed / "bin/fernwick").read_bytes()


def test_the_session_bus_starts_the_installed_program(installed):
    service = configparser.ConfigParser(interpolation=None)
    service.optionxform = str
    service.read(installed / f"share/dbus-1/services/{ID}.service")
    assert dict(service["D-BUS Service"]) == {"Name": ID, "Exec": f'"{installed}/bin/fernwick"'}


@pytest.mark.parametrize("size", [16, 22, 24, 32, 48, 64, 128, 256, 512])
def test_the_icon_is_installed_as_svg_and_in_every_png_size(installed, entry, size):
    picture = installed / f"share/icons/hicolor/{size}x{size}/apps/{entry['Icon']}.png"
    sides = picture.read_bytes()[PNG_SIZE_AT:PNG_SIZE_AT + 8]
    assert sides == size.to_bytes(4, "big") * 2
    assert (installed / f"share/icons/hicolor/scalable/apps/{entry['Icon']}.svg").is_file()


def test_the_symbolic_icon_has_no_strokes_which_desktops_do_not_recolour(installed):
    icon = (installed / f"share/icons/hicolor/symbolic/apps/{ID}-symbolic.svg").read_text()
    assert "fill=" in icon
    assert "stroke=" not in icon


def test_the_metainfo_file_passes_pedantic_validation(installed):
    done = subprocess.run(
        ["appstreamcli", "validate", "--no-net", "--pedantic", "--no-color",
         installed / f"share/metainfo/{ID}.metainfo.xml"], text=True,
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    assert done.returncode == 0
    # AppStream knows the tag <developer> since 1.0 and has a note on the other one since then.
    assert re.findall("^[A-Z]: .*: (.*)", done.stdout, re.MULTILINE) in (
        ["unknown-tag developer"], ["developer-name-tag-deprecated"])
    assert "Validation was successful" in done.stdout


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


@pytest.mark.parametrize("path, count", [
    ("summary", 1), ("description/p", 1), ("description/ul/li", 6),
    ("screenshots/screenshot/caption", 3)])
def test_the_texts_of_the_metainfo_file_are_in_every_language(metainfo, path, count):
    texts = collections.defaultdict(list)
    for element in metainfo.findall(path):
        texts[element.get(XML_LANG)].append(element.text)
    assert {language: len(found) for language, found in texts.items()} == dict.fromkeys(
        [None, *LANGUAGES], count)
    # A text that equals the English one was not translated.
    assert not any(set(texts[language]) & set(texts[None]) for language in LANGUAGES)


def manual(installed, language):
    return installed / "share/man" / language / "man6/fernwick.6"


def rendered(page):
    """The text of a manual page, on a line of its own for each paragraph; fails on a warning."""
    done = subprocess.run(
        ["man", "--warnings", "--local-file", page], text=True,
        env=os.environ | {"LC_ALL": "C.UTF-8", "MANWIDTH": "80", "MANROFFSEQ": ""},
        stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    assert (done.returncode, done.stderr) == (0, "")
    return re.sub(r"\s+", " ", done.stdout)


def outline(page):
    """What the page has in every language: its macros, and the options, variables and files."""
    lines = page.read_text().splitlines()
    macros = [line for line in lines if re.match(r"\.(SH|TP|PP|RS|RE|nf|fi|B|BR|I) ?", line)]
    return [re.sub(r"(\.SH) .*", r"\1", line) for line in macros]


def test_the_manual_page_renders_without_warnings(installed):
    assert "fernwick - grow a snake in a night garden" in rendered(manual(installed, ""))


def test_the_manual_page_has_the_expected_sections(installed):
    text = manual(installed, "").read_text()
    assert re.findall(r'^\.SH "?([^"\n]+)', text, re.MULTILINE) == [
        "NAME", "SYNOPSIS", "DESCRIPTION", "OPTIONS", "KEYS", "ENVIRONMENT", "FILES",
        "EXIT STATUS", "ACCESSIBILITY", "BUGS"]
    assert all(rf"\-\-{option}" in text for option in ("help", "version", r"export\-scores"))


@pytest.mark.parametrize("language", LANGUAGES)
def test_the_manual_page_in_another_language_is_complete_and_without_warnings(
        installed, language):
    page = manual(installed, language)
    assert outline(page) == outline(manual(installed, ""))
    assert "cp ~/.config/fernwick/preferences.cbor" in rendered(page)
    # man finds a page by this line.
    assert subprocess.check_output(["lexgrog", page], text=True).startswith(f'{page}: "fernwick - ')
    texts, english = (
        {line for line in each.read_text().splitlines() if len(line) > 30 and line[0] != "."
         and not line.startswith(("cp ", "python3 "))} for each in (page, manual(installed, "")))
    # A text that equals the English one was not translated.
    assert not texts & english
