"""What the program tells a screen reader: the elements of its windows by name, role, place and state."""

from dataclasses import dataclass
from functools import cache

from gi.repository import GLib

from support.accessibility_bus import ACCESSIBLE, ACTION, AccessibilityBus, name_question, place_question

# Numbers of the states in the two words that an element answers with.
_ENABLED, _FOCUSED, _SHOWING = 8, 12, 25


@dataclass(frozen=True)
class Element:
    name: str
    role: str
    window: str  # the title of the window that it is in
    left: float  # pixels of the screen, like the next three
    top: float
    width: float
    height: float
    enabled: bool
    focused: bool
    accessible: tuple = None  # the object on the accessibility bus

    @property
    def middle(self):
        return self.left + self.width / 2, self.top + self.height / 2

    @property
    def right(self):
        return self.left + self.width

    @property
    def bottom(self):
        return self.top + self.height


@cache
def _bus():
    return AccessibilityBus()


def read_elements(process, scale=1.0):
    """The elements of a process that are on show: first the windows, then what lies in them, level by level.
    Empty as long as the process has told nothing. What goes away while it is read is left out."""
    application = _bus().application_of(process)
    if application is None:
        return []
    elements = []
    level = [(child, None) for child in _children([application])[0]]
    while level:
        level = _read_level(level, scale, elements)
    return elements


class Heard:
    """The names of the elements of which a screen reader is told that the keyboard went to them."""

    def __init__(self, process):
        self._program = _bus().application_of(process)[0]
        self._elements = []
        _bus().listen("org.a11y.atspi.Event.Object", self._hear)

    def _hear(self, accessible, arguments):
        if accessible[0] == self._program and arguments[:2] == ("focused", 1):
            self._elements.append(accessible)

    def take(self):
        """What came since it was asked last. What came before this question is on the bus in front of its answer."""
        _bus().application_of(0)
        elements, self._elements = self._elements, []
        return _bus().ask([name_question(element) for element in elements])


def activate_element(element):
    """Has the element do what a press does."""
    _bus().ask([(element.accessible, ACTION, "DoAction", GLib.Variant("(i)", (0,)))])


def _children(accessibles):
    answers = _bus().ask([(accessible, ACCESSIBLE, "GetChildren", None) for accessible in accessibles])
    return [answer or [] for answer in answers]


def _read_level(level, scale, elements):
    """Adds the elements of a level and returns the next one, as objects with the titles of their windows."""
    states = _bus().ask([(accessible, ACCESSIBLE, "GetState", None) for accessible, _ in level])
    shown = [(accessible, window, words[0] | words[1] << 32) for (accessible, window), words in zip(level, states)
             if words and words[0] & 1 << _SHOWING]
    questions = []
    for accessible, _, _ in shown:
        questions += [name_question(accessible), (accessible, ACCESSIBLE, "GetRoleName", None),
                      place_question(accessible)]
    answers = _bus().ask(questions)
    below = []
    for index, (accessible, window, state) in enumerate(shown):
        name, role, place = answers[3 * index:3 * index + 3]
        if name is None or role is None or place is None:
            continue
        title = name if window is None else window
        elements.append(Element(name, role, title, *(pixels * scale for pixels in place),
                                enabled=bool(state & 1 << _ENABLED), focused=bool(state & 1 << _FOCUSED), accessible=accessible))
        below.append((accessible, title))
    families = _children([accessible for accessible, _ in below])
    return [(child, title) for (_, title), family in zip(below, families) for child in family]
