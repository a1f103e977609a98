"""scripts/with-x-server: the private X server runs exactly as long as its command."""

import pathlib
import signal
import subprocess
import time

import pytest

WITH_X_SERVER = pathlib.Path(__file__).resolve().parents[2] / "scripts/with-x-server"
TIMEOUT = 15

# Prints the ids of the X server and of the command itself.
REPORT_AND_WAIT = "echo $X_SERVER_PID $$; exec sleep 1000"


def restore_interrupt():
    """Undoes a shell's `command &`, whose processes inherit SIGINT as ignored."""
    signal.signal(signal.SIGINT, signal.SIG_DFL)


@pytest.fixture
def launch():
    launchers = []

    def launch(*arguments):
        launchers.append(subprocess.Popen([WITH_X_SERVER, *arguments], text=True,
                                          stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                          start_new_session=True,
                                          preexec_fn=restore_interrupt))
        return launchers[-1]

    yield launch
    for launcher in launchers:
        launcher.kill()
        launcher.wait()


def is_running(process):
    try:
        status = pathlib.Path("/proc", process, "stat").read_text()
    except (FileNotFoundError, ProcessLookupError):
        return False
    # Nobody may have waited for it yet.
    return status.rpartition(")")[2].split()[0] != "Z"


def wait_for_end(process):
    deadline = time.monotonic() + TIMEOUT
    while is_running(process):
        assert time.monotonic() < deadline, f"process {process} is still running"
        time.sleep(0.02)


def test_returns_the_status_of_the_command(launch):
    launcher = launch("sh", "-c", "exit 7")
    assert launcher.wait(TIMEOUT) == 7


def test_the_screen_has_the_size_asked_for(launch):
    launcher = launch("--no-window-manager", "--size", "640x480", "xwininfo", "-root")
    output, _ = launcher.communicate(timeout=TIMEOUT)
    assert "Width: 640" in output and "Height: 480" in output


def test_the_window_manager_is_up_before_the_command_starts(launch):
    launcher = launch("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")
    printed, _ = launcher.communicate(timeout=TIMEOUT)
    assert "window id # 0x" in printed


def test_runs_without_a_window_manager_on_request(launch):
    launcher = launch("--no-window-manager", "xprop", "-root", "_NET_SUPPORTING_WM_CHECK")
    printed, _ = launcher.communicate(timeout=TIMEOUT)
    assert "window id # 0x" not in printed
    assert launcher.returncode == 0


def test_the_command_reads_standard_input(launch):
    printed, _ = launch("cat").communicate("hello", timeout=TIMEOUT)
    assert printed == "hello"


def test_keeps_the_pixels_in_the_folder_given(launch, tmp_path):
    launcher = launch("--framebuffer", tmp_path, "test", "-s", tmp_path / "Xvfb_screen0")
    assert launcher.wait(TIMEOUT) == 0


def test_the_x_server_ends_with_the_command(launch):
    launcher = launch("sh", "-c", "echo $X_SERVER_PID")
    server = launcher.stdout.readline().strip()
    launcher.wait(TIMEOUT)
    assert not is_running(server)


@pytest.mark.parametrize("number, status", [(signal.SIGINT, 130), (signal.SIGTERM, 143)])
def test_a_signal_ends_the_command_and_the_x_server(launch, number, status):
    launcher = launch("sh", "-c", REPORT_AND_WAIT)
    processes = launcher.stdout.readline().split()
    launcher.send_signal(number)
    assert launcher.wait(TIMEOUT) == status
    assert [process for process in processes if is_running(process)] == []


def test_the_x_server_ends_when_the_script_is_killed(launch):
    launcher = launch("sh", "-c", "echo $X_SERVER_PID; exec cat")
    server = launcher.stdout.readline().strip()
    launcher.kill()
    wait_for_end(server)
