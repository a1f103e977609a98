"""The contents and the control fields of the Debian package."""

import datetime
import gzip
import os
import re
import subprocess

from conftest import ROOT

ID = "org.fernwick.fernwick"
LANGUAGES = "ar", "de", "es", "fr", "hi", "it", "ja", "ko", "pl", "pt_BR", "tr", "uk", "zh_CN"
ICON_SIZES = 16, 22, 24, 32, 48, 64, 128, 256, 512
ICONS = "usr/share/icons/hicolor"
FILES = {
    "usr/games/fernwick": 0o755,
    f"usr/share/applications/{ID}.desktop": 0o644,
    f"usr/share/dbus-1/services/{ID}.service": 0o644,
    "usr/share/doc/fernwick/changelog.gz": 0o644,
    "usr/share/doc/fernwick/copyright": 0o644,
    f"{ICONS}/scalable/apps/{ID}.svg": 0o644,
    f"{ICONS}/symbolic/apps/{ID}-symbolic.svg": 0o644,
    "usr/share/man/man6/fernwick.6.gz": 0o644,
    f"usr/share/metainfo/{ID}.metainfo.xml": 0o644,
}
FILES |= {f"{ICONS}/{size}x{size}/apps/{ID}.png": 0o644 for size in ICON_SIZES}
FILES |= {f"usr/share/man/{language}/man6/fernwick.6.gz": 0o644 for language in LANGUAGES}


def test_contains_exactly_the_expected_files(unpacked):
    files = {str(path.relative_to(unpacked)): path.stat().st_mode & 0o777
             for path in unpacked.rglob("*") if not path.is_dir()}
    assert files == FILES


def test_lintian_reports_no_error_and_no_warning(package):
    as_root = ["--allow-root"] if os.getuid() == 0 else []
    changes, = package.parent.glob("*.changes")
    done = subprocess.run(["lintian", *as_root, "--fail-on", "error,warning", changes], text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    assert (done.returncode, done.stdout) == (0, "")


def test_has_the_right_name_section_and_description(control):
    assert control["Package"] == "fernwick"
    assert control["Section"] == "games"
    assert control["Description"] == "calm snake game in a night garden"


def test_depends_on_libraries_but_not_on_development_or_font_packages(control):
    dependencies = {entry.split()[0] for entry in control["Depends"].split(",")}
    assert {"libc6", "libqt6widgets6", "libqt6svg6", "libpulse0", "libuuid1"} <= dependencies
    assert any(re.fullmatch(r"libicu\d+", name) for name in dependencies)
    assert not any(name.endswith("-dev") or name.startswith("fonts-") for name in dependencies)
    assert "qt6-wayland" in control["Recommends"]


def test_is_compressed_with_xz(package):
    members = subprocess.check_output(["ar", "t", package], text=True).split()
    assert members == ["debian-binary", "control.tar.xz", "data.tar.xz"]


def test_the_session_bus_finds_the_program(unpacked):
    service = (unpacked / f"usr/share/dbus-1/services/{ID}.service").read_text()
    assert f"Name={ID}\n" in service
    assert 'Exec="/usr/games/fernwick"\n' in service


def test_every_file_names_the_same_version(control, unpacked):
    version = control["Version"]
    changelog = gzip.open(unpacked / "usr/share/doc/fernwick/changelog.gz", "rt").readline()
    manual = gzip.open(unpacked / "usr/share/man/man6/fernwick.6.gz", "rt").readline()
    catalogue = (unpacked / f"usr/share/metainfo/{ID}.metainfo.xml").read_text()
    assert changelog.startswith(f"fernwick ({version}) ")
    assert f"Fernwick {version}" in manual
    release = re.search(r'<release version="([^"]+)" date="([^"]+)"', catalogue)
    assert release[1] == version
    changed = subprocess.check_output(
        ["dpkg-parsechangelog", "-l", ROOT / "debian/changelog", "-S", "Timestamp"], text=True)
    date = datetime.datetime.fromtimestamp(int(changed), datetime.timezone.utc).date()
    assert release[2] == date.isoformat()


def test_the_copyright_file_names_the_embedded_fonts(unpacked):
    copyright_file = (unpacked / "usr/share/doc/fernwick/copyright").read_text()
    program = (unpacked / "usr/games/fernwick").read_bytes()
    for family in ("Inter", "Elstob", "JetBrainsMono"):
        assert family in copyright_file
        # The embedded fonts are not compressed, so that the program contains their names.
        assert family.encode() in program or family.encode("utf-16-be") in program


def test_is_reproducible_in_another_folder_time_zone_and_locale(package, tmp_path):
    folder = tmp_path / "another and längere folder"
    subprocess.run([ROOT / "scripts/package", folder], check=True, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL,
                   env=os.environ | {"TZ": "Asia/Kathmandu", "LC_ALL": "C"}, umask=0o077)
    assert (folder / package.name).read_bytes() == package.read_bytes()


def test_placeholders_of_the_owner_are_only_in_the_control_file_and_the_changelog():
    named = subprocess.check_output(
        ["grep", "-rIlF", "--exclude-dir=.git", "--exclude-dir=build", "fernwick" + ".example", ROOT],
        text=True).split()
    assert {os.path.relpath(path, ROOT) for path in named} == {"debian/changelog", "debian/control"}
    assert "For the owner of Fernwick to set" in (ROOT / "debian/control").read_text()


def test_the_changelog_has_the_address_of_the_maintainer(control):
    maintainer = subprocess.check_output(
        ["dpkg-parsechangelog", "-l", ROOT / "debian/changelog", "-S", "Maintainer"], text=True)
    assert maintainer.strip() == control["Maintainer"]


def test_the_appstream_page_names_the_licence_and_the_home_page_of_the_package(control, unpacked):
    page = (unpacked / f"usr/share/metainfo/{ID}.metainfo.xml").read_text()
    copyright_file = (unpacked / "usr/share/doc/fernwick/copyright").read_text()
    licence = re.search(r"^License: (.+)$", copyright_file, re.MULTILINE)[1]
    assert f"<project_license>{licence}</project_license>" in page
    assert f'<url type="homepage">{control["Homepage"]}</url>' in page
