#!/usr/bin/python3 -B
"""Prints the booklet and a photo into files, and sets the printer up."""

import subprocess

from support.case import ProgramTest, run
from support.program import BOX_TITLE, MAIN_TITLE, SPLASH_TITLE
from support.waiting import wait_until

SETUP_TITLE = "Print Setup"
FIRST_YEAR = 1967


class Printing(ProgramTest):
    def setUp(self):
        super().setUp()
        self.disc = self.make_disc()
        self.printed = self.folder / "printed"
        self.write_documents()

    def write_documents(self):
        texts = self.disc.folder / "RichText"
        texts.mkdir()
        (texts / "Introduction.RTF").write_text(r"{\rtf1\ansi Introduction.}", "ascii")
        for prefix in ("99", "A0", "A1"):
            (texts / f"{prefix}desc.rtf").write_text(rf"{{\rtf1\ansi Description of {prefix}.}}", "ascii")
        for path in ("graphics/logo.jpg", "clipart/97clip.jpg", "graphics/bklettxt.jpg", "graphics/quillon3.bmp"):
            picture = self.disc.folder / path
            picture.parent.mkdir(exist_ok=True)
            subprocess.run(["convert", "-size", "200x60", "xc:navy", str(picture)], check=True)

    def browse(self, *arguments):
        self.program = self.start(self.make_screen(), *arguments, self.disc.folder)
        self.program.start_browsing()

    def browse_and_print_to_folder(self):
        self.browse("--print-to", self.printed)

    def open_booklet(self, *boxes):
        self.program.choose("File", "PrintBooklet")
        self.program.wait_for("Print Torvik Booklet", role="label")
        for box in boxes:
            self.program.click(box, role="check box")

    def choose_year(self, name, year):
        years = self.program.wait_for(name, role="list")
        self.program.screen.press_mouse(years.left + 20, years.top + 10)
        wait_until(lambda: any(e.focused and e.role in ("list", "list item") and years.left <= e.left
                               and e.right <= years.right for e in self.program.elements()), f"the focus in {name}")
        self.program.press("Home", *["Down"] * (year - FIRST_YEAR))

    def print_photo(self):
        self.program.choose("File", "Print Photo")
        self.program.wait_for("Would you like to print this photograph?", role="label", window=SPLASH_TITLE)

    def expect_message(self, text):
        self.program.wait_for(text, role="label", window=BOX_TITLE)
        self.program.answer("OK")

    def files(self):
        return sorted(path.name for path in self.printed.iterdir()) if self.printed.is_dir() else []

    def pages(self, file):
        """The text of each page, its blanks and line ends taken together."""
        text = subprocess.run(["pdftotext", "-layout", str(file), "-"], check=True, capture_output=True, text=True).stdout
        return [" ".join(page.split()) for page in text.split("\f")[:-1]]

    def paper(self, file):
        information = subprocess.run(["pdfinfo", str(file)], check=True, capture_output=True, text=True).stdout
        size = next(line for line in information.splitlines() if line.startswith("Page size:")).split()
        return float(size[2]), float(size[4])

    def test_a_booklet_runs_over_the_turn_of_the_century(self):
        self.browse_and_print_to_folder()
        self.open_booklet(" Cover", " Introduction", " Description")
        self.choose_year("From:", 1999)
        self.choose_year("To:", 2001)
        self.program.click("Print")
        self.expect_message("Booklet printed!\r\n")
        self.program.wait_for("Print Again", role="push button")
        self.assertEqual(self.files(), [f"job-{number}.pdf" for number in range(1, 5)])
        self.assertEqual(self.pages(self.printed / "job-1.pdf"), ["", "Introduction."])
        self.assertEqual([self.pages(self.printed / f"job-{number}.pdf") for number in range(2, 5)],
                         [["Description of 99."], ["Description of A0."], ["Description of A1."]])

    def test_a_missing_document_ends_the_booklet_and_keeps_what_was_printed(self):
        (self.disc.folder / "RichText" / "A0desc.rtf").unlink()
        self.browse_and_print_to_folder()
        self.open_booklet(" Description")
        self.choose_year("From:", 1999)
        self.choose_year("To:", 2001)
        self.program.click("Print")
        self.expect_message("Error number: ER040\r\n\r\n Unable to load file for printing.\r\n\r\n"
                            "Make sure that the Torvik Vollandry is in the CDROM drive.")
        self.assertEqual(self.files(), ["job-1.pdf"])
        self.assertEqual(self.pages(self.printed / "job-1.pdf"), ["Description of 99."])

    def test_a_cover_that_stands_alone_goes_out_when_the_program_ends(self):
        self.browse_and_print_to_folder()
        self.open_booklet(" Cover")
        self.program.click("Print")
        self.expect_message("Booklet printed!\r\n")
        self.assertEqual([name for name in self.files() if name.endswith(".pdf")], [])
        self.program.choose("File", "Exit")
        self.assertEqual(self.program.wait_for_end(), 0)
        self.assertEqual(self.files(), ["job-1.pdf"])
        self.assertEqual(self.pages(self.printed / "job-1.pdf"), ["", ""])

    def test_a_program_that_is_broken_off_leaves_no_broken_job(self):
        self.browse_and_print_to_folder()
        self.open_booklet(" Cover")
        self.program.click("Print")
        self.expect_message("Booklet printed!\r\n")
        self.program.kill()
        self.assertEqual([name for name in self.files() if name.endswith(".pdf")], [])

    def test_years_are_asked_for(self):
        self.browse_and_print_to_folder()
        self.open_booklet(" Clip art")
        self.program.click("Print")
        self.expect_message("Error number: ER034\r\n\r\n You must select both a Start Year and an End Year. ")
        self.choose_year("From:", 2001)
        self.choose_year("To:", 1999)
        self.program.click("Print")
        self.expect_message("Error number: ER036\r\n\r\n 'TO' year may not be earlier than 'FROM' year.")
        self.assertEqual(self.files(), [])

    def test_a_photo_is_printed_when_the_user_says_so(self):
        self.browse_and_print_to_folder()
        self.print_photo()
        self.program.answer("Cancel", title=SPLASH_TITLE)
        self.assertEqual(self.files(), [])
        self.print_photo()
        self.program.answer("OK", title=SPLASH_TITLE)
        wait_until(lambda: self.files() == ["job-1.pdf"], "the printed photo")
        self.assertEqual(self.pages(self.printed / "job-1.pdf"), ["The Torvik Vollandry 2001 1967"])

    def test_the_set_up_holds_for_later_jobs_and_cancel_changes_nothing(self):
        self.browse_and_print_to_folder()
        for number, (answer, wide) in enumerate([("Cancel", False), ("OK", True), ("Cancel", True)], start=1):
            self.program.choose("File", "Print Setup")
            self.program.wait_for_window(SETUP_TITLE)
            self.program.click("Portrait" if number == 3 else "Landscape", role="radio button", window=SETUP_TITLE)
            self.program.answer(answer, title=SETUP_TITLE)
            self.print_photo()
            self.program.answer("OK", title=SPLASH_TITLE)
            file = self.printed / f"job-{number}.pdf"
            wait_until(file.is_file, f"{file.name}")
            width, height = self.paper(file)
            self.assertEqual(width > height, wide, f"job {number}")

    def test_without_a_printer_and_a_folder_jobs_go_to_the_documents(self):
        self.browse()
        self.print_photo()
        self.program.answer("OK", title=SPLASH_TITLE)
        documents = self.folder / "home" / "Documents"
        wait_until((documents / "job-1.pdf").is_file, "the job among the documents")
        self.assertEqual(self.pages(documents / "job-1.pdf"), ["The Torvik Vollandry 2001 1967"])

    def test_a_photo_that_cannot_be_printed_ends_the_program(self):
        self.browse("--print-to", "/proc/nothing")
        self.print_photo()
        self.program.click("OK", window=SPLASH_TITLE)
        self.program.wait_for("Run-time error '482':\r\n\r\nPrinter error", role="label")
        self.program.click("OK", window=SPLASH_TITLE)
        self.program.wait_for_end()
        self.assertNotIn(MAIN_TITLE, self.program.windows())


if __name__ == "__main__":
    run()
