#!/usr/bin/python3 -B
"""A random user before a disc that is damaged, changed and pulled out: nothing may crash, hang or eat up the memory.

TORVIK_DRIVER_SECONDS says how long (60), TORVIK_DRIVER_SEED repeats what was seen, TORVIK_DISC names another disc than the
one of the build, TORVIK_DRIVER_PICTURE a file for what was on the screen when it failed."""

import itertools
import os
import random
import shutil
import signal
import time
from pathlib import Path

from support.case import ProgramTest, run
from support.program import MAIN_TITLE, SPLASH_TITLE, executable
from support.random_user import RandomUser
from support.spoken import activate_element
from support.unsteady_disc import UnsteadyDisc
from support.waiting import wait_until

SCREENS = [(800, 600), (1024, 768), (1280, 800)]
LONGEST_SILENCE = 60  # seconds without any answer; a copy or a booklet may take some
QUICK_ANSWER = 5  # seconds for the whole tree of a program that rests
MOST_GROWTH = 20  # MiB above the first measurement
OPENED_BY_MENU = [("Help", "Contents"), ("Help", "About"), ("File", "PrintBooklet"), ("File", "Install Screen saver"),
                  ("Literature", "Torvik Books")]
PLAYED = {("Movies",): "Play", ("Sound Effects",): "Backfiring"}
UNTRAPPED_FAILURE = "Run-time error"
WITHOUT_TRAP = ("SlideShow", "Slide Show", "Advertisement", "Print Photo", "Copy this photo")
CLOSERS = ("Retry", "No", "Cancel", "OK", "Close", "Exit")


class RandomUserTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.seconds = float(os.environ.get("TORVIK_DRIVER_SECONDS", 60))
        self.seed = int(os.environ.get("TORVIK_DRIVER_SEED", random.SystemRandom().randrange(1_000_000)))
        self.chances = random.Random(self.seed)
        original = Path(os.environ.get("TORVIK_DISC", executable().parents[1] / "disc"))
        shutil.copytree(original.parent / "program", self.program_folder,
                        ignore=shutil.ignore_patterns("torvik2001", "Torviks", "movies", "ssTorviks"))
        self.disc = UnsteadyDisc(original, self.folder / "disc", self.chances)
        self.screen = self.make_screen(*self.chances.choice(SCREENS))
        self.user = RandomUser(self.screen, self.chances)
        self.complaints = self.folder / "complaints.txt"
        self.starts = 0

    def test_nothing_crashes_hangs_or_grows(self):
        print(f"TORVIK_DRIVER_SEED={self.seed}, {self.seconds:.0f} seconds on {self.screen.width} by {self.screen.height}",
              flush=True)
        self.begin_time = time.monotonic()
        try:
            self.drive()
        except (AssertionError, RuntimeError) as failure:
            if picture := os.environ.get("TORVIK_DRIVER_PICTURE"):
                self.screen.save_picture(Path(picture))
            deeds = "\n  ".join(self.user.told)
            raise AssertionError(f"{failure}\nTORVIK_DRIVER_SEED={self.seed}; the last deeds were\n  {deeds}\n"
                                 f"The program said\n{self.complaint()[-6000:]}") from failure

    def drive(self):
        period = min(60, self.seconds / 3)
        next_check = period
        self.deeds = 0
        self.begin()
        while next_check <= self.seconds:
            self.do_something()
            self.look()
            if not self.may_go_on():
                self.begin()
            elif self.passed() >= next_check:
                next_check += period
                self.check()
        if self.come_to_rest():
            self.program.click("Exit", window=MAIN_TITLE)
            self.assertEqual(self.program.wait_for_end(), 0)
        self.assert_no_report()

    def passed(self):
        return time.monotonic() - self.begin_time

    def complaint(self):
        return self.complaints.read_text("utf-8", errors="replace") if self.complaints.exists() else ""

    # One run of the program after the other

    def begin(self):
        if self.chances.random() < 0.7:
            self.disc.restore()
        self.user.tell(f"--- start {self.starts + 1}")
        with open(self.complaints, "w", encoding="utf-8") as file:
            self.program = self.start(self.screen, "--scale", "1", "--print-to", self.make_print_folder(), self.disc.folder,
                                      complaints=file)
        self.starts += 1
        self.first_memory = None
        self.has_failed = False
        self.seen = []
        wait_until(lambda: self.program.exit_code() is not None or self.program.windows() - {SPLASH_TITLE, ""},
                   "the main window or a question")
        self.look()

    def make_print_folder(self):
        folder = self.folder / "printed"
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir()
        return folder

    def do_something(self):
        self.deeds += 1
        if self.chances.random() < 0.1:
            self.user.tell(self.disc.suffer())
        else:
            self.user.act(self.program, self.elements)

    def look(self):
        """The program has to show something, and nothing that says that it failed. Notes whether it may end now."""
        begin = time.monotonic()
        while True:
            self.elements = self.program.elements()
            if self.elements or self.program.exit_code() is not None:
                break
            if time.monotonic() - begin > LONGEST_SILENCE:
                os.kill(self.program.process, signal.SIGABRT)  # a sanitizer then tells where it was
                raise AssertionError(f"no answer for {LONGEST_SILENCE} seconds")
            time.sleep(0.1)
        self.look_at_failures()
        if self.elements:
            self.seen = [*self.seen[-2:], self.elements]

    def look_at_failures(self):
        """A failure that no trap meets may only come from what has none. It ends the program, so there is one at most; it is judged
        when it comes up, since nobody may close it for long."""
        failures = [element.name for element in self.elements if element.name.startswith(UNTRAPPED_FAILURE)]
        if failures and not self.has_failed:
            self.has_failed = True
            context = " ".join(self.user.told[-8:] + [element.window for element in self.elements])
            self.assertTrue(any(word in context for word in WITHOUT_TRAP), failures)

    def was_asked_to_end(self):
        """By Exit, by a question or failure that ends it, or by a press that came upon Exit by chance."""
        told = " ".join(self.user.told[-4:])
        if self.has_failed or "Exit" in told or "alt+F4" in told:
            return True
        return any(self.leads_to_the_end(element) for elements in self.seen for element in elements)

    def leads_to_the_end(self, element):
        if element.name == "Exit":
            x, y = self.user.place or (-1, -1)
            under_mouse = element.left <= x <= element.right and element.top <= y <= element.bottom
            return element.role == "menu item" and element.width > 0 or element.focused or under_mouse
        return element.name == "Retry" or "Successfully Removed" in element.name

    def may_go_on(self):
        """False when the program has ended in a right way; fails after any other end."""
        code = self.program.exit_code()
        if code is None:
            return True
        self.assertEqual(code, 0, "the program has ended by itself")
        self.assert_no_report()
        self.assertTrue(self.was_asked_to_end(), "the program has ended, and nobody asked it to")
        self.user.tell("--- it has ended")
        print(f"{self.passed():5.0f} s: it has ended after {self.user.told[-2]}", flush=True)
        return False

    def assert_no_report(self):
        for word in ("Sanitizer", "runtime error:"):
            self.assertNotIn(word, self.complaint())

    # The look at it after each minute

    def check(self):
        self.user.tell("--- check")
        if not self.come_to_rest():
            return
        answer = min(self.time_answer() for _ in range(3))
        crowd = max(1, os.getloadavg()[0] / os.cpu_count())  # other work on the machine holds up every answer
        self.assertLess(answer, QUICK_ANSWER * crowd, "seconds for an answer")
        self.assert_obeys()
        if self.first_memory is None:
            self.open_everything()
            self.assert_obeys()  # the photos round the year are read ahead, as they will be at every further look
        if not self.come_to_rest():
            return
        time.sleep(2)
        memory = self.program.memory()
        self.first_memory = self.first_memory or memory
        print(f"{self.passed():5.0f} s: {self.deeds} deeds, start {self.starts}, {memory:.0f} MiB ({memory - self.first_memory:+.0f}), "
              f"answers in {answer:.2f} s", flush=True)
        self.assertLess(memory - self.first_memory, MOST_GROWTH, "MiB more than at the first look")
        self.assert_no_report()

    def time_answer(self):
        begin = time.monotonic()
        self.assertTrue(self.program.elements())
        return time.monotonic() - begin

    def open_everything(self):
        """What the program keeps once it has been used (fonts, decoders, the index of words) is there from now on."""
        for button in ("Description", "Advertisement", "SlideShow"):
            self.program.activate(button, window=MAIN_TITLE)
            self.rest_after_opening()
        for path in OPENED_BY_MENU:
            self.program.choose(*path)
            self.rest_after_opening()
        for path, button in PLAYED.items():
            self.program.choose(*path)
            self.program.activate(button)
            self.rest_after_opening()
        self.program.press("ctrl+f")
        self.program.wait_for_window("Find")
        self.screen.type_text("e")  # which nearly everything on the disc has
        self.rest_after_opening()

    def rest_after_opening(self):
        time.sleep(1)
        self.assertTrue(self.come_to_rest())

    def assert_obeys(self):
        """A year button and the Tab key do what they always do."""
        year = self.chances.choice(["72", "85", "99"])
        self.program.activate(year, window=MAIN_TITLE)
        wait_until(lambda: self.come_to_rest() and self.program.view().title == f"19{year}", f"the year 19{year}")
        # Selecting a year asks once more when the list was made without its photos.
        focus = wait_until(lambda: self.come_to_rest() and self.focus(),
                           lambda: f"a focus; it is on {[(e.role, e.name) for e in self.elements if e.focused]}")
        self.program.press("Tab")
        wait_until(lambda: self.focus() not in ("", focus), f"the focus to leave {focus!r}")

    def focus(self):
        """Without the menus: one that was pressed while it was grey counts as focused until the mouse is elsewhere."""
        return next((e.name for e in self.program.elements() if e.focused and e.role != "menu item"), "")

    def come_to_rest(self):
        """The whole disc is back and only the main window is open. False when the program has ended on the way."""
        self.disc.restore()
        begin = time.monotonic()
        self.screen.press_key("Escape", "Escape")
        for attempt in itertools.count():
            self.look()
            if not self.may_go_on():
                self.begin()
                return False
            if self.close_one_thing(attempt):
                if time.monotonic() - begin > 3 * LONGEST_SILENCE:
                    raise AssertionError(f"cannot close all windows: {sorted({e.window for e in self.elements})}; the keyboard is in "
                                         f"{self.screen.active_title()!r}")
            else:
                self.screen.put_window_back(MAIN_TITLE, 800, 570)
                return True

    def close_one_thing(self, attempt):
        """Closes a window or panel, each time in another way; False when only the main window is open."""
        windows = {element.window for element in self.elements if element.window}
        closers = [e for e in self.elements if e.role == "push button" and e.name in CLOSERS and e.enabled and
                   not self.is_exit_of_main_window(e)]
        if windows == {MAIN_TITLE} and not closers and not self.is_copying():
            return False
        front = self.screen.active_title()
        others = sorted(windows - {MAIN_TITLE})
        if front not in (others or [MAIN_TITLE]):  # it may be minimized
            front = others[attempt % len(others)] if others else MAIN_TITLE
            self.screen.raise_window(front)
        closer = min((e for e in closers if e.window == front), key=lambda e: CLOSERS.index(e.name), default=None)
        if closer is not None and attempt % 4 == 0:
            self.screen.press_mouse(*closer.middle)
        elif closer is not None and attempt % 4 == 1:
            activate_element(closer)  # it may lie outside the screen
        elif attempt % 4 == 2 and front != MAIN_TITLE:
            self.screen.close_window(front)
        else:
            self.screen.press_key("Escape")
        return True

    def is_exit_of_main_window(self, element):
        """Beside the button of the slide show; the panels have an Exit of their own."""
        show = next((e for e in self.elements if e.window == MAIN_TITLE and e.name == "SlideShow"), None)
        return element.window == MAIN_TITLE and element.name == "Exit" and show is not None and element.top == show.top

    def is_copying(self):
        return any(element.name == "Copying file:" for element in self.elements)


if __name__ == "__main__":
    run()
