#!/usr/bin/python3 -B
"""The start: splash, main window, one instance at a time."""

import time

from support.case import ProgramTest, run
from support.program import MAIN_TITLE, SPLASH_TITLE


class Start(ProgramTest):
    def test_the_splash_stands_for_five_seconds_before_the_first_photo_of_1967(self):
        disc = self.make_disc()
        screen = self.make_screen(1024, 768)
        begin = time.monotonic()
        program = self.start(screen, disc.folder)
        program.wait_for_window(SPLASH_TITLE)
        self.assertNotIn(MAIN_TITLE, program.windows())

        program.wait_for_window(MAIN_TITLE)
        self.assertGreaterEqual(time.monotonic() - begin, 5.0)
        view = program.start_browsing()
        self.assertEqual(view.photo, "67A.JPG")
        self.assertNotIn(SPLASH_TITLE, program.windows())
        self.assertEqual(screen.title_of(screen.window_of(program.process)), MAIN_TITLE)
        photo = program.find("67A.JPG")
        self.assert_colour(screen, photo.middle, disc.photos["67A.JPG"])

    def test_closing_the_splash_ends_the_program_and_the_next_start_is_not_refused(self):
        disc = self.make_disc()
        screen = self.make_screen()
        closed = self.start(screen, disc.folder)
        closed.wait_for_window(SPLASH_TITLE)
        screen.window_of(closed.process)
        closed.press("alt+F4")
        self.assertEqual(closed.wait_for_end(), 0)

        program = self.start(screen, disc.folder)
        program.start_browsing()

    def test_a_second_instance_is_refused_and_the_first_goes_on(self):
        disc = self.make_disc()
        screen = self.make_screen()
        first = self.start(screen, disc.folder)
        first.start_browsing()

        second = self.start(screen, disc.folder)
        second.wait_for("The Torvik Vollandry is already running!", window=SPLASH_TITLE)
        second.click("OK")
        self.assertEqual(second.wait_for_end(), 0)
        first.click("69")
        first.wait_for_view(title="1969", photo="69A.JPG")

    def test_a_program_that_was_killed_does_not_block_the_next_start(self):
        disc = self.make_disc()
        screen = self.make_screen()
        killed = self.start(screen, disc.folder)
        killed.start_browsing()
        killed.kill()

        program = self.start(screen, disc.folder)
        program.start_browsing()


if __name__ == "__main__":
    run()
