#!/usr/bin/python3 -B
"""The keyboard works on a display without a window manager, where nobody hands it from window to window."""

from support.case import ProgramTest, run
from support.program import BOX_TITLE
from support.waiting import wait_until


class BareDisplay(ProgramTest):
    def setUp(self):
        super().setUp()
        self.disc = self.make_disc()
        self.program = self.start(self.make_screen(1024, 768, managed=False), self.disc.folder)
        self.program.start_browsing()

    def test_keys_answer_a_box_and_go_on_in_the_window_that_asked(self):
        for photo in self.disc.photos_of("72"):
            (self.disc.folder / "Torviks" / photo).unlink()
        self.program.click("72")
        self.program.wait_for("OK", window=BOX_TITLE)
        wait_until(lambda: self.program.find("OK").focused, "the focus in the box")
        self.program.press("Return")
        self.program.wait_for_no_window(BOX_TITLE)
        self.program.wait_for_view(title="1972", focus="73")
        self.program.press("space")
        self.program.wait_for_view(title="1973", photo="73A.JPG", focus="74")


if __name__ == "__main__":
    run()
