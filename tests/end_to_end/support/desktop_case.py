"""How the program's windows stand on a desktop: the same checks for each manager and each size of the screen."""

import itertools
import os
from pathlib import Path

from support.case import ProgramTest
from support.managers import OPENBOX, XFWM4
from support.program import BOX_TITLE, MAIN_TITLE, SPLASH_TITLE
from support.waiting import wait_until

SHOW_TITLE = "The Torvik Vollandry Slide Show"
MAXIMIZED = {"MAXIMIZED_VERT", "MAXIMIZED_HORZ"}


class DesktopCase(ProgramTest):
    """The subclass calls `check_desktop` for a manager and a screen."""

    def check_desktop(self, manager, width, height, monitors=1):
        self.manager = manager
        self.screen = self.make_screen(width, height, manager=manager, monitors=monitors)
        self.fits = self.screen.work_area().width >= 820 and self.screen.work_area().height >= 640
        self.disc = self.make_disc()
        self.write_article()
        # As large as drawn, so that the places do not depend on the choice for a dense screen.
        self.program = self.start(self.screen, "--scale", "1", self.disc.folder)
        self.check_splash()
        self.program.start_browsing()
        self.main = self.window(MAIN_TITLE)
        self.check_main_window()
        self.keep_picture(f"{manager.name}-{width}x{height}" + ("-two" if monitors > 1 else ""))
        self.check_viewer()
        self.check_box()
        self.check_play_list()
        self.check_slide_show()
        if manager.maximizes:
            self.check_slide_show_over_maximized_window()
        if (width, height) == (800, 600) and manager.covers_screen:
            self.check_hidden_task_bar()
            self.check_full_screen_ended_by_desktop()
            self.check_full_screen_ended_by_desktop("add,maximized_vert,maximized_horz")
        self.check_saved_place()

    def write_article(self):
        texts = self.disc.folder / "RichText"
        texts.mkdir()
        (texts / "67desc.rtf").write_text(r"{\rtf1\ansi Description of 1967.}", "ascii")

    def keep_picture(self, name):
        """Leaves a picture of the screen where the tour collects them."""
        folder = os.environ.get("TORVIK_DESKTOP_PICTURES")
        if folder:
            Path(folder).mkdir(parents=True, exist_ok=True)
            self.screen.save_still_picture(Path(folder) / f"{name}.png")

    def window(self, title):
        return wait_until(lambda: self.screen.find_window(f"^{title}$"), f"a window {title!r}")

    def press(self, button, window):
        """By mouse, or as a screen reader does where the mouse cannot come."""
        self.program.wait_for(button, window=window)
        across, down = self.program.find(button, window=window).middle
        if across < self.screen.width and down < self.screen.height:
            self.program.click(button, window=window)
        else:
            self.program.activate(button, window=window)

    def frame(self, window):
        return self.screen.frame_of(window)

    def assert_near(self, one, other, what, tolerance=1):
        for a, b in zip(one, other):
            self.assertLessEqual(abs(a - b), tolerance, f"{what}: {one}, not {other}")

    def assert_above(self, upper, lower):
        if self.manager.command:
            wait_until(lambda: self.screen.stack().index(upper) > self.screen.stack().index(lower),
                       "the window to be in front")

    def assert_asleep(self):
        """A click on a year of the main window does nothing while something modal stands over it."""
        photo = self.program.view()
        place = next(e for e in self.program.elements() if e.window == MAIN_TITLE and e.name == "89").middle
        if place[0] < self.screen.width and place[1] < self.screen.height:
            self.screen.press_mouse(*place)
        self.assertEqual(self.program.view().title, photo.title)

    def check_splash(self):
        splash = self.window(SPLASH_TITLE)
        wait_until(lambda: self.frame(splash).width > 100, "the splash")
        self.assert_near(self.frame(splash).middle, self.screen.monitor.middle, "the middle of the splash", 2)
        self.assertTrue(self.screen.has_icon(splash))

    def check_main_window(self):
        self.assertTrue(self.screen.has_icon(self.main))
        if self.fits:
            self.assertEqual(self.screen.states_of(self.main) & MAXIMIZED, set())
            self.assertTrue(self.screen.work_area().holds(self.frame(self.main)), self.frame(self.main))

    def check_viewer(self):
        self.program.click("Description")
        self.program.wait_for("Description of 1967.")
        title = next(e.window for e in self.program.elements() if e.name == "Description of 1967.")
        viewer = self.window(title)
        self.assert_above(viewer, self.main)
        self.assertTrue(self.screen.has_icon(viewer))
        self.assert_asleep()
        self.program.click("OK", window=title)
        self.program.wait_for_no_window(title)

    def check_box(self):
        self.program.click("Statistics")
        self.program.wait_for("OK", window=BOX_TITLE)
        box = self.window(BOX_TITLE)
        self.assert_above(box, self.main)
        self.assertTrue(self.screen.has_icon(box))
        self.assert_asleep()
        self.program.answer("OK")

    def check_play_list(self):
        self.program.click_photo(button=3)
        self.program.wait_for("Add this photo to list")
        found = [e.window for e in self.program.elements() if e.name == "Add this photo to list"]
        play_list = self.window(found[0])
        if self.manager.keeps_on_top:
            wait_until(lambda: "ABOVE" in self.screen.states_of(play_list), "the play list on top")
            self.press("68", MAIN_TITLE)
            self.program.wait_for_view(title="1968")
            self.assert_above(play_list, self.main)
        self.program.click("Exit", window=found[0])
        self.program.wait_for_none("Add this photo to list")

    def open_show(self):
        self.press("SlideShow", MAIN_TITLE)
        self.program.wait_for_window(SHOW_TITLE)
        return self.window(SHOW_TITLE)

    def assert_show_on_main_window(self):
        """Some managers draw a narrower frame around a window that the user cannot size."""
        show = self.open_show()
        self.assertTrue(self.screen.has_icon(show))
        places = lambda: [(area.left, area.top, *self.screen.size_of(window)) for window in (show, self.main)
                          for area in [self.frame(window)]]
        wait_until(lambda: places()[0] == places()[1], lambda: f"the show on the main window: {places()}")
        placed_by_frame = self.screen.is_placed_by_frame(show)
        self.press("Exit", SHOW_TITLE)
        self.program.wait_for_no_window(SHOW_TITLE)
        return placed_by_frame

    def check_slide_show(self):
        if self.fits:
            self.screen.move_window(self.main, 12, 31)
            wait_until(lambda: self.frame(self.main).left > 0, "the new place")
        placed_by_frame = self.assert_show_on_main_window()
        if self.fits and self.manager in (OPENBOX, XFWM4):
            self.assertTrue(placed_by_frame, "the show stood beside its place first and was put right")

    def check_slide_show_over_maximized_window(self):
        at_once = MAXIMIZED <= self.screen.states_of(self.main)  # because it fills the screen
        self.screen.change_state(self.main, "add,maximized_vert,maximized_horz")
        wait_until(lambda: MAXIMIZED <= self.screen.states_of(self.main), "the maximized window")
        area = self.screen.work_area() if self.manager.divides_screen else self.screen.whole
        wait_until(lambda: self.frame(self.main) == area, lambda: f"{area}; it is {self.frame(self.main)}")
        self.assert_show_on_main_window()
        if at_once:
            return
        self.screen.change_state(self.main, "remove,maximized_vert,maximized_horz")
        wait_until(lambda: not MAXIMIZED & self.screen.states_of(self.main), "the ordinary window")

    def hide_task_bar(self):
        self.program.click("HideStatusBar", role="menu item")
        wait_until(lambda: "FULLSCREEN" in self.screen.states_of(self.main), "the window on the whole screen")
        wait_until(lambda: self.frame(self.main) == self.screen.monitor, "the whole screen")

    def check_hidden_task_bar(self):
        self.hide_task_bar()
        self.program.click("ShowStatusBar", role="menu item")
        wait_until(lambda: "FULLSCREEN" not in self.screen.states_of(self.main), "the window in its frame")
        self.program.wait_for("HideStatusBar", role="menu item")

    def check_full_screen_ended_by_desktop(self, *changes_before):
        """The entry keeps its caption until the window gets another size."""
        for change in changes_before:
            self.screen.change_state(self.main, change)
            wait_until(lambda: MAXIMIZED <= self.screen.states_of(self.main), "the maximized window")
        self.hide_task_bar()
        self.program.wait_for("ShowStatusBar", role="menu item")
        self.screen.change_state(self.main, "remove,fullscreen")
        wait_until(lambda: "FULLSCREEN" not in self.screen.states_of(self.main), "the window in its frame")
        self.assertIsNotNone(self.program.find("ShowStatusBar", role="menu item"))
        self.screen.change_state(self.main, "remove,maximized_vert,maximized_horz")
        wait_until(lambda: not MAXIMIZED & self.screen.states_of(self.main), "the ordinary window")
        before = self.screen.size_of(self.main)
        steps = itertools.count(1)

        def drag_edge():
            """One of the many sizes on the way of a hand; the first ones may fall together with the desktop's own."""
            self.screen.size_window(self.main, before[0] - 4 * (next(steps) % 50), 500)
            return self.program.find("HideStatusBar", role="menu item")

        wait_until(drag_edge, "the entry to be HideStatusBar again")
        self.screen.size_window(self.main, *before)
        wait_until(lambda: self.screen.size_of(self.main) == before,
                   lambda: f"{before}; it is {self.screen.size_of(self.main)}")

    def check_saved_place(self):
        if self.fits:
            self.screen.move_window(self.main, 16, 27)
            wait_until(lambda: self.frame(self.main).left == 16, "the new place")
        place = self.frame(self.main)
        self.press("Exit", MAIN_TITLE)
        self.assertEqual(self.program.wait_for_end(), 0)
        self.program = self.start(self.screen, self.disc.folder)
        self.program.start_browsing()
        self.main = self.window(MAIN_TITLE)
        if self.screen.work_area().holds(place):
            wait_until(lambda: self.frame(self.main) == place,
                       lambda: f"the saved place {place}; it is {self.frame(self.main)}")
        else:  # a manager may maximize a window that is larger than the screen
            wait_until(lambda: (self.frame(self.main).left, self.frame(self.main).top) == (place.left, place.top),
                       lambda: f"the corner of the saved place {place}; it is {self.frame(self.main)}")
        self.press("Exit", MAIN_TITLE)
        self.assertEqual(self.program.wait_for_end(), 0)
