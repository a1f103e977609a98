"""How the program is built, and what it never does while it runs."""

import os
import pathlib
import platform
import re
import stat
import subprocess

import pytest
from game import FRESH, PROGRAM, Game
from waiting import eventually

GUARDS = [
    "Position Independent Executable",
    "Stack protected",
    "Fortify Source functions",
    "Read-only relocations",
    "Immediate binding",
]
# What hardening-check does not see: the sequence it looks for is another compiler's, and the mark
# of the whole program would need a C library built alike.
INSTRUCTIONS = {
    "probes of a large stack": r"sub +\$0x1000,%rsp\n.*\borq +\$0x0,\(%rsp\)",
    "marks of where calls may arrive": r"<main>:\n.*\bendbr64\b",
}
LOCAL = {"AF_UNIX", "AF_NETLINK"}
NETWORK_TABLES = ["tcp", "tcp6", "udp", "udp6", "raw", "raw6"]


@pytest.fixture(scope="module")
def verdicts():
    """What hardening-check finds in the program, guard by guard."""
    report = subprocess.run(["hardening-check", "--nocolor", PROGRAM], stdout=subprocess.PIPE,
                            text=True).stdout
    return dict(re.findall(r"^ ([^:]+): (\w+)", report, re.MULTILINE))


@pytest.fixture(scope="module")
def disassembly():
    return subprocess.run(["objdump", "-d", "--no-show-raw-insn", PROGRAM], check=True,
                          stdout=subprocess.PIPE, text=True).stdout


@pytest.mark.parametrize("guard", GUARDS)
def test_the_program_is_built_with(verdicts, guard):
    assert verdicts[guard] == "yes"


@pytest.mark.parametrize("pattern", INSTRUCTIONS.values(), ids=INSTRUCTIONS.keys())
def test_the_program_holds(disassembly, pattern):
    # Elsewhere the instructions are others, and the compiler is asked for what it has.
    if platform.machine() == "x86_64":
        assert re.search(pattern, disassembly)


def test_the_program_checks_the_bounds_of_its_containers():
    symbols = subprocess.run(["readelf", "--dyn-syms", "--wide", PROGRAM], check=True,
                             stdout=subprocess.PIPE, text=True).stdout
    assert "__glibcxx_assert_fail" in symbols


def test_the_program_has_no_rights_but_its_users():
    assert not os.stat(PROGRAM).st_mode & (stat.S_ISUID | stat.S_ISGID)
    with pytest.raises(OSError):
        os.getxattr(PROGRAM, "security.capability")


def play_and_leave(game, home):
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
    """The numbers of all sockets of this machine that speak to a network."""
    numbers = set()
    for table in NETWORK_TABLES:
        path = pathlib.Path("/proc/net", table)
        lines = path.read_text().splitlines()[1:] if path.exists() else []
        numbers |= {line.split()[9] for line in lines}
    return numbers


def test_it_opens_no_network_socket(game, home):
    play_and_leave(game, home)
    opened = [os.readlink(entry) for entry in
              pathlib.Path(f"/proc/{game.process.pid}/fd").iterdir() if entry.is_symlink()]
    sockets = {re.fullmatch(r"socket:\[(\d+)\]", target).group(1)
               for target in opened if target.startswith("socket:")}
    assert sockets
    assert not sockets & network_sockets()


def test_it_asks_for_no_network_socket_and_starts_no_program(desktop, home, tmp_path):
    """As seen by a tracer, from the first system call to the last."""
    log = tmp_path / "calls"
    # -D: the program stays our child, the tracer becomes its grandchild.
    tracer = ["strace", "-D", "-f", "-qq", "-e", "trace=execve,execveat,socket", "-o", str(log)]
    game = Game(desktop, tmp_path, desktop.environment | home.environment
                | {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}, command=[*tracer, PROGRAM])
    try:
        game.wait_until_shown()
        play_and_leave(game, home)
        game.quit()
    finally:
        game.kill()
    calls = eventually(log.read_text, "the tracer has written")
    assert re.findall(r'execve(?:at)?\("([^"]*)"', calls) == [PROGRAM]
    families = set(re.findall(r"socket\((\w+)", calls))
    assert "AF_UNIX" in families
    assert families <= LOCAL
