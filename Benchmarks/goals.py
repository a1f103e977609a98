"""The performance goals, and how the measured figures compare with them."""

from dataclasses import dataclass

from paces import FLUSH_DELAYS, TICKS

MS = 1e-3
MB = 1e6
SCREENS = {1: "1080p", 2: "4K"}


@dataclass
class Row:
    what: str
    goal: str
    measured: str
    # The measured figure as a share of the goal. More than 1 is a miss.
    used: float

    @property
    def met(self):
        return self.used <= 1


def at_most(what, goal, measured, form):
    return Row(what, "at most " + form(goal), form(measured), measured / goal)


def at_least(what, goal, measured, form):
    return Row(what, "at least " + form(goal), form(measured), goal / measured)


def none(what, measured):
    return Row(what, "0", f"{measured:g}", 0 if measured <= 0 else float("inf"))


def times(value):
    return f"{value:.3g} ×"


def milliseconds(value):
    return f"{value / MS:.3g} ms"


def megabytes(value):
    return f"{value / MB:.3g} MB"


def percent(value):
    return f"{value * 100:.2g} %"


def rows(seconds, program):
    """`seconds`: medians by benchmark name; `program`: the output of Process/measure.py."""
    yield from whole_program(program)
    yield from keys(program)
    yield from slow_disk(program)
    yield from frames(seconds)
    yield from model(seconds)


def whole_program(program):
    for where, key, goal in (("1080p", "start_{}", 1.25), ("1080p, cold", "cold_start_{}", 1),
                             ("4K", "start_{}_4K", 1.4)):
        yield at_most(f"start to first frame, compared with a minimal Qt window, {where}", goal,
                      program[key.format("game")] / program[key.format("hello")], times)
    yield at_most("CPU time until the first frame, beyond a minimal Qt window", 25 * MS,
                  program["start_cpu_game"] - program["start_cpu_hello"], milliseconds)
    yield at_most("memory after 10 s of play, beyond a minimal Qt window", 13 * MB,
                  program["resident_game"] - program["resident_hello"], megabytes)
    for screen, key, goal in (("1080p", "cpu_Swift", 0.007), ("4K", "cpu_Swift_4K", 0.015)):
        yield at_most(f"CPU during play, Swift, 60 cells, {screen}, of one core", goal,
                      program[key], percent)
    for state, words in (("unstarted", "before a run"), ("paused", "while paused"),
                         ("ended", "after a run")):
        yield none(f"wakeups per second {words}, beyond a minimal Qt window",
                   round(program[f"wakeups_{state}"] - program["wakeups_hello"], 1))


def keys(program):
    for pace, tick in TICKS.items():
        yield at_most(f"key press to changed pixels, {pace}, worst of "
                      f"{program[f'presses_{pace}']}", tick + 10 * MS,
                      program[f"key_worst_{pace}"], milliseconds)
    yield none("lost key presses", sum(program[f"lost_{pace}"] for pace in TICKS))


def slow_disk(program):
    for delay in FLUSH_DELAYS:
        yield at_most("longest interval between pictures, Swift, each fsync delayed by "
                      f"{delay} ms, compared with the tick", 1.3,
                      program[f"interval_{delay}"] / TICKS["Swift"], times)


def frames(seconds):
    for cells, goals in ((60, {1: 3, 2: 1.5}), (400, {1: 4, 2: 3})):
        for scale, goal in goals.items():
            frame = seconds[f"frame/scale:{scale}/cells:{cells}"]
            copy = seconds[f"copyingTheFrame/scale:{scale}"]
            yield at_most(f"drawing a frame, compared with copying it, {cells} cells, "
                          f"{SCREENS[scale]}", goal, frame / copy, times)
    for scale, screen in SCREENS.items():
        case = f"scale:{scale}/cells:60"
        yield at_least(f"drawing a frame, compared with the reference painter, 60 cells, {screen}",
                       100, seconds[f"straightforwardFrame/{case}"] / seconds[f"frame/{case}"],
                       lambda value: f"{value:.3g} × faster")
    for scale, goal in ((1, 16), (2, 40)):
        yield at_most(f"blurring the paused board, {SCREENS[scale]}", goal * MS,
                      seconds[f"pauseBlur/scale:{scale}"], milliseconds)


def model(seconds):
    yield at_least("steps per second, 4 cells", 20e6, 1 / seconds["step/4"],
                   lambda value: f"{value / 1e6:.3g} million")
    yield at_most("a step with 600 cells, compared with 4", 1.5,
                  seconds["step/600"] / seconds["step/4"], times)
    for what, goal in (("load", 6), ("encode", 10), ("leaders", 1)):
        yield at_most(f"high scores, 10,000 entries: {what}", goal * MS, seconds[f"{what}/10000"],
                      milliseconds)
    yield at_most("high scores: load per entry, 1,000,000 entries compared with 10,000", 1.5,
                  seconds["load/1000000"] / seconds["load/10000"] / 100, times)
