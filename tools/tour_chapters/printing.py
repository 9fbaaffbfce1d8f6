"""The booklet of six years, the photo, and the set-up of the printer."""

from support.program import BOX_TITLE, SPLASH_TITLE
from support.waiting import wait_until

SETUP_TITLE = "Print Setup"
FIRST_YEAR = 1967


def booklet_panel(program):
    program.start_browsing()
    program.choose("File", "PrintBooklet")
    program.wait_for("Print Torvik Booklet", role="label")


def booklet_chosen(program):
    for box in (" Cover", " Introduction", " Description", " Details"):
        program.click(box, role="check box")
    choose_year(program, "From:", 1967)
    choose_year(program, "To:", 1969)


def booklet_printed(program):
    program.click("Print")
    program.wait_for_window(BOX_TITLE, patience=120)


def print_again(program):
    program.answer("OK")
    program.wait_for("Print Again")


def years_missing(program):
    program.click("Clear")
    program.click(" Details", role="check box")
    program.click("Print")
    program.wait_for_window(BOX_TITLE)


def new_century(program):
    program.answer("OK")
    program.click(" Description", role="check box")
    choose_year(program, "From:", 1999)
    choose_year(program, "To:", 2001)
    program.click("Print")
    program.wait_for_window(BOX_TITLE, patience=120)


def photo_question(program):
    program.answer("OK")
    program.click("Clear")
    program.click("Cancel")
    program.click("69")
    program.wait_for_view(title="1969", number="1")
    program.choose("File", "Print Photo")
    program.wait_for_window(SPLASH_TITLE)


def printer_set_up(program):
    program.answer("OK", title=SPLASH_TITLE)
    program.choose("File", "Print Setup")
    program.wait_for_window(SETUP_TITLE)


def choose_year(program, name, year):
    """Selects a year in the list that is called "From:" or "To:"."""
    years = program.wait_for(name, role="list")
    program.screen.press_mouse(years.left + 20, years.top + 10)
    wait_until(lambda: any(element.focused and element.role in ("list", "list item") and years.left <= element.left
                           and element.right <= years.right for element in program.elements()),
               f"the list {name!r} to take the focus")
    program.press("Home", *["Down"] * (year - FIRST_YEAR))


STOPS = (booklet_panel, booklet_chosen, booklet_printed, print_again, years_missing, new_century, photo_question,
         printer_set_up)
