"""What the desktop around the game hangs on, the game does not: it starts, plays and ends."""

import contextlib
import signal
import socket

import pytest
from seen import moves, shows_card
from waiting import eventually


def plays(game):
    """Plays a little with keys alone, and leaves."""
    eventually(lambda: shows_card(game), "the start card is there")
    game.press("space")
    eventually(lambda: moves(game), "the run moves")
    game.press("space")
    eventually(lambda: not moves(game), "the run rests")
    game.press("ctrl+q")
    assert game.exit_status() == 0


@contextlib.contextmanager
def stopped(process):
    """Has a process hang, until the end of the block."""
    process.send_signal(signal.SIGSTOP)
    try:
        yield
    finally:
        process.send_signal(signal.SIGCONT)


@pytest.fixture
def silent_address(home):
    """A socket that everybody can reach and that never says a word."""
    path = f"{home.environment['HOME']}/silent"
    with socket.socket(socket.AF_UNIX) as listener:
        listener.bind(path)
        listener.listen()
        yield f"unix:path={path}"


def test_it_starts_while_whoever_has_the_address_of_the_bus_says_nothing(launch, silent_address):
    plays(launch(DBUS_SESSION_BUS_ADDRESS=silent_address))


def test_it_starts_while_the_session_bus_hangs(desktop, launch):
    with stopped(desktop.bus):
        plays(launch())


def test_it_plays_on_when_the_session_bus_hangs(desktop, game):
    with stopped(desktop.bus):
        plays(game)
