#!/usr/bin/python3 -B
"""The main window comes back where the user left it."""

import configparser

from support.case import ProgramTest, run
from support.program import MAIN_TITLE
from support.waiting import wait_until

TWIPS = 15  # to the pixel
CAPTION = 19  # pixels that a form's height counts above its client area


class Placement(ProgramTest):
    def window(self, program):
        return next((e for e in program.elements() if e.window == MAIN_TITLE), None)

    def wait_for_place(self, program, place):
        def placed():
            window = self.window(program)
            return window is not None and (window.left, window.top, window.width, window.height) == place
        wait_until(placed, lambda: f"{place}; the window is {self.window(program)}")

    def settings(self):
        store = configparser.ConfigParser()
        store.optionxform = str
        store.read(self.folder / "home" / "config" / "The Torvik Vollandry 2001.ini")
        return {key: float(value) for key, value in store["Settings"].items()}

    def test_exit_saves_the_placement_and_the_next_start_restores_it(self):
        disc = self.make_disc()
        screen = self.make_screen(800, 600)
        program = self.start(screen, disc.folder)
        program.start_browsing()
        window = screen.window_of(program.process)
        screen.size_window(window, 792, 560)
        wait_until(lambda: self.window(program).width == 792, "the new size")
        screen.move_window(window, 4, 30)
        wait_until(lambda: self.window(program).top >= 30, "the new place")
        left = self.window(program)

        program.click("Exit")
        self.assertEqual(program.wait_for_end(), 0)
        stored = self.settings()
        self.assertEqual(stored["MainWidth"], 792 * TWIPS)
        self.assertEqual(stored["MainHeight"], (560 + CAPTION) * TWIPS)

        again = self.start(screen, disc.folder)
        again.start_browsing()
        self.wait_for_place(again, (left.left, left.top, left.width, left.height))
        again.choose("File", "Exit")
        self.assertEqual(again.wait_for_end(), 0)
        self.assertEqual(self.settings(), stored)

    def test_the_close_box_saves_as_exit_does(self):
        disc = self.make_disc()
        program = self.start(self.make_screen(800, 600), disc.folder)
        program.start_browsing()
        program.press("alt+F4")
        self.assertEqual(program.wait_for_end(), 0)
        self.assertEqual(set(self.settings()), {"MainLeft", "MainTop", "MainWidth", "MainHeight"})


if __name__ == "__main__":
    run()
