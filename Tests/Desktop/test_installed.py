"""The installed program."""

import pathlib
import subprocess

import pytest
from game import PAUSED, PROGRAM, Game


@pytest.fixture
def installed(tmp_path):
    """The program, installed under a temporary prefix."""
    prefix = tmp_path / "prefix"
    subprocess.run(["cmake", "--install", pathlib.Path(PROGRAM).parent, "--prefix", prefix],
                   check=True, stdout=subprocess.DEVNULL)
    return prefix / "bin/fernwick"


def test_runs_from_any_prefix(desktop, home, tmp_path, installed):
    game = Game(desktop, tmp_path, desktop.environment | home.environment
                | {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}, command=[installed])
    try:
        game.wait_until_shown()
        game.start_run()
        game.press("space")
        game.wait_for(PAUSED)
        game.quit()
        assert game.printed() == ""
    finally:
        game.kill()
