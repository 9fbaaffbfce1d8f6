#!/usr/bin/python3 -B
"""A whole slide show: running, paused, by jumps, and each way back to the main window."""

from support.case import ProgramTest, run
from support.program import BOX_TITLE, MAIN_TITLE
from support.waiting import wait_until

SHOW_TITLE = "The Torvik Vollandry Slide Show"
REPORT = ("Error number: ER017\r\n\r\n Unable to load Slide Show photo.\r\n\r\n"
          "Make sure that the Torvik Vollandry is in the CDROM drive.")


class SlideShow(ProgramTest):
    def open_show(self, further=()):
        self.disc = self.make_disc(further)
        self.order = sorted(self.disc.photos)
        self.screen = self.make_screen()
        self.program = self.start(self.screen, self.disc.folder)
        self.program.start_browsing()
        self.program.click("SlideShow")
        self.wait_for_slide(1)

    def slow_down(self):
        """Five seconds for each photo, so that a slow machine can look at them."""
        for seconds in (2, 3, 4, 5):
            self.press("Longer delay")
            self.program.wait_for(f"{seconds} seconds", window=SHOW_TITLE)

    def press(self, button):
        self.program.click(button, window=SHOW_TITLE)

    def slide(self):
        """The photo that the show shows, its place, and all captions; None while there is no show."""
        elements = [element for element in self.program.elements() if element.window == SHOW_TITLE]
        photo = next((e for e in elements if e.role == "graphic"), None)
        position = next((e.name for e in elements if " of " in e.name), None)
        return photo and (photo.name, position, {element.name for element in elements})

    def wait_for_slide(self, number, title=None):
        """Waits for a photo by its place, 1 for the first, and looks at its colour on the screen."""
        photo, position = self.order[number - 1], f"{number} of {len(self.order)}"

        def shows():
            seen = self.slide()
            return seen and seen[:2] == (photo, position) and (title is None or title in seen[2])

        wait_until(shows, f"{photo} as {position}, {title}")
        self.assert_colour(self.screen, self.program.find(photo, window=SHOW_TITLE).middle, self.disc.photos[photo])

    def is_enabled(self, *buttons):
        return [self.program.find(button, window=SHOW_TITLE).enabled for button in buttons]

    def place(self, photo):
        return self.order.index(photo) + 1

    def test_a_show_runs_pauses_and_jumps(self):
        self.open_show()
        last = len(self.order)
        self.slow_down()
        self.press("Play")
        self.wait_for_slide(2, "1967 ")
        self.assertEqual(self.is_enabled("Backward", "Forward", "Jump backward", "Jump forward", "Beginning", "Middle"),
                         [False] * 6)
        self.assertEqual(self.is_enabled("Play", "Pause", "Exit with this photo", "Exit"), [True] * 4)
        self.wait_for_slide(3, "1968 ")
        self.press("Pause")
        wait_until(lambda: self.is_enabled("Forward") == [True], "the pause")
        held = self.place(self.slide()[0])
        self.assertEqual(self.is_enabled("Pause"), [False])
        self.press("Forward")
        self.wait_for_slide(held + 1)
        self.press("Backward")
        self.wait_for_slide(held)
        self.press("Jump forward")
        self.wait_for_slide(held + 10)
        self.press("Jump backward")
        self.wait_for_slide(held)
        self.press("Jump backward")
        self.wait_for_slide(last, "Torvik Postage Stamps ")
        self.press("Jump forward")
        self.wait_for_slide(1, "1967 ")
        self.press("Middle")
        self.wait_for_slide(round(last / 2))
        self.press("Beginning")
        self.wait_for_slide(1, "1967")
        self.program.press("period", "period", "comma")
        self.wait_for_slide(2)

    def test_the_delay_is_chosen_while_the_show_pauses(self):
        self.open_show()
        self.program.wait_for(" 1 second", window=SHOW_TITLE)
        self.press("Longer delay")
        self.program.wait_for("2 seconds", window=SHOW_TITLE)
        self.press("Shorter delay")
        self.press("Shorter delay")
        self.program.wait_for("60 seconds", window=SHOW_TITLE)
        self.press("Play")
        wait_until(lambda: self.is_enabled("Longer delay") == [False], "the show to run")

    def test_the_bars_exit_returns_with_the_photo_of_a_year(self):
        self.open_show()
        self.program.press(*["period"] * 4)
        self.wait_for_slide(5, "1969 ")
        self.press("Exit with this photo")
        self.program.wait_for_no_window(SHOW_TITLE)
        self.program.wait_for_view(title="1969 ", number="1", photo="69A.JPG", focus="70")
        self.assertTrue(self.program.find("Engines", window=MAIN_TITLE).enabled)
        self.program.click("Next photo")
        self.program.wait_for_view(title="1969 ", number="2", photo="69B.JPG")

    def test_the_bars_exit_from_a_running_show_returns_with_the_photo_on_show(self):
        self.open_show()
        self.slow_down()
        self.press("Play")
        self.wait_for_slide(2)
        self.press("Exit with this photo")
        self.program.wait_for_view(title="1967 ", number="2", photo="67B.JPG", focus="68")

    def test_the_bars_exit_returns_with_the_photo_of_a_topic(self):
        self.open_show()
        self.program.press("comma")
        self.wait_for_slide(len(self.order), "Torvik Postage Stamps ")
        self.press("Exit with this photo")
        self.program.wait_for_view(title="Torvik Postage Stamps ", number="2", photo="ZZB.JPG", focus="1967")
        self.assertFalse(self.program.find("Options", window=MAIN_TITLE).enabled)
        self.assertTrue(self.program.find("Description", window=MAIN_TITLE).enabled)
        self.program.click("Previous photo")
        self.program.wait_for_view(title="Torvik Postage Stamps ", number="1", photo="ZZA.JPG")

    def test_a_photo_that_no_caption_fits_is_reported_on_the_return(self):
        self.open_show(further=["TC"])
        number = self.place("TCA.JPG")
        for _ in range(len(self.order) - number + 1):
            self.program.press("comma")
        self.wait_for_slide(number, "19TC ")
        main = self.screen.find_window(f"^{MAIN_TITLE}$")
        self.press("Exit with this photo")
        self.program.wait_for(REPORT, window=BOX_TITLE)
        # The show has gone, but the desktop may not have said so yet: below a gone window nobody would reach the box.
        self.assertEqual(self.screen.owner_of(self.screen.find_window(f"^{BOX_TITLE}$")), main)
        wait_until(lambda: self.screen.active_title() == BOX_TITLE, "the keyboard in the box")
        self.program.answer("OK")
        self.program.wait_for_view(title="19TC ", number="1", photo="TCA.JPG")
        self.program.click("68")
        self.program.wait_for_view(title="1968", number="1", photo="68A.JPG", focus="69")

    def test_the_exit_button_keeps_the_photo_of_the_main_window(self):
        self.open_show()
        self.press("Jump forward")
        self.wait_for_slide(11)
        self.press("Exit")
        self.program.wait_for_no_window(SHOW_TITLE)
        self.program.wait_for_view(title="1967", number="1", photo="67A.JPG")

    def test_a_photo_that_vanishes_is_reported_once_and_the_old_one_stays(self):
        self.open_show()
        (self.disc.folder / "Torviks" / "67B.JPG").unlink()
        self.press("Play")
        self.program.wait_for(REPORT.replace("ER017", "ER016"), window=BOX_TITLE)
        self.assertEqual(self.slide()[0], "67A.JPG")
        boxes = [element for element in self.program.elements() if element.name == "OK"]
        self.assertEqual(len(boxes), 1)


if __name__ == "__main__":
    run()
