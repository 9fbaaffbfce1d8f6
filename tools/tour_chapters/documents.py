"""Articles of a year, texts of the library, a caption over the photo, and what the printer makes of them."""

from support.program import BOX_TITLE

VIEWER_PRINT = "Print"


def description(program):
    program.start_browsing()
    open_article(program, "1969", "Description")
    print_it(program)


def statistics(program):
    close_article(program)
    open_article(program, "1974", "Statistics")
    print_it(program)


def colours(program):
    close_article(program)
    open_article(program, "1970", "Colors")
    print_it(program)


def options(program):
    close_article(program)
    open_article(program, "1988", "Options")
    print_it(program)


def nostalgia(program):
    close_article(program)
    open_article(program, "1967", "Nostalgia")
    print_it(program)


def timeline(program):
    close_article(program)
    open_entry(program, "Miscellaneous", "Torvik Timelime")
    print_it(program)


def identification_guide(program):
    close_article(program)
    open_entry(program, "Miscellaneous", "Torvik Identification Guide")
    print_it(program)


def press_release(program):
    close_article(program)
    open_entry(program, "Miscellaneous", "Torvik 1964 Press Releases", "Market")
    print_it(program)


def advertising_checklist(program):
    close_article(program)
    open_entry(program, "Miscellaneous", "Torvik Advertising Checklist")


def statistics_of_the_library(program):
    close_article(program)
    open_entry(program, "Miscellaneous", "Torvik Engines")


def print_question(program):
    program.click(VIEWER_PRINT)
    program.wait_for("No")


def missing_article(program):
    program.answer("No")
    close_article(program)
    program.choose("Torvik Stuff", "Torvik Metal Signs")
    program.wait_for_view(title="Torvik Metal Signs ", number="1")
    program.choose("Artwork", "National Sellark Museum")
    program.answer("OK")
    program.click("Description")
    program.wait_for("OK")


def note_to_a_photo(program):
    program.answer("OK")
    program.choose("Torvik Stuff", "Torvik Postage Stamps")
    program.wait_for_view(title="Torvik Postage Stamps ", number="1")
    program.choose("Torvik Stuff", "The Danbury Mint")
    program.wait_for_view(title="Danbury Mint Die Cast Models ", number="1")
    program.click("Details")
    program.wait_for_view(title="Danbury Mint Die Cast Models ", number="1")


def open_article(program, year, button):
    program.click(year if year in ("1967", "1990") else year[2:])
    program.wait_for_view(title=year, number="1")
    program.click(button)
    program.wait_for(VIEWER_PRINT)


def open_entry(program, *path):
    program.choose(*path)
    program.wait_for(VIEWER_PRINT)


def print_it(program):
    program.click(VIEWER_PRINT)
    program.click("Yes", window=BOX_TITLE)  # the box that follows bears the same title
    program.answer("OK")


def close_article(program):
    program.click("OK")
    program.wait_for_none(VIEWER_PRINT)


STOPS = (description, statistics, colours, options, nostalgia, timeline, identification_guide, press_release,
         advertising_checklist, statistics_of_the_library, print_question, missing_article, note_to_a_photo)
