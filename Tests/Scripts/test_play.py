"""./play, with stand-ins for the build and for Debian's package tools."""

import os
import pathlib
import shutil
import subprocess

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]


@pytest.fixture
def play(tmp_path):
    """Runs a copy of ./play on a machine without a display where packages cannot be installed."""
    project = tmp_path / "project"
    shutil.copytree(ROOT / "scripts", project / "scripts")
    shutil.copy(ROOT / "play", project)
    tools = tmp_path / "tools"

    def write_program(path, text):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(f"#!/bin/sh\n{text}\n")
        path.chmod(0o755)

    write_program(project / "build/release/fernwick", 'echo "The game runs on $DISPLAY."')
    write_program(tools / "cmake", "exit 0")
    for installer in "apt-get", "sudo":
        write_program(tools / installer, "exit 1")

    def play(missing):
        write_program(tools / "dpkg-query",
                      f'for package; do :; done; [ "$package" = {missing} ] || echo installed')
        environment = {name: value for name, value in os.environ.items()
                       if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
        environment["PATH"] = f"{tools}:{environment['PATH']}"
        return subprocess.run([project / "play"], env=environment, text=True, timeout=60,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)

    return play


def test_starts_the_game_without_the_program_that_shows_it(play):
    done = play(missing="x11vnc")
    assert "The game runs on :" in done.stdout
    assert done.returncode == 0


@pytest.mark.parametrize("missing", ["g++", "xvfb"])
def test_refuses_to_start_without_a_package_that_the_game_needs(play, missing):
    done = play(missing=missing)
    assert f"  {missing} " in done.stdout
    assert "The game runs" not in done.stdout
    assert done.returncode == 1
