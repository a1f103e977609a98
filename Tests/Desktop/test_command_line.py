"""The command line: the options, and arguments that are refused."""

import json
import subprocess
import time

import pytest
from game import PROGRAM
from waiting import TIMEOUT, eventually


@pytest.fixture
def run(desktop, home):
    """Runs the program with arguments until it exits; the keyword arguments are environment
    variables, None unsets one."""
    def run(*arguments, **environment):
        environment = desktop.environment | home.environment | environment
        return subprocess.run(
            [PROGRAM, *arguments], stdin=subprocess.DEVNULL, capture_output=True, text=True,
            timeout=TIMEOUT,
            env={name: value for name, value in environment.items() if value is not None})

    return run


@pytest.mark.parametrize("option", ["--version", "-v"])
def test_prints_the_version_without_a_display(run, option):
    done = run(option, DISPLAY=None)
    assert (done.returncode, done.stdout, done.stderr) == (0, "Fernwick 1.0.0\n", "")


@pytest.mark.parametrize("option", ["--help", "-h"])
def test_prints_help_without_a_display(run, option):
    done = run(option, DISPLAY=None)
    assert (done.returncode, done.stderr) == (0, "")
    assert done.stdout.startswith("Usage: fernwick [OPTION]\n")


def test_fails_when_help_cannot_be_written(desktop):
    with open("/dev/full", "w") as full:
        done = subprocess.run([PROGRAM, "--help"], env=desktop.environment, stdout=full)
    assert done.returncode == 1


def test_exports_no_scores_before_the_first_start_and_without_a_display(run, home):
    done = run("--export-scores", DISPLAY=None)
    assert (done.returncode, done.stdout, done.stderr) == (0, "[]\n", "")
    assert home.preferences() == {}


def test_exports_the_scores_while_the_game_is_running(game, other_window, run, home):
    game.save_a_run("Ada")
    home.saved()
    other_window.take_focus_from(game)
    done = run("--export-scores", DISPLAY=None)
    assert (done.returncode, done.stderr) == (0, "")
    entry, = json.loads(done.stdout)
    assert set(entry) == {"id", "name", "score", "pace", "date"}
    assert (entry["name"], entry["pace"]) == ("Ada", "Classic")
    assert json.loads(done.stdout) == home.high_scores()
    # Give the window time to become active, if it wrongly does.
    time.sleep(0.5)
    assert not game.is_active()


@pytest.mark.parametrize("arguments", [
    ["--windowed"], ["-x"], ["scores.cbor"], ["file:///etc/hosts"], ["-platform", "offscreen"],
    ["--platform=offscreen"], ["-style", "windows"], ["-geometry", "900x800"],
    ["-session", "1_2"],
], ids=" ".join)
def test_refuses_other_arguments_with_one_line_and_status_2(run, arguments):
    done = run(*arguments)
    assert (done.returncode, done.stdout) == (2, "")
    assert done.stderr.count("\n") == 1
    assert done.stderr.startswith(f"{PROGRAM}: ")


@pytest.mark.parametrize("argument, status", [("--version", 0), ("--windowed", 2)])
def test_a_start_with_an_argument_does_not_raise_the_window_of_a_running_game(
        game, other_window, run, argument, status):
    other_window.take_focus_from(game)
    assert run(argument).returncode == status
    # Give the window time to become active, if it wrongly does.
    time.sleep(0.5)
    assert not game.is_active()
    assert run().returncode == 0
    eventually(game.is_active, "the window is active")
