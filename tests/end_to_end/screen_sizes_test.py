#!/usr/bin/python3 -B
"""The main window can be used on small, usual and dense screens."""

from support.case import ProgramTest, run
from support.program import MAIN_TITLE
from support.waiting import wait_until


class ScreenSizes(ProgramTest):
    def browse_on(self, width, height, scale=1):
        screen = self.make_screen(width, height)
        program = self.start(screen, self.make_disc().folder, scale=scale)
        program.start_browsing()
        return screen, program

    def assert_whole(self, screen, program):
        """Each control lies inside its window and the window's inside lies on the screen."""
        elements = [element for element in program.elements() if element.window == MAIN_TITLE]
        window = elements[0]
        self.assertGreater(len(elements), 50)
        for element in elements:
            if element.role in ("push button", "label", "graphic", "menu item"):
                self.assertGreaterEqual(element.left, window.left, element)
                self.assertGreaterEqual(element.top, window.top, element)
                self.assertLessEqual(element.right, min(window.right, screen.width), element)
                self.assertLessEqual(element.bottom, min(window.bottom, screen.height), element)

    def assert_usable(self, program):
        program.click("01")
        program.wait_for_view(title="2001", photo="A1A.JPG")
        program.press("period")
        program.wait_for_view(title="2001", photo="A1B.JPG", number="2")
        program.click("Exit")
        self.assertEqual(program.wait_for_end(), 0)

    def test_800_by_600(self):
        screen, program = self.browse_on(800, 600)
        self.assert_whole(screen, program)
        self.assertTrue(program.find("HideStatusBar", role="menu item").enabled)
        self.assert_usable(program)

    def test_1024_by_768(self):
        screen, program = self.browse_on(1024, 768)
        self.assert_whole(screen, program)
        self.assertFalse(program.find("HideStatusBar", role="menu item").enabled)
        self.assert_usable(program)

    def test_3840_by_2160_at_twice_the_size(self):
        screen, program = self.browse_on(3840, 2160, scale=2)
        self.assert_whole(screen, program)
        window = next(element for element in program.elements() if element.window == MAIN_TITLE)
        self.assertGreater(window.width, 1590)
        self.assert_usable(program)

    def test_on_640_by_480_the_keys_work_what_lies_outside(self):
        screen, program = self.browse_on(640, 480)
        program.press("space")
        wait_until(lambda: program.view().title != "1967", "another year")
        program.press("period")
        program.wait_for_view(number="2")
        program.press("alt+F4")
        self.assertEqual(program.wait_for_end(), 0)


if __name__ == "__main__":
    run()
