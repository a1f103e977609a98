"""tally.py REPORT: prints how many tests passed and how many failed in a JUnit report by ctest or
pytest. A test that did not run counts as failed; an unreadable report counts as no tests."""

import sys
import xml.etree.ElementTree as ElementTree


def has_failed(case):
    return case.get("status", "run") != "run" or any(
        child.tag in ("failure", "error", "skipped") for child in case)


try:
    cases = list(ElementTree.parse(sys.argv[1]).iter("testcase"))
except (OSError, ElementTree.ParseError):
    cases = []
failed = sum(map(has_failed, cases))
print(len(cases) - failed, failed)
