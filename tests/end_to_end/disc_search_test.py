#!/usr/bin/python3 -B
"""What happens when the disc is not there at the start."""

from support.case import ProgramTest, run
from support.program import BOX_TITLE, MAIN_TITLE, SPLASH_TITLE
from support.small_disc import SmallDisc

QUESTION = ("Error number: ER001\r\n\r\n Unable to detect the Torvik Vollandry CDROM."
            "\r\n\r\nMake sure that the Torvik Vollandry is in the CDROM drive.")


class DiscSearch(ProgramTest):
    def setUp(self):
        super().setUp()
        self.drive = self.folder / "drive"
        self.drive.mkdir()
        self.program = self.start(self.make_screen(), f"--drive=G={self.drive}")

    def wait_for_question(self):
        self.program.wait_for_window(BOX_TITLE)
        texts = {element.name.replace("\r", "") for element in self.program.elements() if element.role == "label"}
        self.assertIn(QUESTION.replace("\r", ""), texts)
        self.assertNotIn(SPLASH_TITLE, self.program.windows())

    def test_cancel_ends_the_program(self):
        self.wait_for_question()
        self.program.answer("Cancel")
        self.assertEqual(self.program.wait_for_end(), 0)

    def test_retry_without_a_disc_asks_again(self):
        self.wait_for_question()
        self.program.click("Retry", window=BOX_TITLE)
        self.wait_for_question()
        self.program.answer("Cancel")
        self.assertEqual(self.program.wait_for_end(), 0)

    def test_retry_finds_a_disc_that_has_appeared_and_the_splash_comes_back(self):
        self.wait_for_question()
        SmallDisc(self.folder / "burning").folder.joinpath("Torviks").rename(self.drive / "TORVIKS")
        self.program.answer("Retry")
        self.program.wait_for_window(SPLASH_TITLE)
        self.assertNotIn(MAIN_TITLE, self.program.windows())
        self.assertEqual(self.program.start_browsing().photo, "67A.JPG")


if __name__ == "__main__":
    run()
