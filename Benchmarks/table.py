"""table.py RESULTS [--document]: prints a table of the goals, and every measurement.

With --document the table of goals also replaces the one in Docs/performance.md.
"""

import json
import os
import pathlib
import platform
import sys

import goals

DOCUMENT = pathlib.Path(__file__).resolve().parents[1] / "Docs/performance.md"
BEGIN = "<!-- measured: written by Benchmarks/run -->"
END = "<!-- end of measured -->"

SECONDS = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1}


def medians(results):
    """CPU seconds of each Google Benchmark, by name."""
    found = {}
    for program in ("game", "table", "board"):
        for run in json.loads((results / f"{program}.json").read_text())["benchmarks"]:
            if run["aggregate_name"] == "median":
                name = run["run_name"].removesuffix("/process_time")
                found[name] = run["cpu_time"] * SECONDS[run["time_unit"]]
    return found


def machine():
    return f"{os.cpu_count()} cores, {platform.freedesktop_os_release()['PRETTY_NAME']}"


def as_markdown(heading, rows):
    lines = [heading, ["---"] * len(heading), *rows]
    return "\n".join("| " + " | ".join(line) + " |" for line in lines)


def goal_table(rows):
    return as_markdown(["What", "Goal", "Measured", "Share of the goal", ""],
                       [[row.what, row.goal, row.measured, f"{row.used:.2f}",
                         "met" if row.met else "**missed**"] for row in rows])


def detail_table(seconds, program):
    timed = [[name, f"{value * 1e6:,.4g} µs"] for name, value in seconds.items()]
    figures = [[name, f"{value:,.4g}"] for name, value in program.items()]
    return as_markdown(["Figure", "Median"], timed + figures)


def put_into_document(text):
    before, begin, rest = DOCUMENT.read_text().partition(BEGIN)
    _, end, after = rest.partition(END)
    assert begin and end, f"{DOCUMENT.name} has no marked place for the table"
    DOCUMENT.write_text(f"{before}{begin}\n{text}\n{end}{after}")


def main():
    results = pathlib.Path(sys.argv[1])
    seconds = medians(results)
    program = json.loads((results / "program.json").read_text())
    table = goal_table(goals.rows(seconds, program))
    print(f"{table}\n\n{detail_table(seconds, program)}")
    if "--document" in sys.argv[2:]:
        put_into_document(f"\nMeasured on {machine()}.\n\n{table}\n")


if __name__ == "__main__":
    main()
