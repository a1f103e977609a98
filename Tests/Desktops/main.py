"""Tries the game on desktops and prints a table. Called by Tests/Desktops/run."""

import argparse
import contextlib
import multiprocessing
import pathlib
import signal
import sys
import tempfile
import traceback
from functools import partial
from xml.etree import ElementTree

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "Desktop"))

from accessible_desktop import accessible_desktop
from gnome import GnomeWayland, GnomeX11
from screens import SCREENS
from starts import scaled_starts
from steps import SCRIPT
from sway import Sway
from trial import Trial
from wayland import KwinWayland, Weston
from x11 import Fluxbox, I3, Icewm, KwinX11, Marco, Metacity, Openbox, Xfwm4, Xfwm4Composited

DESKTOPS = {kind.NAME: kind for kind in (
    GnomeWayland, GnomeX11, KwinWayland, KwinX11, Xfwm4, Xfwm4Composited, Marco, Metacity,
    Openbox, Icewm, Fluxbox, I3, Sway, Weston)}
PASSED = "pass"
UNWIND_SECONDS = 5
SIGNALS = signal.SIGINT, signal.SIGTERM, signal.SIGHUP


def arguments():
    parser = argparse.ArgumentParser(prog="Tests/Desktops/run", description=__doc__)
    parser.add_argument("desktops", nargs="*", choices=[[], *DESKTOPS], metavar="DESKTOP",
                        help=f"of {', '.join(DESKTOPS)}; by default all")
    parser.add_argument("--starts", type=int, default=2, metavar="N",
                        help="starts at each scale (default: 2)")
    parser.add_argument("--jobs", type=int, default=1, metavar="N",
                        help="desktops tried at the same time (default: 1)")
    parser.add_argument("--results", type=pathlib.Path, default="build/desktops", metavar="FOLDER",
                        help="for pictures of failed steps; the JUnit report is FOLDER.xml")
    parser.add_argument("--steps", nargs="+", metavar="STEP", help="only these")
    return parser.parse_args()


def try_named(options, name):
    steps = SCRIPT | scaled_starts(options.starts) | (SCREENS if name == Sway.NAME else {})
    steps = {step: steps[step] for step in steps if step not in DESKTOPS[name].IMPOSSIBLE}
    if options.steps:
        steps = {step: steps[step] for step in options.steps if step in steps}
    print(f"{name} …", flush=True)
    return try_desktop(DESKTOPS[name], steps, options.results)


def try_desktop(kind, steps, results):
    """The outcome of each step: PASSED or what went wrong. A string if it did not start."""
    with contextlib.ExitStack() as stack:
        folder = pathlib.Path(stack.enter_context(tempfile.TemporaryDirectory()))
        try:
            desktop = stack.enter_context(accessible_desktop(kind))
        except Exception as error:  # Whatever prevents it from starting.
            return f"{type(error).__name__}: {error}"
        return run_steps(Trial(desktop, folder, results), steps)


def run_steps(trial, steps):
    outcomes = {}
    try:
        for name, step in steps.items():
            try:
                step(trial)
                outcomes[name] = PASSED
            except Exception as error:  # A step can fail in any way.
                outcomes[name] = f"{type(error).__name__}: {error}"
                traceback.print_exc()
                trial.save_screenshot(name)
                trial.end()
    finally:
        trial.end()
    return outcomes


def cell(outcomes, step):
    if isinstance(outcomes, str):
        return "not run"
    if step not in outcomes:
        return ""
    return PASSED if outcomes[step] == PASSED else "FAIL"


def print_table(outcomes):
    """A row for each step, a column for each desktop."""
    steps = dict.fromkeys(step for tried in outcomes.values() if not isinstance(tried, str)
                          for step in tried)
    rows = [["", *outcomes]] + [[step, *(cell(tried, step) for tried in outcomes.values())]
                                for step in steps]
    widths = [max(map(len, column)) for column in zip(*rows)]
    for row in rows:
        print("  ".join(text.ljust(width) for text, width in zip(row, widths)).rstrip())
    for name, tried in outcomes.items():
        if isinstance(tried, str):
            print(f"not run: {name}: {tried}")
            continue
        for step, outcome in tried.items():
            if outcome != PASSED:
                print(f"failed: {name}: {step}: {outcome}")
    for name in outcomes:
        for step, reason in DESKTOPS[name].IMPOSSIBLE.items():
            print(f"not possible: {name}: {step}: {reason}")


def write_report(outcomes, path):
    """A JUnit report of the steps that were run."""
    suite = ElementTree.Element("testsuite", name="desktops")
    for name, tried in outcomes.items():
        for step, outcome in {} if isinstance(tried, str) else tried.items():
            case = ElementTree.SubElement(suite, "testcase", classname=name, name=step)
            if outcome != PASSED:
                ElementTree.SubElement(case, "failure", message=outcome)
    ElementTree.ElementTree(suite).write(path, encoding="utf-8", xml_declaration=True)


def unwind(number, frame):
    """Ends the process after it has stopped its desktop, or in some seconds: the exception is lost
    if it comes up in a destructor. The programs of the desktop end with this process then."""
    signal.alarm(UNWIND_SECONDS)
    sys.exit(128 + number)


def main():
    # Inherited by the processes of the pool.
    for number in SIGNALS:
        signal.signal(number, unwind)
    options = arguments()
    options.results.mkdir(parents=True, exist_ok=True)
    names = options.desktops or list(DESKTOPS)
    with multiprocessing.Pool(options.jobs) as pool:
        outcomes = dict(zip(names, pool.map(partial(try_named, options), names, chunksize=1)))
    print_table(outcomes)
    write_report(outcomes, options.results.with_suffix(".xml"))
    results = [result for tried in outcomes.values() if not isinstance(tried, str)
               for result in tried.values()]
    passed = results.count(PASSED)
    print(f"{passed} passed, {len(results) - passed} failed")
    return 0 if results and passed == len(results) else 1


if __name__ == "__main__":
    sys.exit(main())
