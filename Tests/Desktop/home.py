"""A temporary home folder, and the game's settings in it."""

import json

import cbor2

from waiting import eventually


class Home:
    def __init__(self, folder):
        self._settings = folder / ".config"
        self.environment = {
            "HOME": str(folder),
            "XDG_CONFIG_HOME": str(self._settings),
            "XDG_CACHE_HOME": str(folder / ".cache"),
            "XDG_DATA_HOME": str(folder / ".local/share"),
        }

    def preferences(self):
        """All stored settings; empty when there is no file."""
        try:
            return cbor2.loads((self._settings / "fernwick/preferences.cbor").read_bytes())
        except FileNotFoundError:
            return {}

    def store(self, preferences):
        """Writes the settings file, as an earlier run of the game has."""
        (self._settings / "fernwick").mkdir(parents=True, exist_ok=True)
        (self._settings / "fernwick/preferences.cbor").write_bytes(cbor2.dumps(preferences))

    def saved(self):
        """All stored settings, once a score has been saved. Its name is stored last."""
        eventually(lambda: "player-name" in self.preferences(), "the score is on disk")
        return self.preferences()

    def high_scores(self):
        """The stored entries, oldest first."""
        return json.loads(self.preferences().get("high-scores-v1", b"[]"))
