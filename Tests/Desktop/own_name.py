"""A service of the desktop that is there and no more.

own_name.py NAME   has that name on the session bus until it is ended
"""

import sys

from gi.repository import Gio, GLib


def main():
    Gio.bus_own_name(Gio.BusType.SESSION, sys.argv[1], Gio.BusNameOwnerFlags.NONE, None,
                     lambda bus, name: print("ready", flush=True), None)
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
