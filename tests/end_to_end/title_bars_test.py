#!/usr/bin/python3 -B
"""What the window system knows of each window: its title, which may be empty, and its icon for the task switcher."""

from support.case import ProgramTest, run
from support.program import BOX_TITLE, MAIN_TITLE
from support.waiting import wait_until

MAGAZINES = ("Literature", "Torvik Magazines")
MAGAZINES_TITLE = "The Torvik Vollandry       Magazines"
EMPTY = " "  # in the place of no character at all the toolkit would put the program's name


class TitleBars(ProgramTest):
    def setUp(self):
        super().setUp()
        self.program_folder.mkdir()
        (self.program_folder / "Torvik2001.HLP").write_text(r"{\rtf1\ansi How it works.}", "ascii")
        self.disc = self.make_disc()
        texts = self.disc.folder / "RichText"
        texts.mkdir()
        for name in ("magmi.rtf", "magmm.rtf", "books.rtf"):
            (texts / name).write_text(rf"{{\rtf1\ansi Text of {name}.}}", "ascii")
        self.screen = self.make_screen(1024, 768)
        self.program = self.start(self.screen, self.disc.folder)
        self.program.start_browsing()

    def new_window(self):
        """The number of the one window that stands beside the main window."""
        def others():
            return [window for window in self.screen.windows_of(self.program.process)
                    if self.screen.title_of(window) != MAIN_TITLE]
        return wait_until(others, "another window")[0]

    def open_text(self, file, *path):
        """Chooses a text from the menus; returns the title and the icon of its window as the X server has them."""
        self.program.choose(*path)
        self.program.wait_for(f"Text of {file}.")
        window = self.new_window()
        return self.screen.titles_of(window), self.screen.has_icon(window)

    def close_text(self, file):
        self.program.click("OK")
        self.program.wait_for_none(f"Text of {file}.")

    def test_a_text_that_is_opened_before_any_has_set_a_title_has_an_empty_title_bar(self):
        titles, has_icon = self.open_text("magmi.rtf", *MAGAZINES, "Torvik Illustrated")
        self.assertEqual(titles, {EMPTY})
        self.assertTrue(has_icon)
        self.program.click("Print")
        self.program.wait_for("Would you like to print the \r\n\r\n?", window=BOX_TITLE)
        self.program.answer("No")
        self.close_text("magmi.rtf")
        titles, _ = self.open_text("magmm.rtf", *MAGAZINES, "Torvik Monthly")
        self.assertEqual(titles, {MAGAZINES_TITLE})

    def test_a_title_that_is_set_in_time_stands_in_the_title_bar(self):
        titles, _ = self.open_text("books.rtf", "Literature", "Torvik Books")
        self.assertEqual(titles, {"The Torvik Vollandry       Books"})
        self.close_text("books.rtf")
        titles, _ = self.open_text("magmi.rtf", *MAGAZINES, "Torvik Illustrated")
        self.assertEqual(titles, {"The Torvik Vollandry       Books"})

    def check_window(self, title):
        self.program.wait_for_window(title)
        window = self.new_window()
        self.assertEqual(self.screen.titles_of(window), {title})
        self.assertTrue(self.screen.has_icon(window), title)
        self.program.press("Escape")
        self.program.wait_for_no_window(title)

    def test_every_window_that_a_menu_or_key_opens_has_its_title_and_the_icon(self):
        self.program.choose("Help", "About")
        self.check_window("About The Torvik Vollandry 2001")
        self.program.choose("Help", "Contents")
        self.check_window("Help - The Torvik Vollandry 2001")
        self.program.choose("File", "Check Screen Resolution")
        self.check_window("The Torvik Vollandry 2001")
        self.program.press("ctrl+f")
        self.check_window("Find")


if __name__ == "__main__":
    run()
