"""The real program on a virtual screen, used as a person uses it."""

import os
import re
import signal
import subprocess
from contextlib import contextmanager
from dataclasses import dataclass
from pathlib import Path

from support.session import home_variables
from support.spoken import activate_element, read_elements
from support.waiting import PATIENCE, wait_until

MAIN_TITLE = "The Torvik Vollandry    2001"
SPLASH_TITLE = "The Torvik Vollandry 2001"
BOX_TITLE = "The Torvik Vollandry"

NO_PRINTERS = "127.0.0.1:9"  # nobody answers there, so nothing is ever printed on paper


def executable():
    """The program that is to be driven: TORVIK2001 names it, else it is the one in build/."""
    built = Path(__file__).resolve().parents[3] / "build" / "program" / "torvik2001"
    file = Path(os.environ.get("TORVIK2001", built))
    if not file.is_file():
        raise RuntimeError(f"there is no {file}")
    return file


@dataclass(frozen=True)
class View:
    """What the main window shows."""
    title: str
    number: str
    photo: str  # the name of the photo's file; empty when none is on show
    focus: str


class Program:
    """One run of the program. A home is a folder of the caller's: runs that share it are runs of one user."""

    def __init__(self, screen, home, *arguments, scale=1, folder=None, complaints=None):
        """`folder` is the program's current directory, that of the caller unless given; `complaints` an open file for
        what it says on standard error."""
        self.screen = screen
        self.home = home
        self._scale = scale
        home.mkdir(exist_ok=True)
        surroundings = {**screen.environment, **home_variables(home), "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
                        "CUPS_SERVER": NO_PRINTERS, **getattr(screen, "own_variables", {})}
        if scale != 1:
            surroundings["QT_SCALE_FACTOR"] = str(scale)
        self._process = subprocess.Popen(
            ["setpriv", "--pdeathsig", "KILL", str(executable()), *map(str, arguments)],
            env=surroundings, stdin=subprocess.DEVNULL, stderr=complaints, cwd=folder)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self._process.poll() is None:
            self.kill()

    @property
    def process(self):
        return self._process.pid

    def exit_code(self):
        """None while it runs."""
        return self._process.poll()

    def memory(self):
        """What it has asked for and has of the machine's memory, in MiB: without the files of programs and libraries, of which more
        and more pages are read as they are used, and without the screen's windows."""
        status = Path(f"/proc/{self.process}/status").read_text("ascii")
        return int(re.search(r"RssAnon:\s+(\d+) kB", status)[1]) / 1024

    # What is on show

    def elements(self):
        return read_elements(self.process, self._scale)

    def find(self, name, role=None, window=None):
        """The first element on show of that name, or None."""
        for element in self.elements():
            if element.name == name and role in (None, element.role) and window in (None, element.window):
                return element
        return None

    def windows(self):
        return {element.window for element in self.elements()}

    def view(self):
        """What the main window shows at the moment; None when there is no such window."""
        elements = [element for element in self.elements() if element.window == MAIN_TITLE]
        forward = next((element for element in elements if element.name == "Next photo"), None)
        if forward is None:
            return None
        # The number and the title stand right of the photo's arrows, in this order.
        beside = sorted((e for e in elements if e.role == "label" and e.top == forward.top and e.left >= forward.left),
                        key=lambda element: element.left)
        if len(beside) < 2:
            return None
        photo = next((e.name for e in elements if e.role == "graphic" and e.width > 300 * self._scale), "")
        focus = next((element.name for element in elements if element.focused), "")
        return View(title=beside[1].name, number=beside[0].name, photo=photo, focus=focus)

    # Waiting

    def wait_for(self, name, role=None, window=None, patience=PATIENCE):
        self._wait(lambda: self.find(name, role, window), f"{role or 'element'} {name!r}", patience)
        return self.find(name, role, window)

    def wait_for_none(self, name, role=None):
        self._wait(lambda: self.elements() and self.find(name, role) is None, f"no {role or 'element'} {name!r}",
                   PATIENCE)

    def wait_for_window(self, title, patience=PATIENCE):
        self._wait(lambda: title in self.windows(), f"a window {title!r}", patience)

    def wait_for_no_window(self, title):
        self._wait(lambda: title not in self.windows(), f"no window {title!r}", PATIENCE)

    def wait_for_view(self, **expected):
        """Waits until the main window shows all that is given: title, number, photo, focus."""
        seen = None

        def probe():
            nonlocal seen
            seen = self.view()
            return seen is not None and all(getattr(seen, name) == value for name, value in expected.items())

        self._wait(probe, lambda: f"a view of {expected}; it is {seen}", PATIENCE)
        return seen

    def wait_for_end(self):
        """Waits for the program's end and returns its exit code."""
        return self._process.wait(PATIENCE)

    def _wait(self, probe, what, patience):
        def probe_while_running():
            if self._process.poll() is not None:
                raise AssertionError(f"the program has ended with {self._process.returncode}")
            return probe()

        wait_until(probe_while_running, what, patience)

    # The user's hand

    def click(self, name, role="push button", button=1, window=None):
        self._wait(lambda: (found := self.find(name, role, window)) is not None and found.enabled,
                   f"{role} {name!r} to be enabled", PATIENCE)
        self.screen.press_mouse(*self.find(name, role, window).middle, button)

    def click_photo(self, button=1):
        self.click(self.view().photo, role="graphic", button=button)

    def activate(self, name, role="push button", window=None):
        """Presses as a screen reader does, without a mouse."""
        self._wait(lambda: (found := self.find(name, role, window)) is not None and found.enabled,
                   f"{role} {name!r} to be enabled", PATIENCE)
        activate_element(self.find(name, role, window))

    def press(self, *keys):
        self.screen.press_key(*keys)

    def choose(self, *path):
        """Opens the menus one after the other and clicks the last entry."""
        for entry in path:
            self.click(entry, role="menu item")

    def answer(self, button, title=BOX_TITLE):
        """Clicks a button of a message box and waits until the box is gone."""
        self.click(button, window=title)
        wait_until(lambda: self._process.poll() is not None or title not in self.windows(), f"the end of {title!r}")

    def start_browsing(self):
        """Waits through the splash until the first photo is on show."""
        return self.wait_for_view(title="1967", number="1", focus="68")

    @contextmanager
    def held(self):
        """What is on show stays so, however slow the machine is; the program sleeps meanwhile."""
        self._process.send_signal(signal.SIGSTOP)
        try:
            yield
        finally:
            self._process.send_signal(signal.SIGCONT)

    def kill(self):
        """Ends the program as a power failure would."""
        self._process.kill()
        self._process.wait()
