"""The script: what a player does, in this order. Each step begins and ends in full screen, with no
run in progress."""

import subprocess

from game import MOVING, PAUSED, PROGRAM
from screen import Screen
from trial import settles
from waiting import TIMEOUT, eventually

DEFAULT_SIZE = 940, 860
ALREADY_RUNNING = "already running"


def start(trial):
    trial.launch()
    trial.game.wait_for("Find your flow.")


def full_screen(trial):
    game = trial.game
    eventually(lambda: trial.size() == (Screen.WIDTH, Screen.HEIGHT),
               "the game has the size of the screen")
    assert not game.shows("Close"), "the window's buttons are shown"
    trial.wait_for_the_whole_board()
    assert settles(trial.is_full_screen), "full screen is left again"


def turn(trial):
    trial.begin_run()
    trial.wait_for_snake(lambda snake: snake.direction == "right", "the snake heads right")
    trial.game.press("Up")
    trial.wait_for_snake(lambda snake: snake.direction == "up", "the snake heads up")
    trial.game.press("Left")
    trial.wait_for_snake(lambda snake: snake.direction == "left", "the snake heads left")
    trial.pause()


def pause(trial):
    trial.begin_run()
    trial.pause()
    trial.game.press("space")
    trial.game.wait_for(MOVING)
    trial.pause()


def leave_full_screen(trial):
    trial.begin_run()
    to_window(trial)
    trial.game.wait_for(MOVING)
    trial.pause()
    trial.game.wait_for("Minimise", "Maximise", "Close", "File", "Game")
    trial.wait_for_the_whole_board()
    to_full_screen(trial)
    trial.wait_for_the_whole_board()


def maximise(trial):
    to_window(trial)
    trial.click("Maximise")
    wait_until_maximised(trial)
    to_full_screen(trial)
    trial.game.press("F11")
    wait_until_maximised(trial)
    trial.wait_for_the_whole_board()
    trial.click("Maximise")
    wait_for_window(trial)
    to_full_screen(trial)


def menu_by_f10(trial):
    menu_by_key(trial, "F10")


def menu_by_alt(trial):
    menu_by_key(trial, "alt")


def menu_by_pointer(trial):
    game = trial.game
    trial.desktop.point_at(Screen.WIDTH // 2, 0)
    eventually(lambda: game.shows("File", "Game"), "the menu bar is shown")
    trial.click("File")
    expect_open_menu(trial)
    game.press("Escape")
    trial.point_away()
    eventually(lambda: not game.shows("File"), "the menu bar is hidden again")


def focus_away(trial):
    problems = []
    for name, (take, give_back) in trial.desktop.ways_to_take_the_focus().items():
        trial.begin_run()
        take()
        try:
            trial.game.wait_for(PAUSED, "No rush.")
        except AssertionError:
            problems.append(f"{name} does not pause")
        give_back()
        eventually(lambda: trial.desktop.is_active(trial.game), f"the game is active after {name}")
        if problems:
            trial.end()
        else:
            assert trial.game.shows(PAUSED), f"the run has resumed by itself after {name}"
    assert not problems, "; ".join(problems)


def second_start(trial):
    """The window comes forward or asks for attention. On Wayland, where that is known beforehand,
    the terminal says that the game is running."""
    trial.begin_run()
    trial.pause()
    trial.desktop.open_other_window()
    try:
        eventually(lambda: not trial.desktop.is_active(trial.game), "the other window is active")
        second = subprocess.run([PROGRAM], env=trial.environment(), stdin=subprocess.DEVNULL,
                                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                                timeout=TIMEOUT)
        assert second.returncode == 0, f"status {second.returncode}: {second.stdout}"
        lines = second.stdout.splitlines()
        is_told = len(lines) == 1 and ALREADY_RUNNING in lines[0]
        assert is_told or not lines, f"the second start printed {lines}"
        eventually(lambda: trial.desktop.is_active(trial.game) or (
            is_told == trial.desktop.IS_WAYLAND
            and trial.desktop.wants_attention(trial.game) is not False),
            "the window comes forward, or asks for attention")
    finally:
        trial.desktop.close_other_window()
    eventually(lambda: trial.desktop.is_active(trial.game), "the game is active")
    assert trial.game.shows(PAUSED), "the second start changed the run"


def quit_game(trial):
    game = trial.game
    trial.point_away()
    game.press("ctrl+q")
    assert game.exit_status() == 0
    assert game.printed() == ""
    trial.forget()


SCRIPT = {
    "start": start, "full screen": full_screen, "turn": turn, "pause": pause,
    "leave full screen": leave_full_screen, "maximise": maximise, "menu by F10": menu_by_f10,
    "menu by Alt": menu_by_alt, "menu by pointer": menu_by_pointer, "focus away": focus_away,
    "second start": second_start, "quit": quit_game,
}


def to_window(trial):
    trial.game.press("F11")
    wait_for_window(trial)


def wait_for_window(trial):
    """Waits until the window has its default size and lies in the work area; a tile fills that."""
    area = trial.desktop.work_area()
    if trial.desktop.TILES:
        wait_until_maximised(trial)
    else:
        trial.wait_for_bounds(lambda bounds: bounds[2:] == DEFAULT_SIZE and lies_in(bounds, area),
                              f"the window is {DEFAULT_SIZE} and lies in {area}")


def wait_until_maximised(trial):
    area = trial.desktop.work_area()
    trial.wait_for_bounds(lambda bounds: bounds == area, f"the window fills {area}")
    assert settles(lambda: trial.desktop.bounds(trial.game) == area), "the window changes again"


def to_full_screen(trial):
    trial.point_away()
    trial.game.press("F11")
    trial.wait_for_full_screen()


def lies_in(bounds, area):
    left, top, width, height = bounds
    area_left, area_top, area_width, area_height = area
    return (left >= area_left and top >= area_top and left + width <= area_left + area_width
            and top + height <= area_top + area_height)


def menu_by_key(trial, key):
    assert not trial.game.shows("File"), "the menu bar is shown already"
    trial.game.press(key)
    expect_open_menu(trial)
    trial.game.press("Escape")
    eventually(lambda: not trial.game.shows("File"), "the menu bar is hidden again")
    trial.begin_run()
    trial.pause()


def expect_open_menu(trial):
    def is_open():
        return trial.game.shows("New Game", "Quit", "File", "Game")

    eventually(is_open, "the menu bar and the first menu are shown")
    assert settles(is_open), "the menu bar or the menu disappears again"
    assert trial.is_full_screen(), "the menu ends full screen"
