"""Screens that change while the game runs, on sway: nothing pauses by itself, nothing is lost, and
the board is drawn whole."""

from game import FRESH, MOVING, OVER, PAUSED
from sway import FIRST
from trial import settles
from waiting import eventually

SHEET = "The high scores."
TYPED = "Pi"


# States in which the screen changes: a function that enters it, and the texts shown in it.

def play(trial):
    trial.begin_run()


def paused(trial):
    trial.begin_run()
    trial.pause()


def card(trial):
    trial.begin_run()
    trial.game.press("Up")
    trial.game.wait_for("Game over.")
    trial.game.type(TYPED)
    eventually(lambda: trial.game.find("Player name").text == TYPED, "the name is typed")


def sheet(trial):
    trial.game.press("ctrl+l")
    trial.game.wait_for(SHEET)


STATES = {"in play": (play, (MOVING,)), "paused": (paused, (PAUSED, "No rush.")),
          "with the card": (card, (OVER, "Game over.")), "under the sheet": (sheet, (FRESH, SHEET))}


# Changes: each is made and then undone by commands of sway.

def set_first(*words):
    return lambda trial: trial.desktop.command("output", FIRST, *words)


def move_to(trial, output):
    # With its workspace, the window keeps the focus.
    trial.desktop.command("move", "workspace", "to", "output", output)
    trial.desktop.bring_forward(output)


def move_to_first(trial):
    move_to(trial, FIRST)


def move_to_second(trial):
    move_to(trial, trial.desktop.second())


def nothing(trial):
    pass


def plug_in(trial):
    """Adds an output with another size and scale, if there is none."""
    if len(trial.desktop.outputs()) == 1:
        trial.desktop.command("create_output")
        second = trial.desktop.second()
        trial.desktop.command("output", second, "mode", "--custom", "1600x1000")
        trial.desktop.command("output", second, "scale", "2")
    trial.desktop.command("focus", "output", FIRST)
    trial.desktop.bring_forward(FIRST)


def unplug(trial):
    trial.desktop.unplug_second()
    # sway hides the workspace behind the one of the other output.
    show_game(trial)


def plug_in_again(trial):
    plug_in(trial)
    show_game(trial)
    move_to_second(trial)


def show_game(trial):
    trial.desktop.command(f"[pid={trial.game.process.pid}]", "focus")


# By name: what is done before the game starts and after that, the change, and its undoing.
CHANGES = {
    "scale 1.5": (nothing, nothing, set_first("scale", "1.5"), set_first("scale", "1")),
    "mode 1366 × 768": (nothing, nothing, set_first("mode", "--custom", "1366x768"),
                        set_first("mode", "--custom", "1920x1080")),
    "to a screen of scale 2": (plug_in, nothing, move_to_second, move_to_first),
    "screen unplugged": (plug_in, move_to_second, unplug, plug_in_again),
}


def change_screen(title, before, after, change, undo):
    """A step that changes the screen and undoes that, in each state."""

    def step(trial):
        problems = []
        for name, (enter, texts) in STATES.items():
            trial.end()
            before(trial)
            trial.launch()
            try:
                after(trial)
                wait_until_drawn(trial)
                enter(trial)
                change(trial)
                expect_unchanged(trial, texts, name)
                undo(trial)
                expect_unchanged(trial, texts, f"{name}, undone")
            except AssertionError as error:
                problems.append(str(error))
                trial.save_screenshot(f"{title}, {name}")
                undo(trial)
        trial.end()
        before(trial)
        assert not problems, "; ".join(problems)

    return step


def expect_unchanged(trial, texts, when):
    try:
        wait_until_drawn(trial)
        assert settles(lambda: trial.game.shows(*texts)), f"{texts} are not shown"
        if SHEET not in texts:
            trial.wait_for_the_whole_board()
        if MOVING in texts:
            trial.wait_for_snake(lambda snake: True, "the snake is drawn in its place")
            trial.game.press("Up")
            trial.wait_for_snake(lambda snake: snake.direction == "up", "the snake turns up")
            trial.game.press("Left")
        if OVER in texts:
            assert trial.game.find("Player name").text == TYPED, "the typed name is lost"
    except AssertionError as error:
        raise AssertionError(f"{when}: {error}") from None


def wait_until_drawn(trial):
    """Waits until the window has the size of its output, in the game and on the screen."""
    def fits():
        output = trial.desktop.output_of(trial.game)
        return output is not None and trial.is_full_screen() and trial.size() == (
            output["rect"]["width"], output["rect"]["height"])

    eventually(fits, "the game fills the screen")


SCREENS = {name: change_screen(name, *change) for name, change in CHANGES.items()}
