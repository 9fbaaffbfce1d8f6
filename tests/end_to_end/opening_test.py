#!/usr/bin/python3 -B
"""Opening a disc from the desktop, which starts the program with its folder."""

import configparser
from pathlib import Path

from support.case import ProgramTest, run
from support.program import SPLASH_TITLE

DESKTOP_ENTRY = Path(__file__).resolve().parents[2] / "packaging" / "torvik2001.desktop"


class Opening(ProgramTest):
    def entry(self):
        entry = configparser.ConfigParser(interpolation=None)
        entry.optionxform = str
        entry.read(DESKTOP_ENTRY)
        return entry["Desktop Entry"]

    def test_the_entry_takes_one_folder_or_image(self):
        self.assertEqual(self.entry()["Exec"], "torvik2001 %f")
        kinds = self.entry()["MimeType"].split(";")
        for kind in ("inode/directory", "application/x-cd-image", "application/x-cue"):
            self.assertIn(kind, kinds)

    def test_a_second_start_with_another_disc_says_that_the_program_is_running(self):
        screen = self.make_screen()
        disc = self.make_disc()
        first = self.start(screen, disc.folder)
        first.start_browsing()
        other = self.folder / "other disc"
        (other / "Torviks").mkdir(parents=True)
        (disc.folder / "Torviks" / "67A.JPG").rename(other / "Torviks" / "67A.JPG")
        second = self.start(screen, other)
        second.wait_for("The Torvik Vollandry is already running!", window=SPLASH_TITLE)
        second.answer("OK", title=SPLASH_TITLE)
        self.assertEqual(second.wait_for_end(), 0)
        self.assertEqual(first.view().title, "1967")


if __name__ == "__main__":
    run()
