"""What the machine does to a running game: stalls, and displays that vanish."""

import signal
import time

import pytest
from accessible_desktop import accessible_desktop
from game import FRESH, PAUSED, Game
from waiting import PATIENCE, eventually

ACCESSIBLE = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
STALL_SECONDS = 4
FIRST_COLUMN = 14


@pytest.fixture
def short_lived_desktop():
    """A desktop that a test may take away from under the game."""
    with accessible_desktop() as desktop:
        yield desktop


def lose(game, take_away):
    """Takes its display away from a game and waits for its end."""
    try:
        take_away()
        game.process.wait(PATIENCE)
    finally:
        game.kill()


def has_moved(board, picture):
    snake = board.snake(picture)
    return snake is not None and snake.head[0] > FIRST_COLUMN


def test_a_stalled_program_goes_on_where_it_was(game):
    """Were the ticks that it missed made up for, the snake would be in the wall."""
    game.click(game.find("Gentle"))
    board = game.board()
    game.start_run()
    eventually(lambda: has_moved(board, game.desktop.screen.picture()), "the snake has moved")
    game.process.send_signal(signal.SIGSTOP)
    time.sleep(STALL_SECONDS)
    game.process.send_signal(signal.SIGCONT)
    game.press("space")
    game.wait_for(PAUSED)
    assert not game.shows("Game over.")


def test_a_vanished_display_loses_nothing_that_was_stored(short_lived_desktop, home, tmp_path):
    game = Game(short_lived_desktop, tmp_path,
                short_lived_desktop.environment | home.environment | ACCESSIBLE)
    try:
        game.wait_until_shown()
        game.save_a_run("Pip")
        game.press("space")
        eventually(lambda: "best-Classic" in home.preferences(), "the best is on disk")
    finally:
        lose(game, short_lived_desktop.end_display)
    assert home.preferences()["best-Classic"] >= 10
    assert home.preferences()["player-name"] == "Pip"
    assert [entry["name"] for entry in home.high_scores()] == ["Pip"]


def test_the_start_after_a_vanished_display_knows_everything(
        short_lived_desktop, launch, home, tmp_path):
    lost = Game(short_lived_desktop, tmp_path,
                short_lived_desktop.environment | home.environment | ACCESSIBLE)
    try:
        lost.wait_until_shown()
        lost.save_a_run("Pip")
    finally:
        lose(lost, short_lived_desktop.end_display)
    (tmp_path / "printed").unlink()
    game = launch()
    game.press("ctrl+l")
    game.wait_for("The high scores.", "01 Pip 0")


def test_a_vanished_compositor_loses_nothing_that_was_stored(desktop, home, tmp_path):
    socket = "fernwick-vanishing"
    compositor = desktop.spawn("weston", "--backend=headless-backend.so", "--no-config",
                               "--idle-time=0", "--width=1600", "--height=1000",
                               f"--socket={socket}")
    eventually((desktop.run_folder() / socket).exists, "the compositor is up")
    game = Game(desktop, tmp_path, desktop.environment | home.environment | ACCESSIBLE
                | {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": socket})

    def end_compositor():
        compositor.kill()
        compositor.wait()

    try:
        game.wait_for(FRESH)
        game.find("Toggle sound effects").use()
        eventually(lambda: "sound" in home.preferences(), "the switch is on disk")
    finally:
        lose(game, end_compositor)
    assert home.preferences() == {"sound": False}
