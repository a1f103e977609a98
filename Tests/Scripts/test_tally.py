"""scripts/tally.py, which ./check counts tests with."""

import pathlib
import subprocess
import sys

import pytest

TALLY = pathlib.Path(__file__).resolve().parents[2] / "scripts/tally.py"


def tally(path):
    return subprocess.check_output([sys.executable, TALLY, path], text=True).split()


@pytest.mark.parametrize("cases, counts", [
    ('<testcase name="a"/><testcase name="b"/>', ["2", "0"]),
    ('<testcase name="a"/><testcase name="b"><failure/></testcase>', ["1", "1"]),
    ('<testcase name="a"><error/></testcase>', ["0", "1"]),
    ('<testcase name="a"><skipped/></testcase>', ["0", "1"]),
    ('<testcase name="a" status="run"/><testcase name="b" status="notrun"/>', ["1", "1"]),
    ("", ["0", "0"]),
])
def test_counts_what_passed_and_what_did_not(tmp_path, cases, counts):
    report = tmp_path / "report.xml"
    report.write_text(f"<testsuites><testsuite>{cases}</testsuite></testsuites>")
    assert tally(report) == counts


def test_a_missing_or_broken_report_contains_no_test(tmp_path):
    broken = tmp_path / "broken.xml"
    broken.write_text("<testsuite><testcase")
    assert tally(tmp_path / "missing.xml") == tally(broken) == ["0", "0"]
