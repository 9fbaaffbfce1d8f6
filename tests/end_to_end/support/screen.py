"""A virtual screen with a window manager, and the hand of the user on it."""

import os
import re
import subprocess
import time
from dataclasses import dataclass

from support.managers import NONE, OPENBOX
from support.waiting import wait_until

# Whatever happens to the script, what it started ends with it.
_ENDS_WITH_US = ["setpriv", "--pdeathsig", "KILL"]


@dataclass(frozen=True)
class Area:
    left: int
    top: int
    width: int
    height: int

    @property
    def right(self):
        return self.left + self.width

    @property
    def bottom(self):
        return self.top + self.height

    @property
    def middle(self):
        return self.left + self.width / 2, self.top + self.height / 2

    def holds(self, other):
        return (self.left <= other.left and self.top <= other.top and
                other.right <= self.right and other.bottom <= self.bottom)


class Screen:
    """Measured in its own pixels, from the upper left corner."""

    def __init__(self, width=800, height=600, managed=True, manager=None, monitors=1):
        """A window manager runs on it, openbox unless told otherwise, or none. The monitors stand side by side
        and are equally wide."""
        self.width, self.height = width, height
        self.whole = Area(0, 0, width, height)
        self.monitor = Area(0, 0, width // monitors, height)
        self.manager = manager or (OPENBOX if managed else NONE)
        reading, writing = os.pipe()
        self._server = subprocess.Popen(
            [*_ENDS_WITH_US, "Xvfb", "-displayfd", str(writing), "-screen", "0", f"{width}x{height}x24",
             "-nolisten", "tcp", "-noreset"],
            pass_fds=[writing], stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            number = answer.readline().strip()
        if not number:
            raise RuntimeError("Xvfb does not start")
        self.environment = {**os.environ, "DISPLAY": f":{number}", "QT_QPA_PLATFORM": "xcb"}
        self._helpers = [self._server]
        if monitors > 1:
            self._divide(monitors)
        if self.manager.command:
            self._start_manager()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for process in reversed(self._helpers):
            process.terminate()
            process.wait()

    def _divide(self, monitors):
        width = self.width // monitors
        for index in range(monitors):
            # Millimetres stand behind the pixels; the first monitor takes the server's one output.
            self._run("xrandr", "--setmonitor", f"part{index}", f"{width}/300x{self.height}/200+{index * width}+0",
                      "none" if index else "screen")

    def _start_manager(self):
        self._helpers.append(subprocess.Popen(
            [*_ENDS_WITH_US, *self.manager.command], env=self.environment,
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        wait_until(self._is_managed, "the window manager")

    def _is_managed(self):
        answer = self._run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")
        return "window id" in answer

    def _run(self, *command):
        return subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL, text=True,
                              capture_output=True, check=True).stdout

    def _try(self, *command):
        """A command whose window may be gone by now; what it says."""
        return subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL, text=True,
                              capture_output=True, check=False).stdout

    def _mouse_at(self, x, y):
        """Words for xdotool. The mouse stays on the screen, as it does in a hand; windows may lie partly outside."""
        return "mousemove", *(str(min(max(round(at), 0), size - 1)) for at, size in ((x, self.width), (y, self.height)))

    def press_mouse(self, x, y, button=1):
        self._run("xdotool", *self._mouse_at(x, y), "click", str(button))

    def nudge_mouse(self, right, down):
        """Moves the mouse by so many pixels from where it is."""
        self._run("xdotool", "mousemove_relative", "--sync", "--", str(right), str(down))

    def double_click(self, x, y):
        self._run("xdotool", *self._mouse_at(x, y), "click", "--repeat", "2", "--delay", "40", "1")

    def drag_mouse(self, start, end):
        """Presses the left button at a place and lets go at another."""
        self._run("xdotool", *self._mouse_at(*start), "mousedown", "1", *self._mouse_at(*end), "mouseup", "1")

    def use_layout(self, layout):
        """The keyboard of another country: "us", "de"."""
        self._run("setxkbmap", layout)

    def press_key(self, *keys):
        """Keys by their X names: "period", "Escape", "alt+F4"."""
        self._run("xdotool", "key", "--clearmodifiers", *keys)

    def type_text(self, text):
        self._run("xdotool", "type", "--clearmodifiers", "--delay", "20", text)

    def windows_of(self, process):
        """The numbers of a process's visible windows."""
        return self._try("xdotool", "search", "--onlyvisible", "--pid", str(process)).split()

    def window_of(self, process):
        """The number of a process's one visible window."""
        windows = wait_until(lambda: self.windows_of(process), "a visible window")
        if len(windows) > 1:
            raise RuntimeError(f"the process has the windows {windows}")
        return windows[0]

    def find_window(self, title):
        """The number of the visible window of that title; empty when there is none."""
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", title], text=True,
                               env=self.environment, stdin=subprocess.DEVNULL, capture_output=True, check=False)
        return found.stdout.split("\n")[0]

    def place_of(self, window):
        """The left upper corner of a window without its frame."""
        return self._geometry_of(window, "Absolute upper-left X", "Absolute upper-left Y")

    def _property(self, window, name):
        place = ["-root"] if window is None else ["-id", window]
        return self._run("xprop", "-notype", *place, name).partition("=")[2].strip()

    def _geometry_of(self, window, *names):
        answer = self._run("xwininfo", "-id", window)
        lines = dict(line.strip().split(":", 1) for line in answer.splitlines() if ":" in line)
        return tuple(int(lines[name]) for name in names)

    def size_of(self, window):
        """Width and height of a window without its frame."""
        return self._geometry_of(window, "Width", "Height")

    def frame_of(self, window):
        """The area of a window with what the manager draws around it."""
        left, top = self.place_of(window)
        width, height = self.size_of(window)
        extents = self._property(window, "_NET_FRAME_EXTENTS")
        before, behind, above, below = map(int, extents.split(",")) if extents else (0, 0, 0, 0)
        return Area(left - before, top - above, width + before + behind, height + above + below)

    def states_of(self, window):
        """Such as MAXIMIZED_VERT, FULLSCREEN, ABOVE."""
        return set(re.findall(r"_NET_WM_STATE_(\w+)", self._property(window, "_NET_WM_STATE")))

    def is_placed_by_frame(self, window):
        """Whether the place that the program asked for last is that of the frame, not of the area inside."""
        return "gravity: NorthWest" in self._run("xprop", "-id", window, "WM_NORMAL_HINTS")

    def has_icon(self, window):
        return "Icon (" in self._property(window, "_NET_WM_ICON")

    def owner_of(self, window):
        """The number of the window that it stands over, as the manager is told; empty for none."""
        found = re.search(r"0x[0-9a-f]+", self._run("xprop", "-id", window, "WM_TRANSIENT_FOR"))
        return str(int(found[0], 16)) if found else ""

    def work_area(self):
        """The first monitor without the manager's panels."""
        answer = self._property(None, "_NET_WORKAREA")
        if not answer:
            return self.monitor
        left, top, width, height = map(int, answer.split(",")[:4])
        return Area(left, top, min(left + width, self.monitor.right) - left, height)

    def stack(self):
        """The windows from the lowest to the highest, as far as there is a manager to tell."""
        answer = self._run("xprop", "-notype", "-root", "_NET_CLIENT_LIST_STACKING")
        return [str(int(window, 16)) for window in re.findall(r"0x[0-9a-f]+", answer)]

    def change_state(self, window, change):
        """Has the manager change the state of a window: "add,maximized_vert,maximized_horz"."""
        self._run("wmctrl", "-i", "-r", hex(int(window)), "-b", change)

    def active_title(self):
        """The title of the window that has the keyboard; empty when none has it."""
        return self._try("xdotool", "getactivewindow", "getwindowname").rstrip("\n")

    def change_active_window(self, change, area):
        """Does what a person does to the window that has the keyboard: "maximize" (or back), "minimize", "move", "size"."""
        commands = {"maximize": ("wmctrl", "-r", ":ACTIVE:", "-b", "toggle,maximized_vert,maximized_horz"),
                    "minimize": ("xdotool", "getactivewindow", "windowminimize"),
                    "move": ("xdotool", "getactivewindow", "windowmove", "--", str(area.left), str(area.top)),
                    "size": ("xdotool", "getactivewindow", "windowsize", str(area.width), str(area.height))}
        self._try(*commands[change])

    def raise_window(self, title):
        """Brings a window to the front, a minimized one as well, and gives it the keyboard."""
        self._try("wmctrl", "-F", "-a", title)

    def put_window_back(self, title, width, height):
        """An ordinary window in the corner of the screen again, whatever was done to it."""
        self._try("wmctrl", "-F", "-r", title, "-b", "remove,maximized_vert,maximized_horz")
        self._try("wmctrl", "-F", "-r", title, "-e", f"0,0,0,{width},{height}")
        self.raise_window(title)

    def close_window(self, title):
        """Asks a window to close, as the button in its frame does."""
        self._try("wmctrl", "-F", "-c", title)

    def title_of(self, window):
        return self._run("xdotool", "getwindowname", window).rstrip("\n")

    def titles_of(self, window):
        """All that a manager may take for the title: the property of today's desktops and the older one."""
        return {self._property(window, name).removeprefix('"').removesuffix('"') for name in ("_NET_WM_NAME", "WM_NAME")}

    def move_window(self, window, left, top):
        """Moves the frame that the window manager has put around the window."""
        self._run("xdotool", "windowmove", window, str(left), str(top))

    def size_window(self, window, width, height):
        self._run("xdotool", "windowsize", window, str(width), str(height))

    def colour_at(self, x, y):
        """Red, green and blue, 0 to 255."""
        return tuple(self.pixels(x, y, 1, 1)[:3])

    def pixels(self, left, top, width, height):
        """A part of the screen as bytes, three to each pixel."""
        return subprocess.run([*self._picture_of(left, top, width, height), "-depth", "8", "rgb:-"], env=self.environment,
                              stdin=subprocess.DEVNULL, capture_output=True, check=True).stdout

    def count_colours(self, left, top, width, height):
        return int(self._run(*self._picture_of(left, top, width, height), "-format", "%k", "info:-"))

    @staticmethod
    def _picture_of(left, top, width, height):
        place = f"{round(width)}x{round(height)}+{round(left)}+{round(top)}"
        return ["import", "-silent", "-window", "root", "-crop", place, "+repage"]

    def save_picture(self, file):
        self._run("import", "-silent", "-window", "root", str(file))

    def save_still_picture(self, file):
        """When nothing moves any more: some managers let a window come in slowly."""
        def is_still():
            before = self.pixels(0, 0, self.width, self.height)
            time.sleep(0.5)
            self.save_picture(file)
            return self.pixels(0, 0, self.width, self.height) == before
        wait_until(is_still, "a picture in which nothing moves")
