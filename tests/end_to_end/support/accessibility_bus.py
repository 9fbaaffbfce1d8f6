"""Questions to the programs on the accessibility bus, many at a time."""

from gi.repository import Gio, GLib

_ANSWER_TIME = 20_000  # milliseconds; a machine under load answers late

ACCESSIBLE = "org.a11y.atspi.Accessible"
ACTION = "org.a11y.atspi.Action"
COMPONENT = "org.a11y.atspi.Component"


class AccessibilityBus:
    def __init__(self):
        session = Gio.bus_get_sync(Gio.BusType.SESSION)
        address = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                                    Gio.DBusCallFlags.NONE, _ANSWER_TIME, None).unpack()[0]
        self._connection = Gio.DBusConnection.new_for_address_sync(
            address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION,
            None, None)

    def ask(self, questions):
        """Asks all at once and returns the answers in the same order. A question is an object (bus name, path),
        an interface, a method and its arguments as a variant or None. An object that is gone by now answers None."""
        answers = [None] * len(questions)
        open_questions = len(questions)

        def take(connection, result, index):
            nonlocal open_questions
            open_questions -= 1
            try:
                answers[index] = connection.call_finish(result).unpack()[0]
            except GLib.Error:
                answers[index] = None

        for index, ((name, path), interface, method, arguments) in enumerate(questions):
            self._connection.call(name, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE,
                                  _ANSWER_TIME, None, take, index)
        while open_questions:
            GLib.MainContext.default().iteration(True)
        return answers

    def listen(self, interface, hear):
        """Calls `hear` with the object and the arguments of each event of an interface, while something is asked."""
        registry, bus = "org.a11y.atspi.Registry", "org.freedesktop.DBus"
        self._tell(registry, "/org/a11y/atspi/registry", registry, "RegisterEvent",
                   GLib.Variant("(sass)", ("object:state-changed", [], "")))
        self._tell(bus, "/org/freedesktop/DBus", bus, "AddMatch",
                   GLib.Variant("(s)", (f"type='signal',interface='{interface}'",)))
        self._connection.signal_subscribe(
            None, interface, None, None, None, Gio.DBusSignalFlags.NO_MATCH_RULE,
            lambda _connection, name, path, _interface, _signal, arguments: hear((name, path), arguments.unpack()))

    def _tell(self, name, path, interface, method, arguments):
        self._connection.call_sync(name, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE, _ANSWER_TIME,
                                   None)

    def application_of(self, process):
        """The root object of a process, or None as long as it has not made itself known."""
        registry = ("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
        applications = self.ask([(registry, ACCESSIBLE, "GetChildren", None)])[0] or []
        bus = ("org.freedesktop.DBus", "/org/freedesktop/DBus")
        processes = self.ask([(bus, "org.freedesktop.DBus", "GetConnectionUnixProcessID", GLib.Variant("(s)", (name,)))
                              for name, _ in applications])
        return next((found for found, owner in zip(applications, processes) if owner == process), None)


def name_question(accessible):
    return accessible, "org.freedesktop.DBus.Properties", "Get", GLib.Variant("(ss)", (ACCESSIBLE, "Name"))


def place_question(accessible):
    of_screen = 0
    return accessible, COMPONENT, "GetExtents", GLib.Variant("(u)", (of_screen,))
