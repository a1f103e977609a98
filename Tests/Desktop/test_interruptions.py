"""A process that is stopped for a while, and a display server that crashes."""

import signal
import time

from game import ACCESSIBLE, FRESH, PAUSED, Game
from waiting import TIMEOUT, eventually

STOPPED_SECONDS = 4
START_COLUMN = 14


def lose_display(game, end_display):
    """Ends the display server and waits for the end of the game."""
    try:
        end_display()
        game.process.wait(TIMEOUT)
    finally:
        game.kill()


def has_moved(board, picture):
    snake = board.snake(picture)
    return snake is not None and snake.head[0] > START_COLUMN


def test_a_stopped_process_continues_where_it_was(game):
    """If it caught up on the missed ticks, the snake would hit the wall."""
    game.click(game.find("Gentle"))
    board = game.board()
    game.start_run()
    eventually(lambda: has_moved(board, game.desktop.screen.picture()), "the snake has moved")
    game.process.send_signal(signal.SIGSTOP)
    time.sleep(STOPPED_SECONDS)
    game.process.send_signal(signal.SIGCONT)
    game.press("space")
    game.wait_for(PAUSED)
    assert not game.shows("Game over.")


def test_a_crash_of_the_x_server_loses_nothing_stored(short_lived_desktop, home, tmp_path):
    game = Game(short_lived_desktop, tmp_path,
                short_lived_desktop.environment | home.environment | ACCESSIBLE)
    try:
        game.wait_until_shown()
        game.save_a_run("Pip")
        game.press("space")
        eventually(lambda: "best-Classic" in home.preferences(), "the best is on disk")
    finally:
        lose_display(game, short_lived_desktop.end_display)
    assert home.preferences()["best-Classic"] >= 10
    assert home.preferences()["player-name"] == "Pip"
    assert [entry["name"] for entry in home.high_scores()] == ["Pip"]


def test_a_crash_of_the_x_server_loses_no_score_on_a_slow_disk(
        short_lived_desktop, home, tmp_path, slow_disk):
    game = Game(short_lived_desktop, tmp_path, short_lived_desktop.environment
                | home.environment | ACCESSIBLE | slow_disk)
    try:
        game.wait_until_shown()
        game.save_a_run("Pip")
    finally:
        lose_display(game, short_lived_desktop.end_display)
    assert home.saved()["player-name"] == "Pip"


def test_the_start_after_a_crash_of_the_x_server_finds_the_score(
        short_lived_desktop, launch, home, tmp_path):
    lost = Game(short_lived_desktop, tmp_path,
                short_lived_desktop.environment | home.environment | ACCESSIBLE)
    try:
        lost.wait_until_shown()
        lost.save_a_run("Pip")
    finally:
        lose_display(lost, short_lived_desktop.end_display)
    (tmp_path / "printed").unlink()
    game = launch()
    game.press("ctrl+l")
    game.wait_for("The high scores.", "01 Pip 0")


def test_a_crash_of_the_compositor_loses_nothing_stored(desktop, home, tmp_path):
    socket = "fernwick-crashing"
    compositor = desktop.spawn("weston", "--backend=headless-backend.so", "--no-config",
                               "--idle-time=0", "--width=1600", "--height=1000",
                               f"--socket={socket}")
    eventually((desktop.run_folder() / socket).exists, "the compositor has started")
    game = Game(desktop, tmp_path, desktop.environment | home.environment | ACCESSIBLE
                | {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": socket})

    def end_compositor():
        compositor.kill()
        compositor.wait()

    try:
        game.wait_for(FRESH)
        game.find("Toggle sound effects").use()
        eventually(lambda: "sound" in home.preferences(), "the sound setting is on disk")
    finally:
        lose_display(game, end_compositor)
    assert home.preferences() == {"sound": False}
