#!/usr/bin/python3 -B
"""Finds words on a disc by the keyboard alone, and hears what a screen reader says of it."""

from support.case import ProgramTest, run
from support.program import MAIN_TITLE
from support.spoken import Heard
from support.waiting import wait_until

FIND_TITLE = "Find"
DESCRIPTION = "The Torvik Vollandry       1969 Description"
SHORT = rb"{\rtf1\ansi The hood scoop of 1969 is painted.}"
CAPTION = rb"{\rtf1\ansi A silver roof.}"
LONG = rb"{\rtf1\ansi " + rb"And so the road went on.\par " * 12000 + b"}"


class Finding(ProgramTest):
    def start_on(self, texts):
        folder = self.make_disc().folder
        (folder / "RichText").mkdir()
        for name, text in texts.items():
            (folder / "RichText" / name).write_bytes(text)
        self.screen = self.make_screen()
        self.program = self.start(self.screen, "--scale", "1", folder)
        self.program.start_browsing()
        self.program.press("ctrl+f")
        self.wait_for_keys_in_box()

    def start_on_long_disc(self):
        """It is read for seconds, the caption last."""
        self.start_on({"69c.rtf": CAPTION, **{f"{year}desc.rtf": LONG for year in range(70, 100)}})

    def wait_for_keys_in_box(self):
        wait_until(lambda: any(e.focused and e.role == "text" and e.window == FIND_TITLE for e in self.program.elements()),
                   "the box to have the keyboard")

    def rows(self):
        return [e.name for e in self.program.elements() if e.window == FIND_TITLE and e.role == "list item"]

    def told(self):
        return next((e.name for e in self.program.elements() if e.window == FIND_TITLE and e.role == "label"), "")

    def find(self, words, rows):
        self.program.press("ctrl+a")
        self.screen.type_text(words)
        wait_until(lambda: self.rows() == rows, lambda: f"the rows {rows}; they are {self.rows()}")

    def test_a_hit_is_typed_opened_and_left_without_the_mouse(self):
        self.start_on({"69desc.rtf": SHORT, "69c.rtf": CAPTION})
        row = "The Torvik Vollandry 1969 Description. 1969 > Description. The hood scoop of 1969 is painted."
        self.find("scoop", [row])
        self.program.press("Return")
        self.program.wait_for("1 of 1", window=DESCRIPTION)
        self.program.wait_for_view(title="1969", number="1")
        self.program.click("OK", window=DESCRIPTION)
        self.program.wait_for_no_window(DESCRIPTION)
        self.wait_for_keys_in_box()
        self.assertEqual(self.rows(), [row])
        self.find("silver", ["1969, photo 3. Caption. A silver roof."])
        self.program.press("Return")
        self.program.wait_for_view(title="1969", number="3", photo="69C.JPG")
        self.program.press("Escape")
        self.program.wait_for_no_window(FIND_TITLE)
        self.assertEqual(self.program.view().number, "3")

    def test_it_stays_in_front_of_the_main_window(self):
        self.start_on({"69desc.rtf": SHORT})
        main, find = (self.screen.find_window(title) for title in (MAIN_TITLE, FIND_TITLE))
        self.assertEqual(self.screen.owner_of(find), main)
        self.program.click("89", window=MAIN_TITLE)
        self.program.wait_for_view(title="1989")
        wait_until(lambda: self.screen.active_title() == MAIN_TITLE, "the main window to have the keys")
        wait_until(lambda: self.screen.stack()[-2:] == [main, find], "Find to be in front")

    def test_a_screen_reader_is_told_of_each_row_that_is_chosen(self):
        self.start_on({f"{year}desc.rtf": SHORT for year in (69, 70)})
        first, second = (f"The Torvik Vollandry 19{year} Description. 19{year} > Description. "
                         "The hood scoop of 1969 is painted." for year in (69, 70))
        heard = Heard(self.program.process)
        self.find("scoop", [first, second])
        wait_until(lambda: first in heard.take(), "the best hit")
        self.program.press("Down")
        names = []
        wait_until(lambda: names.extend(heard.take()) or second in names, "the row below")
        self.program.press("Up")
        wait_until(lambda: names.extend(heard.take()) or first in names, "the row above")
        self.assertEqual(names, [second, first])
        self.find("1970", [second])
        wait_until(lambda: second in heard.take(), "the best hit of other words")

    def test_return_right_after_the_words_opens_the_hit_when_it_is_read(self):
        self.start_on_long_disc()
        self.screen.type_text("silver")
        self.program.press("Return")
        self.assertIn("Reading", self.told())
        self.program.wait_for_view(title="1969", number="3", photo="69C.JPG")

    def test_the_program_ends_at_once_while_it_reads(self):
        self.start_on_long_disc()
        self.screen.type_text("road")
        wait_until(lambda: "found\nReading" in self.told(), "hits in what is read already")
        self.screen.close_window(MAIN_TITLE)
        self.assertEqual(self.program.wait_for_end(), 0)


if __name__ == "__main__":
    run()
