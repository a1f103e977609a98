"""Orca on a private desktop, with a record of what it says."""

import json
import pathlib
import subprocess

from waiting import eventually

RECORDER = pathlib.Path(__file__).with_name("speech_recorder.py")
TIMEOUT = 60  # seconds


class ScreenReader:
    def __init__(self, desktop):
        self._heard = 0
        self._processes = []
        folder = desktop.folder / "speech"
        self._record = folder / "modules/record"
        self._record.parent.mkdir(parents=True)
        self._record.touch()
        (folder / "speechd.conf").write_text(
            f'AddModule "recorder" "{RECORDER}" "{self._record.name}"\nDefaultModule recorder\n')
        # Orca refuses to start beside another one of the same user, such as the developer's own.
        (folder / "pgrep").symlink_to("/bin/true")
        address = folder / "socket"
        environment = desktop.environment | {
            "PATH": f"{folder}:{desktop.environment['PATH']}",
            "SPEECHD_ADDRESS": f"unix_socket:{address}",
            "GSETTINGS_BACKEND": "memory",
        }
        self._start(environment, "speech-dispatcher", "--run-single", "--timeout", "0",
                    "--communication-method", "unix_socket", "--socket-path", address,
                    "--config-dir", folder, "--log-dir", folder, "--pid-file", folder / "pid")
        eventually(address.exists, "the speech server listens", TIMEOUT)
        self._start(environment, "orca", "--disable", "key-echo")
        eventually(self.texts, "Orca has started", TIMEOUT)

    def texts(self):
        """What has been said to its end, in order."""
        said = {}
        for line in self._record.read_text().splitlines():
            number, text = json.loads(line)
            said[number] = (said[number][0], True) if text is None else (text, False)
        return [text for text, ended in said.values() if ended]

    def hear(self, *parts):
        """Waits until these parts of texts have been said, in this order, since the last call."""
        def all_are_said():
            said = self.texts()
            at = self._heard
            for part in parts:
                while at < len(said) and part not in said[at]:
                    at += 1
            if at < len(said):
                self._heard = at + 1
                return True
            return False

        try:
            eventually(all_are_said, f"{parts} are said", TIMEOUT)
        except AssertionError as error:
            raise AssertionError(f"{error}; said: {self.texts()[self._heard:]}") from None

    def close(self):
        for process in reversed(self._processes):
            process.terminate()
            process.wait()

    def _start(self, environment, *command):
        self._processes.append(subprocess.Popen(
            command, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL))
