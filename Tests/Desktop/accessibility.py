"""Reads and operates the program over AT-SPI, as a screen reader does."""

from gi.repository import Gio, GLib

ACCESSIBLE = "org.a11y.atspi.Accessible"
ACTION = "org.a11y.atspi.Action"
COMPONENT = "org.a11y.atspi.Component"
EDITABLE_TEXT = "org.a11y.atspi.EditableText"
TEXT = "org.a11y.atspi.Text"
PROPERTIES = "org.freedesktop.DBus.Properties"
REGISTRY = "org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"
ON_SCREEN = 0
IN_WINDOW = 1
TIMEOUT_MS = 10_000

# AtspiStateType.
ACTIVE = 1
CHECKED = 4
EDITABLE = 7
FOCUSABLE = 11
FOCUSED = 12
MODAL = 16
SENSITIVE = 24
SHOWING = 25


def connect(address):
    """A connection to the message bus at an address."""
    flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
             | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
    return Gio.DBusConnection.new_for_address_sync(address, flags, None, None)


def call(bus, address, interface, method, signature="()", *arguments):
    """Calls a D-Bus method of an object and returns its unpacked reply."""
    owner, path = address
    reply = bus.call_sync(owner, path, interface, method, GLib.Variant(signature, arguments),
                           None, Gio.DBusCallFlags.NONE, TIMEOUT_MS, None)
    return reply.unpack()


def accessibility_bus(session_bus_address):
    """A connection to the accessibility bus of a session, which is started if necessary."""
    session = connect(session_bus_address)
    address, = call(session, ("org.a11y.Bus", "/org/a11y/bus"), "org.a11y.Bus", "GetAddress")
    return connect(address)


def application(bus, process):
    """The root element of a process; None while it is not on the bus."""
    for child in Element(bus, REGISTRY).children():
        owner, = call(bus, ("org.freedesktop.DBus", "/"), "org.freedesktop.DBus",
                      "GetConnectionUnixProcessID", "(s)", child.address[0])
        if owner == process:
            return child
    return None


class Element:
    """One accessible object. Nothing is cached: each property is a call to the program."""

    def __init__(self, bus, address):
        self._bus = bus
        self.address = address

    def children(self):
        return [Element(self._bus, address) for address in self._ask(ACCESSIBLE, "GetChildren")[0]]

    def everything(self):
        """This element and all its descendants, depth first."""
        yield self
        for child in self.children():
            yield from child.everything()

    def everything_showing(self):
        """The same, without hidden elements."""
        if self.is_showing():
            yield self
            for child in self.children():
                yield from child.everything_showing()

    @property
    def name(self):
        return self._ask(PROPERTIES, "Get", "(ss)", ACCESSIBLE, "Name")[0]

    @property
    def role(self):
        """The name of its role, such as "push button"."""
        return self._ask(ACCESSIBLE, "GetRoleName")[0]

    @property
    def actions(self):
        """The names of its actions."""
        if ACTION not in self._ask(ACCESSIBLE, "GetInterfaces")[0]:
            return []
        return [name for name, _, _ in self._ask(ACTION, "GetActions")[0]]

    def do(self, action):
        """Performs the action with this name."""
        self._ask(ACTION, "DoAction", "(i)", self.actions.index(action))

    def write(self, text):
        """Replaces the text of a field."""
        self._ask(EDITABLE_TEXT, "SetTextContents", "(s)", text)

    @property
    def text(self):
        """The text of a field."""
        return self._ask(TEXT, "GetText", "(ii)", 0, -1)[0]

    def use(self):
        """Performs the first action, such as a press."""
        self._ask(ACTION, "DoAction", "(i)", 0)

    def can_be_used(self):
        """Whether it is enabled."""
        return self._has(SENSITIVE)

    def is_active(self):
        """Whether it is the active window."""
        return self._has(ACTIVE)

    def is_checked(self):
        return self._has(CHECKED)

    def is_editable(self):
        return self._has(EDITABLE)

    def is_focusable(self):
        return self._has(FOCUSABLE)

    def is_modal(self):
        """Whether it is modal."""
        return self._has(MODAL)

    def is_focused(self):
        return self._has(FOCUSED)

    def is_showing(self):
        return self._has(SHOWING)

    def extents_on_screen(self):
        """Left, top, width and height in pixels of the screen."""
        return self._ask(COMPONENT, "GetExtents", "(u)", ON_SCREEN)[0]

    def extents_in_window(self):
        """Left, top, width and height in its window."""
        return self._ask(COMPONENT, "GetExtents", "(u)", IN_WINDOW)[0]

    def _has(self, state):
        words = self._ask(ACCESSIBLE, "GetState")[0]
        return bool(words[state // 32] >> state % 32 & 1)

    def _ask(self, interface, method, signature="()", *arguments):
        return call(self._bus, self.address, interface, method, signature, *arguments)
