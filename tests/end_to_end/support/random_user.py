"""A user who presses whatever is there, by mouse, by keyboard and as a screen reader does."""

from support.program import MAIN_TITLE
from support.screen import Area
from support.spoken import activate_element

_TOUCHED = {"push button", "radio button", "check box", "menu item", "list item", "graphic", "label", "text", "slider",
            "scroll bar", "table cell", "tree item", "combo box", "tool bar", "panel"}
_KEYS = ["period", "comma", "space", "Return", "Escape", "Tab", "shift+Tab", "Up", "Down", "Left", "Right", "Prior", "Next",
         "Home", "End", "F1", "F3", "shift+F3", "Menu", "shift+F10", "ctrl+f", "ctrl+c", "ctrl+v", "ctrl+a", "alt+f", "alt+n",
         "n", "y", "less", "greater", "KP_Decimal", "plus", "minus", "BackSpace", "Delete", "F11", "ctrl+p", "ctrl+Home"]
_ANSWERS = {"space", "Return", "Escape", "n", "y"}  # once, so that a message in between is seen before it has gone
_WORDS = ["hood", "scoop*", '"hood scoop"', "torvik -hood", "e", "1967", '"', "-", "***", "zzzz", "\\", "the car"]
_CLOSERS = ("Retry", "No", "Cancel", "OK", "Close", "Exit")


class RandomUser:
    """Each deed is chosen by the given source of chances from what is on show."""

    def __init__(self, screen, chances):
        self._screen = screen
        self._chances = chances
        self.told = []  # the last deeds in words
        self.place = None  # where the mouse was pressed in the last deed
        self._program = None
        self._elements = []

    def tell(self, deed):
        self.told = [*self.told[-199:], deed]

    def act(self, program, elements):
        """Does one thing to what the program shows."""
        self.place = None
        self._elements = elements
        self._program = program
        if not self._window() and self._chances.random() < 0.3:
            self._restore()
            return
        deeds = [(self._press_something, 40), (self._press_key, 22), (self._choose_from_menus, 12), (self._go_round, 6),
                 (self._press_as_screen_reader, 5), (self._drag, 4), (self._turn_wheel, 4), (self._type, 4), (self._dismiss, 12),
                 (self._change_window, 2), (self._leave, 0.05)]
        deed = self._chances.choices([deed for deed, _ in deeds], [weight for _, weight in deeds])[0]
        deed()

    # What is on show

    def _window(self):
        """The title of the window that has the keyboard."""
        return self._screen.active_title()

    def _pick(self, roles=_TOUCHED):
        """Mostly something in the window that has the keyboard, now and then something behind it."""
        window = self._window() if self._chances.random() < 0.8 else None
        found = [e for e in self._elements if e.role in roles and e.width > 0 and e.height > 0]
        inside = [e for e in found if e.window == window]
        choice = self._chances.choice(inside or found) if found else None
        if choice is not None and choice.name == "Exit" and choice.window == MAIN_TITLE and self._chances.random() < 0.9:
            return None  # the program would be started anew all the time
        return choice

    # Deeds

    def _place_in(self, element):
        """Seldom over an Exit of the main window that lies in a larger element, for the same reason as in _pick."""
        for _ in range(20):
            place = (element.left + element.width * self._chances.uniform(0.05, 0.95),
                     element.top + element.height * self._chances.uniform(0.05, 0.95))
            if element.name == "Exit" or not self._is_over_exit(place) or self._chances.random() < 0.1:
                break
        return place

    def _is_over_exit(self, place):
        x, y = place
        return any(e.left <= x <= e.right and e.top <= y <= e.bottom for e in self._elements
                   if e.name == "Exit" and e.window == MAIN_TITLE and e.role == "push button")

    def _press_mouse(self, place, button=1):
        self.place = place
        self._screen.press_mouse(*place, button)

    def _press_something(self):
        element = self._pick()
        if element is None:
            return
        kind = self._chances.choices(("left", "right", "double"), (82, 9, 9))[0]
        self.tell(f"{kind} click on {element.role} {element.name[:60]!r} of {element.window!r}")
        place = self._place_in(element)
        if kind == "double":
            self.place = place
            self._screen.double_click(*place)
        else:
            self._press_mouse(place, 3 if kind == "right" else 1)

    def _press_as_screen_reader(self):
        element = self._pick({"push button", "menu item", "radio button", "check box"})
        if element is None or not element.enabled:
            return
        self.tell(f"activate {element.role} {element.name[:60]!r} of {element.window!r}")
        activate_element(element)

    def _press_key(self):
        key = self._chances.choice(_KEYS)
        times = 1 if key in _ANSWERS else self._chances.choice((1, 1, 1, 2, 5))
        keys = [key] * times
        self.tell(f"press {' '.join(keys)} in {self._window()!r}")
        self._screen.press_key(*keys)

    def _type(self):
        words = self._chances.choice(_WORDS)
        self.tell(f"type {words!r} in {self._window()!r}")
        self._screen.type_text(words)

    def _choose_from_menus(self):
        """Opens a menu of the main window, and then one entry after the other until none opens a further menu."""
        passed = set()
        for _ in range(4):
            entries = [e for e in self._program.elements() if e.role == "menu item" and e.width > 0 and e.accessible not in passed]
            passed |= {e.accessible for e in entries}
            if not entries:
                return
            entry = self._chances.choice(entries)
            if entry.name == "Exit" and self._chances.random() < 0.9:
                return
            self.tell(f"choose {entry.name!r} from the menus")
            self._press_mouse(entry.middle)

    def _go_round(self):
        """A window that takes some steps to open, so that chance alone seldom comes there."""
        button = self._chances.choice(("SlideShow", "Advertisement", "Description", "Nostalgia", "Next photo", "Emblem", "ClipArt",
                                       "Movies", "Sound Effects", "Play", "Forward", "Add this photo to list", "Install", "Print",
                                       "Copy Photos", "Copy Movies", "Open"))
        element = next((e for e in self._elements if e.name.strip() == button), None)
        if element is not None:
            self.tell(f"left click on {button!r} of {element.window!r}")
            self._press_mouse(element.middle)

    def _dismiss(self):
        """Closes what stands over the main window."""
        window = self._window()
        if window == MAIN_TITLE:
            return
        closers = [e for e in self._elements if e.window == window and e.role == "push button" and e.name in _CLOSERS]
        if closers:
            closer = self._chances.choice(closers)
            if closer.name == "Cancel" and any(e.name == "Retry" for e in closers) and self._chances.random() < 0.8:
                return
            self.tell(f"left click on {closer.name!r} of {window!r}")
            self._press_mouse(closer.middle)
        else:
            self.tell(f"press Escape in {window!r}")
            self._screen.press_key("Escape")

    def _drag(self):
        start, end = self._pick(), self._pick()
        if start is None or end is None:
            return
        self.tell(f"drag from {start.name[:60]!r} to {end.name[:60]!r}")
        self.place = self._place_in(end)
        self._screen.drag_mouse(self._place_in(start), self.place)

    def _turn_wheel(self):
        element = self._pick()
        if element is not None:
            button = self._chances.choice((4, 5))
            self.tell(f"wheel over {element.name[:60]!r}")
            for _ in range(self._chances.randint(1, 5)):
                self._screen.press_mouse(*element.middle, button)

    def _change_window(self):
        change = self._chances.choice(("maximize", "move", "size", "minimize"))
        self.tell(f"{change} the window {self._window()!r}")
        area = Area(self._chances.randrange(-50, 400), self._chances.randrange(-50, 300),
                    self._chances.randrange(100, 1200), self._chances.randrange(80, 900))
        self._screen.change_active_window(change, area)

    def _restore(self):
        """All windows are minimized: one comes back from the task bar."""
        windows = sorted({element.window for element in self._elements if element.window})
        if windows:
            window = self._chances.choice(windows)
            self.tell(f"restore the window {window!r}")
            self._screen.raise_window(window)

    def _leave(self):
        self.tell(f"press alt+F4 in {self._window()!r}")
        self._screen.press_key("alt+F4")
