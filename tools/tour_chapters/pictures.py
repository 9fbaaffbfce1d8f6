"""Emblem, script and clip art over the photo, and the advertisements in their viewer."""

from support.program import BOX_TITLE, SPLASH_TITLE
from support.waiting import wait_until

AD_TITLE = "The Torvik Vollandry    {} Advertisement"
COPY_QUESTION = "Would you like to copy this image to the Windows Clipboard?"


def emblem(program):
    program.start_browsing()
    choose(program, "69", "1969")
    program.click("Emblem")
    program.wait_for("emb69.jpg", role="graphic")


def script(program):
    program.click("Script")
    program.wait_for("scri69.jpg", role="graphic")


def all_three_pictures(program):
    program.click("ClipArt ")
    program.wait_for("69clip.jpg", role="graphic")


def copy_question(program):
    program.click("emb69.jpg", role="graphic", button=3)
    program.wait_for(COPY_QUESTION, window=SPLASH_TITLE)


def pictures_of_another_year(program):
    program.answer("Yes", title=SPLASH_TITLE)
    choose(program, "87", "1987")
    program.wait_for("87clip.jpg", role="graphic")


def pictures_of_a_topic(program):
    program.choose("Specialty", "The Classic Harwell")
    program.wait_for("embsb.jpg", role="graphic")


def advertisement(program):
    choose(program, "69", "1969")
    open_advertisement(program, "1969")


def advertisement_scrolled(program):
    program.press("End", *["Right"] * 20)
    wait_until(lambda: page(program).top < 0 and page(program).left < 0, "the page to scroll")


def portrait_page_zoomed_out(program):
    program.screen.press_mouse(400, 300)
    wait_for_no_bars(program)


def portrait_page_zoomed_in_again(program):
    program.screen.press_mouse(500, 300)
    wait_until(lambda: bars(program), "the scroll bars")


def landscape_advertisement(program):
    program.press("Escape")
    wait_until(lambda: "1969" in program.view().title and not bars(program), "the main window")
    choose(program, "87", "1987")
    open_advertisement(program, "1987")


def landscape_page_zoomed_out(program):
    program.screen.press_mouse(400, 300)
    wait_for_no_bars(program)


def year_without_advertisement(program):
    program.screen.press_mouse(400, 300, button=3)
    choose(program, "01", "2001")
    program.click("Advertisement")
    program.wait_for_window(BOX_TITLE)


def choose(program, button, year):
    program.click(button)
    program.wait_for_view(title=year, number="1")


def open_advertisement(program, year):
    program.click("Advertisement")
    program.wait_for_window(AD_TITLE.format(year))
    wait_until(lambda: bars(program), "the scroll bars")


def in_viewer(program):
    return [element for element in program.elements() if element.window.endswith("Advertisement")]


def bars(program):
    return [element for element in in_viewer(program) if element.role == "scroll bar"]


def page(program):
    return max((element for element in in_viewer(program) if element.role == "graphic"), key=lambda each: each.width)


def wait_for_no_bars(program):
    wait_until(lambda: in_viewer(program) and not bars(program), "the whole page")


STOPS = (emblem, script, all_three_pictures, copy_question, pictures_of_another_year, pictures_of_a_topic, advertisement,
         advertisement_scrolled, portrait_page_zoomed_out, portrait_page_zoomed_in_again, landscape_advertisement,
         landscape_page_zoomed_out, year_without_advertisement)
