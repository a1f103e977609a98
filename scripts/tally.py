"""Counts tests.

tally.py REPORT --status N   prints what a JUnit report of a run that ended with status N amounts to
tally.py --sum FOLDER        prints the sum of every report and verdict in FOLDER; status 1 unless
                             all passed
"""

import argparse
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path


def count_report(path, status):
    """Passed and failed tests of a report; a test that did not run has failed."""
    passed = failed = 0
    try:
        cases = list(ElementTree.parse(path).iter("testcase"))
    except (OSError, ElementTree.ParseError):
        cases = []
    for case in cases:
        bad = any(case.find(mark) is not None for mark in ("failure", "error", "skipped"))
        if bad or case.get("status", "run") != "run":
            failed += 1
        else:
            passed += 1
    if failed == 0 and (status != 0 or not cases):
        failed = 1
    return passed, failed


def sum_folder(folder):
    passed = failed = 0
    for path in folder.glob("*.counts"):
        words = path.read_text().split()
        passed += int(words[0])
        failed += int(words[2])
    for path in folder.glob("*.verdict"):
        if path.read_text().strip() == "passed":
            passed += 1
        else:
            failed += 1
    return passed, failed


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("report", type=Path, nargs="?")
    parser.add_argument("--status", type=int, default=0)
    parser.add_argument("--sum", type=Path)
    arguments = parser.parse_args()
    if arguments.sum:
        passed, failed = sum_folder(arguments.sum)
    else:
        passed, failed = count_report(arguments.report, arguments.status)
    print(f"{passed} passed, {failed} failed")
    # A sum of nothing is no success.
    return 1 if arguments.sum and (failed or not passed) else 0


if __name__ == "__main__":
    sys.exit(main())
