"""Where the desktop around the game hangs, the game does not: it starts, plays and ends."""

import contextlib
import os
import pathlib
import platform
import signal
import socket
import subprocess
import sys

import pytest
from accessibility import call, connect
from seen import moves, shows_card
from waiting import PATIENCE, eventually

BUS = "org.freedesktop.DBus", "/org/freedesktop/DBus"
REGISTRY = "org.a11y.atspi.Registry"
# Services that the toolkit speaks to while it makes a window, and one that the game asks itself.
MENUS = "com.canonical.AppMenu.Registrar"
PORTAL = "org.freedesktop.portal.Desktop"


def plays(game):
    """Plays a little with keys alone, and leaves."""
    eventually(lambda: shows_card(game), "the start card is there")
    game.press("space")
    eventually(lambda: moves(game), "the run moves")
    game.press("space")
    eventually(lambda: not moves(game), "the run rests")
    game.press("ctrl+q")
    assert game.exit_status() == 0


@contextlib.contextmanager
def hanging(process):
    """Has the process of this number hang until the end of the block."""
    os.kill(process, signal.SIGSTOP)
    try:
        yield
    finally:
        os.kill(process, signal.SIGCONT)


def owner(bus, name):
    """The number of the process that has a name on a bus."""
    process, = call(bus, BUS, BUS[0], "GetConnectionUnixProcessID", "(s)", name)
    return process


def first_child(process):
    return int(pathlib.Path(f"/proc/{process}/task/{process}/children").read_text().split()[0])


@pytest.fixture
def listener(home):
    """A socket that everybody can reach and that never says a word."""
    with socket.socket(socket.AF_UNIX) as listener:
        listener.bind(f"{home.environment['HOME']}/silent")
        listener.listen()
        listener.settimeout(PATIENCE)
        yield listener


@pytest.fixture
def silent_address(listener):
    return f"unix:path={listener.getsockname()}"


@pytest.fixture
def silent_input_method(desktop, home, silent_address):
    """The environment of a desktop whose input method is there and never says a word."""
    settings = pathlib.Path(home.environment["XDG_CONFIG_HOME"])
    machine = desktop.run("dbus-uuidgen", "--get").strip()
    display = desktop.environment["DISPLAY"].removeprefix(":")
    address = settings / f"ibus/bus/{machine}-unix-{display}"
    address.parent.mkdir(parents=True)
    address.write_text(f"# Where it is.\nIBUS_ADDRESS={silent_address}\n"
                       f"IBUS_DAEMON_PID={os.getpid()}\n")
    # The toolkit looks for its program before it believes the file.
    programs = settings / "programs"
    programs.mkdir()
    (programs / "ibus-daemon").write_text("")
    (programs / "ibus-daemon").chmod(0o755)
    return {"QT_IM_MODULE": "ibus", "PATH": f"{programs}:{os.environ['PATH']}"}


@pytest.fixture
def assistance(desktop):
    """What makes up the desktop's accessibility: the numbers of its processes."""
    launcher = owner(connect(desktop.environment["DBUS_SESSION_BUS_ADDRESS"]), "org.a11y.Bus")
    call(desktop.accessibility, BUS, BUS[0], "StartServiceByName", "(su)", REGISTRY, 0)
    return {"launcher": launcher, "bus": first_child(launcher),
            "registry": owner(desktop.accessibility, REGISTRY)}


@pytest.fixture
def hanging_service(desktop):
    """Makes a service of that name, which hangs."""
    services = []

    def hanging_service(name):
        services.append(subprocess.Popen(
            [sys.executable, str(pathlib.Path(__file__).with_name("own_name.py")), name],
            env=desktop.environment, stdout=subprocess.PIPE, text=True))
        assert services[-1].stdout.readline() == "ready\n"
        services[-1].send_signal(signal.SIGSTOP)

    yield hanging_service
    for service in services:
        service.kill()
        service.communicate()


def test_it_starts_while_whoever_has_the_address_of_the_bus_says_nothing(launch, silent_address):
    plays(launch(DBUS_SESSION_BUS_ADDRESS=silent_address))


@pytest.mark.parametrize("number", [signal.SIGTERM, signal.SIGINT, signal.SIGHUP])
def test_a_signal_ends_it_with_status_0_before_it_has_a_window(
        start, listener, silent_address, number):
    game = start(DBUS_SESSION_BUS_ADDRESS=silent_address)
    listener.accept()
    game.process.send_signal(number)
    assert game.exit_status() == 0


def test_it_starts_while_the_session_bus_hangs(desktop, launch):
    with hanging(desktop.bus.pid):
        plays(launch())


def test_it_starts_while_the_input_method_says_nothing(launch, silent_input_method):
    plays(launch(**silent_input_method))


def test_it_starts_while_the_session_manager_says_nothing(launch, silent_address):
    path = silent_address.removeprefix("unix:path=")
    plays(launch(SESSION_MANAGER=f"unix/{platform.node()}:{path}"))


def test_it_plays_on_when_the_session_bus_hangs(desktop, game):
    with hanging(desktop.bus.pid):
        plays(game)


@pytest.mark.parametrize("part, asked_for", [("launcher", None), ("bus", None), ("registry", "1")])
def test_it_starts_while_a_part_of_the_accessibility_hangs(launch, assistance, part, asked_for):
    with hanging(assistance[part]):
        plays(launch(QT_LINUX_ACCESSIBILITY_ALWAYS_ON=asked_for))


@pytest.mark.parametrize("part", ["launcher", "bus", "registry"])
def test_it_plays_on_when_a_part_of_the_accessibility_hangs(game, assistance, part):
    with hanging(assistance[part]):
        plays(game)


@pytest.mark.parametrize("service", [MENUS, PORTAL])
def test_it_starts_while_a_service_on_the_bus_hangs(launch, hanging_service, service):
    hanging_service(service)
    plays(launch())
