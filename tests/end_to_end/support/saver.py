"""The screen saver on a virtual screen."""

import subprocess

from support.program import executable
from support.session import home_variables
from support.waiting import PATIENCE, wait_until

FILE_NAME = "Torvik2001.scr"


def built_saver():
    return executable().parent / FILE_NAME


def installed_saver(home):
    """Where the installation puts it for the user whose home this is."""
    return home / "data" / "torvik2001" / "windows" / FILE_NAME


def write_settings(home, interval, folder):
    """What an installation would write. The folder is a drive path, or a path of this machine."""
    drive_path = folder if isinstance(folder, str) else "C:" + str(folder).replace("/", "\\") + "\\"
    file = home / "config" / "SCRNSAVE: The Torvik Vollandry 2001.ini"
    file.parent.mkdir(parents=True, exist_ok=True)
    escaped = drive_path.replace("\\", "\\\\")
    file.write_text(f"[Settings]\nInterval={interval}\nTorviksDir={escaped}\n", encoding="utf-8")


class Saver:
    """One run of it."""

    def __init__(self, screen, home, *arguments, file=None, scale=1, **variables):
        home.mkdir(exist_ok=True)
        surroundings = {**screen.environment, **home_variables(home), "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
                        **variables}
        if scale != 1:
            surroundings["QT_SCALE_FACTOR"] = str(scale)
        self.screen = screen
        self._process = subprocess.Popen(
            ["setpriv", "--pdeathsig", "KILL", str(file or built_saver()), *map(str, arguments)],
            env=surroundings, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self._process.poll() is None:
            self._process.kill()
        self._process.communicate()

    @property
    def process(self):
        return self._process.pid

    def is_running(self):
        return self._process.poll() is None

    def wait_for_end(self):
        """Its exit code and what it has said."""
        said, complained = self._process.communicate(timeout=PATIENCE)
        return self._process.returncode, said, complained

    def wait_for_colour(self, place, colours, what):
        """Waits until the pixel has one of the colours, and returns its place in the list."""
        seen = None

        def probe():
            nonlocal seen
            if not self.is_running():
                raise AssertionError(f"the saver has ended: {self.wait_for_end()}")
            seen = self.screen.colour_at(*place)
            return [index for index, colour in enumerate(colours) if is_alike(seen, colour)]

        return wait_until(probe, lambda: f"{what} in {colours}; it is {seen}")[0]


def is_alike(seen, expected):
    """A JPEG picture keeps its colours nearly, not exactly."""
    return all(abs(a - b) <= 6 for a, b in zip(seen, expected))
