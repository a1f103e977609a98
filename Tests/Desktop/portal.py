"""A settings portal for tests (org.freedesktop.portal.Settings).

portal.py GROUP KEY VALUE   serves this one setting, such as "uint32 1", until it is terminated
"""

import sys

from gi.repository import Gio, GLib

NAME = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
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

    def read(bus, sender, path, interface, method, arguments, invocation):
        if arguments.unpack() == (group, key):
            # Wrapped in two variants, as by real portals.
            setting = GLib.Variant("v", GLib.Variant.parse(None, value))
            invocation.return_value(GLib.Variant("(v)", (setting,)))
        else:
            invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", "no such setting")

    def serve(bus, name):
        interface, = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces
        bus.register_object(PATH, interface, read, None, None)

    Gio.bus_own_name(Gio.BusType.SESSION, NAME, Gio.BusNameOwnerFlags.NONE, serve,
                     lambda bus, name: print("ready", flush=True), None)
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
