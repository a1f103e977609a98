"""A desktop's settings portal: tells programs what the player has chosen.

portal.py GROUP KEY VALUE   answers with that one setting, such as "uint32 1", until it is ended
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

    def answer(bus, sender, path, interface, method, question, invocation):
        if question.unpack() == (group, key):
            # In two envelopes, as portals really answer.
            setting = GLib.Variant("v", GLib.Variant.parse(None, value))
            invocation.return_value(GLib.Variant("(v)", (setting,)))
        else:
            invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", "not kept here")

    def serve(bus, name):
        interface, = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces
        bus.register_object(PATH, interface, answer, None, None)

    Gio.bus_own_name(Gio.BusType.SESSION, NAME, Gio.BusNameOwnerFlags.NONE, serve,
                     lambda bus, name: print("ready", flush=True), None)
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
