"""Hardening of the binary, and no use of network sockets or other programs."""

import os
import pathlib
import platform
import re
import stat
import subprocess

import pytest
from game import FRESH, PROGRAM, Game
from waiting import eventually

HARDENING_CHECKS = [
    "Position Independent Executable",
    "Stack protected",
    "Fortify Source functions",
    "Read-only relocations",
    "Immediate binding",
]
# hardening-check does not find these: it looks for the instructions of another compiler, and for a
# CET property that the linker sets only if the C library has it.
INSTRUCTIONS = {
    "stack clash probes": r"sub +\$0x1000,%rsp\n.*\borq +\$0x0,\(%rsp\)",
    "endbr64 instructions": r"<main>:\n.*\bendbr64\b",
}
LOCAL = {"AF_UNIX", "AF_NETLINK"}
NETWORK_TABLES = ["tcp", "tcp6", "udp", "udp6", "raw", "raw6"]


@pytest.fixture(scope="module")
def results():
    """The results of hardening-check by check."""
    report = subprocess.run(["hardening-check", "--nocolor", PROGRAM], stdout=subprocess.PIPE,
                            text=True).stdout
    return dict(re.findall(r"^ ([^:]+): (\w+)", report, re.MULTILINE))


@pytest.fixture(scope="module")
def disassembly():
    return subprocess.run(["objdump", "-d", "--no-show-raw-insn", PROGRAM], check=True,
                          stdout=subprocess.PIPE, text=True).stdout


@pytest.mark.parametrize("check", HARDENING_CHECKS)
def test_is_built_with(results, check):
    assert results[check] == "yes"


@pytest.mark.parametrize("pattern", INSTRUCTIONS.values(), ids=INSTRUCTIONS.keys())
def test_contains(disassembly, pattern):
    # The patterns are for x86-64 only.
    if platform.machine() == "x86_64":
        assert re.search(pattern, disassembly)


def test_is_built_with_glibcxx_assertions():
    symbols = subprocess.run(["readelf", "--dyn-syms", "--wide", PROGRAM], check=True,
                             stdout=subprocess.PIPE, text=True).stdout
    assert "__glibcxx_assert_fail" in symbols


def test_has_no_setuid_bit_and_no_capabilities():
    assert not os.stat(PROGRAM).st_mode & (stat.S_ISUID | stat.S_ISGID)
    with pytest.raises(OSError):
        os.getxattr(PROGRAM, "security.capability")


def play_and_save(game, home):
    game.wait_for(FRESH)
    game.press("ctrl+l")
    game.wait_for("The high scores.")
    game.press("Escape")
    game.start_run()
    game.press("Up")
    game.wait_for("Game over.")
    game.type("Pip")
    game.press("Return")
    eventually(home.high_scores, "the run is saved")


def network_sockets():
    """The inodes of all network sockets of this machine."""
    inodes = set()
    for table in NETWORK_TABLES:
        path = pathlib.Path("/proc/net", table)
        lines = path.read_text().splitlines()[1:] if path.exists() else []
        inodes |= {line.split()[9] for line in lines}
    return inodes


def test_has_no_network_socket_open(game, home):
    play_and_save(game, home)
    opened = [os.readlink(entry) for entry in
              pathlib.Path(f"/proc/{game.process.pid}/fd").iterdir() if entry.is_symlink()]
    sockets = {re.fullmatch(r"socket:\[(\d+)\]", target).group(1)
               for target in opened if target.startswith("socket:")}
    assert sockets
    assert not sockets & network_sockets()


def test_creates_no_network_socket_and_starts_no_program(desktop, home, tmp_path):
    """Traced with strace from start to end."""
    log = tmp_path / "calls"
    # -D keeps the game our child process; strace becomes a grandchild.
    tracer = ["strace", "-D", "-f", "-qq", "-e", "trace=execve,execveat,socket", "-o", str(log)]
    game = Game(desktop, tmp_path, desktop.environment | home.environment
                | {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}, command=[*tracer, PROGRAM])
    try:
        game.wait_until_shown()
        play_and_save(game, home)
        game.quit()
    finally:
        game.kill()
    calls = eventually(log.read_text, "strace has written its log")
    assert re.findall(r'execve(?:at)?\("([^"]*)"', calls) == [PROGRAM]
    families = set(re.findall(r"socket\((\w+)", calls))
    assert "AF_UNIX" in families
    assert families <= LOCAL
