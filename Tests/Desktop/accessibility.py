"""The screen as assistive programs read it, from the accessibility bus."""

from gi.repository import Gio, GLib

ACCESSIBLE = "org.a11y.atspi.Accessible"
ACTION = "org.a11y.atspi.Action"
COMPONENT = "org.a11y.atspi.Component"
EDITABLE_TEXT = "org.a11y.atspi.EditableText"
TEXT = "org.a11y.atspi.Text"
PROPERTIES = "org.freedesktop.DBus.Properties"
REGISTRY = "org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"
ON_SCREEN = 0
ANSWER_WITHIN_MS = 10_000

# Numbers of states, as the bus counts them.
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


def call(bus, place, interface, method, signature="()", *arguments):
    """The answer of an object on the bus, as a list of plain values."""
    owner, path = place
    answer = bus.call_sync(owner, path, interface, method, GLib.Variant(signature, arguments),
                           None, Gio.DBusCallFlags.NONE, ANSWER_WITHIN_MS, None)
    return answer.unpack()


def accessibility_bus(session_bus_address):
    """A connection to the accessibility bus, which a session bus knows; it starts if need be."""
    session = connect(session_bus_address)
    address, = call(session, ("org.a11y.Bus", "/org/a11y/bus"), "org.a11y.Bus", "GetAddress")
    return connect(address)


def application(bus, process):
    """The top of a process's tree, or None while the bus does not know it."""
    for child in Element(bus, REGISTRY).children():
        owner, = call(bus, ("org.freedesktop.DBus", "/"), "org.freedesktop.DBus",
                      "GetConnectionUnixProcessID", "(s)", child.place[0])
        if owner == process:
            return child
    return None


class Element:
    """One control, text or picture of a program; asks the program each time."""

    def __init__(self, bus, place):
        self._bus = bus
        self.place = place

    def children(self):
        return [Element(self._bus, place) for place in self._ask(ACCESSIBLE, "GetChildren")[0]]

    def everything(self):
        """This element and all below it, from front to end."""
        yield self
        for child in self.children():
            yield from child.everything()

    def everything_showing(self):
        """The same without what is hidden."""
        if self.is_showing():
            yield self
            for child in self.children():
                yield from child.everything_showing()

    @property
    def name(self):
        return self._ask(PROPERTIES, "Get", "(ss)", ACCESSIBLE, "Name")[0]

    @property
    def role(self):
        """What it is, such as "push button"."""
        return self._ask(ACCESSIBLE, "GetRoleName")[0]

    @property
    def actions(self):
        """The names of what can be done with it."""
        if ACTION not in self._ask(ACCESSIBLE, "GetInterfaces")[0]:
            return []
        return [name for name, _, _ in self._ask(ACTION, "GetActions")[0]]

    def do(self, action):
        """Does what one of its actions says."""
        self._ask(ACTION, "DoAction", "(i)", self.actions.index(action))

    def write(self, text):
        """Puts a text into a field in place of what was there."""
        self._ask(EDITABLE_TEXT, "SetTextContents", "(s)", text)

    @property
    def text(self):
        """What is written in a field."""
        return self._ask(TEXT, "GetText", "(ii)", 0, -1)[0]

    def use(self):
        """Does what a press on the control does."""
        self._ask(ACTION, "DoAction", "(i)", 0)

    def can_be_used(self):
        """Whether it is not greyed."""
        return self._has(SENSITIVE)

    def is_active(self):
        """Whether it is the window that has the keyboard."""
        return self._has(ACTIVE)

    def is_checked(self):
        return self._has(CHECKED)

    def is_editable(self):
        return self._has(EDITABLE)

    def is_focusable(self):
        return self._has(FOCUSABLE)

    def is_modal(self):
        """Whether everything else waits for it."""
        return self._has(MODAL)

    def is_focused(self):
        return self._has(FOCUSED)

    def is_showing(self):
        return self._has(SHOWING)

    def place_on_screen(self):
        """Left, top, width and height in pixels."""
        return self._ask(COMPONENT, "GetExtents", "(u)", ON_SCREEN)[0]

    def _has(self, state):
        words = self._ask(ACCESSIBLE, "GetState")[0]
        return bool(words[state // 32] >> state % 32 & 1)

    def _ask(self, interface, method, signature="()", *arguments):
        return call(self._bus, self.place, interface, method, signature, *arguments)


class Listener:
    """The new names that an assistive program is told of while this listens, in order."""

    def __init__(self, bus):
        self._bus = bus
        self._names = []
        registry = REGISTRY[0], "/org/a11y/atspi/registry"
        call(bus, registry, "org.a11y.atspi.Registry", "RegisterEvent", "(sass)",
             "Object:PropertyChange", [], "")
        self._subscription = bus.signal_subscribe(
            None, "org.a11y.atspi.Event.Object", "PropertyChange", None, "accessible-name",
            Gio.DBusSignalFlags.NONE, self._hear)

    def names(self):
        """What has been told up to now: a status, a score, a title."""
        while GLib.MainContext.default().iteration(False):
            pass
        return self._names

    def close(self):
        self._bus.signal_unsubscribe(self._subscription)

    def _hear(self, bus, sender, path, interface, signal, parameters):
        # Told is only that the name is new; a screen reader then asks for it, too.
        try:
            self._names.append(Element(self._bus, (sender, path)).name)
        except GLib.Error:
            pass
