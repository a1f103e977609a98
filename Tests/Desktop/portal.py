"""A settings portal for tests (org.freedesktop.portal.Settings).

portal.py GROUP KEY VALUE   serves this one setting, such as "uint32 1", until it is terminated

Each line on standard input is a new value, which it announces.
"""

import sys

from gi.repository import Gio, GLib

NAME = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
INTERFACE_NAME = "org.freedesktop.portal.Settings"
INTERFACE = """
<node>
  <interface name="org.freedesktop.portal.Settings">
    <method name="Read">
      <arg type="s" direction="in"/>
      <arg type="s" direction="in"/>
      <arg type="v" direction="out"/>
    </method>
    <signal name="SettingChanged">
      <arg type="s"/>
      <arg type="s"/>
      <arg type="v"/>
    </signal>
  </interface>
</node>
"""


def main():
    group, key, value = sys.argv[1:]
    setting = GLib.Variant.parse(None, value)
    buses = []

    def read(bus, sender, path, interface, method, arguments, invocation):
        if arguments.unpack() == (group, key):
            # Wrapped in two variants, as by real portals.
            invocation.return_value(GLib.Variant("(v)", (GLib.Variant("v", setting),)))
        else:
            invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", "no such setting")

    def serve(bus, name):
        interface, = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces
        bus.register_object(PATH, interface, read, None, None)
        buses.append(bus)

    def change(stdin, condition):
        nonlocal setting
        line = stdin.readline()
        if line:
            setting = GLib.Variant.parse(None, line.strip())
            buses[0].emit_signal(None, PATH, INTERFACE_NAME, "SettingChanged",
                                 GLib.Variant("(ssv)", (group, key, setting)))
        return bool(line)

    Gio.bus_own_name(Gio.BusType.SESSION, NAME, Gio.BusNameOwnerFlags.NONE, serve,
                     lambda bus, name: print("ready", flush=True), None)
    GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IO_IN | GLib.IO_HUP, change)
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
