"""The contents and the control fields of the Debian package."""

import gzip
import os
import re
import subprocess

from conftest import BUILD, ROOT

ID = "org.fernwick.fernwick"
FILES = {
    "usr/games/fernwick": 0o755,
    f"usr/share/applications/{ID}.desktop": 0o644,
    "usr/share/doc/fernwick/changelog.gz": 0o644,
    "usr/share/doc/fernwick/copyright": 0o644,
    f"usr/share/icons/hicolor/48x48/apps/{ID}.png": 0o644,
    f"usr/share/icons/hicolor/128x128/apps/{ID}.png": 0o644,
    f"usr/share/icons/hicolor/256x256/apps/{ID}.png": 0o644,
    f"usr/share/icons/hicolor/scalable/apps/{ID}.svg": 0o644,
    "usr/share/man/man6/fernwick.6.gz": 0o644,
    f"usr/share/metainfo/{ID}.metainfo.xml": 0o644,
}


def test_contains_exactly_the_expected_files(unpacked):
    files = {str(path.relative_to(unpacked)): path.stat().st_mode & 0o777
             for path in unpacked.rglob("*") if not path.is_dir()}
    assert files == FILES


def test_lintian_reports_no_error_and_no_warning(package):
    as_root = ["--allow-root"] if os.getuid() == 0 else []
    done = subprocess.run(["lintian", *as_root, "--fail-on", "error,warning", package], text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    assert (done.returncode, done.stdout) == (0, "")


def test_has_the_right_name_section_and_description(control):
    assert control["Package"] == "fernwick"
    assert control["Section"] == "games"
    assert control["Description"] == "calm snake game in a night garden"


def test_depends_on_libraries_but_not_on_development_or_font_packages(control):
    dependencies = {entry.split()[0] for entry in control["Depends"].split(",")}
    assert {"libc6", "libqt6widgets6", "libqt6svg6", "libpulse0"} <= dependencies
    assert any(re.fullmatch(r"libicu\d+", name) for name in dependencies)
    assert not any(name.endswith("-dev") or name.startswith("fonts-") for name in dependencies)
    assert "qt6-wayland" in control["Recommends"]


def test_every_file_names_the_same_version(control, unpacked):
    version = control["Version"]
    changelog = gzip.open(unpacked / "usr/share/doc/fernwick/changelog.gz", "rt").readline()
    manual = gzip.open(unpacked / "usr/share/man/man6/fernwick.6.gz", "rt").readline()
    catalogue = (unpacked / f"usr/share/metainfo/{ID}.metainfo.xml").read_text()
    assert changelog.startswith(f"fernwick ({version}) ")
    assert f"Fernwick {version}" in manual
    assert re.search(r'<release version="([^"]+)"', catalogue)[1] == version


def test_the_copyright_file_names_the_embedded_fonts(unpacked):
    copyright_file = (unpacked / "usr/share/doc/fernwick/copyright").read_text()
    program = (unpacked / "usr/games/fernwick").read_bytes()
    for family in ("Inter", "Elstob", "JetBrainsMono"):
        assert family in copyright_file
        # The embedded fonts are not compressed, so that the program contains their names.
        assert family.encode() in program or family.encode("utf-16-be") in program


def test_is_reproducible(package, tmp_path):
    changelog = ROOT / "Packaging/Debian/changelog"
    timestamp = subprocess.check_output(
        ["dpkg-parsechangelog", "-l", changelog, "-S", "Timestamp"], text=True).strip()
    subprocess.run(["cpack", "-G", "DEB", "-B", tmp_path], cwd=BUILD, check=True,
                   env=os.environ | {"SOURCE_DATE_EPOCH": timestamp},
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    assert (tmp_path / package.name).read_bytes() == package.read_bytes()
