#!/usr/bin/python3 -B
"""Photos and movies on the hard drive: copied, read after a restart, put on the play list, and removed again."""

import shutil

from support.case import ProgramTest, run
from support.program import BOX_TITLE, SPLASH_TITLE

MOVIES = {"drive.avi": bytes(range(256)) * 300, "Race.AVI": b"short"}


class HardDriveCopies(ProgramTest):
    def setUp(self):
        super().setUp()
        self.disc = self.make_disc()
        (self.disc.folder / "movies").mkdir()
        for name, content in MOVIES.items():
            (self.disc.folder / "movies" / name).write_bytes(content)
        self.screen = self.make_screen()

    def test_copies_are_made_read_after_a_restart_listed_and_removed(self):
        program = self.start(self.screen, self.disc.folder)
        program.start_browsing()
        self.copy(program, "photos", "Copy Photos")
        self.copy(program, "movies", "Copy Movies")
        self.assert_copied()
        self.end(program)

        program = self.start(self.screen, self.other_disc())
        program.start_browsing()
        self.assert_shows(program, "67A.JPG", of="67A.JPG")
        program.click("68")  # the other disc has none
        program.wait_for_view(title="1968", photo="68A.JPG")
        self.assert_shows(program, "68A.JPG", of="68A.JPG")
        self.list_photos(program)
        self.remove(program)

        program = self.start(self.screen, self.other_disc())
        program.start_browsing()
        self.assert_shows(program, "67A.JPG", of="A1B.JPG")
        self.assertEqual([], self.files_in("Torviks") + self.files_in("movies") + self.files_in("ssTorviks"))

    def copy(self, program, what, button):
        program.choose("File", f"Copy CD-ROM {what} to hard drive")
        program.click(button)
        program.wait_for_window(BOX_TITLE)
        self.assertIn("100", [element.name.rstrip("%") for element in program.elements()])
        program.answer("OK")
        program.wait_for_none("Copying file:")

    def assert_copied(self):
        self.assertEqual(sorted(self.disc.photos), self.files_in("Torviks"))
        for name in self.disc.photos:
            self.assertEqual((self.disc.folder / "Torviks" / name).read_bytes(),
                             (self.program_folder / "Torviks" / name).read_bytes())
        copies = {name: (self.program_folder / "movies" / name).read_bytes() for name in self.files_in("movies")}
        self.assertEqual({name.upper(): content for name, content in MOVIES.items()}, copies)

    def other_disc(self):
        """Another disc, with one photo: it bears the name of the first one and shows the last one."""
        folder = self.folder / "other disc" / "Torviks"
        folder.mkdir(parents=True, exist_ok=True)
        shutil.copy(self.disc.folder / "Torviks" / "A1B.JPG", folder / "67A.JPG")
        return folder.parent

    def assert_shows(self, program, photo, of):
        self.assert_colour(self.screen, program.wait_for(photo, role="graphic").middle, self.disc.photos[of])

    def list_photos(self, program):
        program.click_photo(button=3)
        self.work(program, "Add this photo to list", "Photo Successfully Copied!")
        self.assertEqual(["68A.JPG"], self.files_in("ssTorviks"))
        program.click("Next photo")
        program.wait_for_view(photo="68B.JPG")
        self.work(program, "Add this photo to list", "Photo Successfully Copied!")
        self.assertEqual(["68A.JPG", "68B.JPG"], self.files_in("ssTorviks"))
        self.assertEqual((self.disc.folder / "Torviks" / "68B.JPG").read_bytes(),
                         (self.program_folder / "ssTorviks" / "68B.JPG").read_bytes())
        program.click("Previous photo")
        program.wait_for_view(photo="68A.JPG")
        self.work(program, "Remove this photo from list", "Photo Successfully Removed!")
        self.assertEqual(["68B.JPG"], self.files_in("ssTorviks"))
        program.click("Remove all photos from the list")
        program.click("Yes")
        program.click("OK")
        program.wait_for_none("OK", role="push button")
        self.assertEqual([], self.files_in("ssTorviks"))
        self.assertFalse(program.find("Remove all photos from the list").enabled)
        program.click("Exit", window=SPLASH_TITLE)
        program.wait_for_none("Add this photo to list")

    def work(self, program, button, text):
        """Presses a button of the play list and answers what is said then."""
        program.click(button)
        program.wait_for(text)
        program.click("OK", window=SPLASH_TITLE)
        program.wait_for_none(text)

    def remove(self, program):
        program.choose("File", "Remove movies from hard drive")
        program.click("Yes")
        program.wait_for("All movies successfully removed!")
        program.click("OK")
        program.wait_for_none("All movies successfully removed!")
        self.assertFalse((self.program_folder / "movies").exists())
        program.choose("File", "Remove photos from hard drive")
        program.click("Yes")
        program.click("OK")
        self.assertEqual(0, program.wait_for_end())
        self.assertFalse((self.program_folder / "Torviks").exists())

    def end(self, program):
        program.click("Exit")
        self.assertEqual(0, program.wait_for_end())

    def files_in(self, folder):
        return sorted(entry.name for entry in (self.program_folder / folder).glob("*"))


if __name__ == "__main__":
    run()
