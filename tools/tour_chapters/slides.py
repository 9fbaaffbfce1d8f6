"""The slide show: paused, running, at its beginning and middle, and the photo that it leaves on the main window."""

from support.waiting import wait_until

SHOW_TITLE = "The Torvik Vollandry Slide Show"


def slide_show_paused(program):
    program.start_browsing()
    program.click("85")
    program.wait_for_view(title="1985", number="1")
    program.click("SlideShow")
    wait_for_slide(program, "1985 ")


def slide_show_next_photo(program):
    shown = position(program)
    program.press("period")
    wait_until(lambda: position(program) not in (None, shown), "the next photo")


def slide_show_with_a_longer_delay(program):
    program.click("Longer delay", window=SHOW_TITLE)
    program.click("Longer delay", window=SHOW_TITLE)
    program.wait_for("3 seconds", window=SHOW_TITLE)


def slide_show_running(program):
    shown = position(program)
    program.click("Play", window=SHOW_TITLE)
    wait_until(lambda: position(program) not in (None, shown), "the show to run")


def slide_show_middle(program):
    program.click("Pause", window=SHOW_TITLE)
    program.click("Middle", window=SHOW_TITLE)
    wait_until(lambda: "of" in (position(program) or ""), "the photo in the middle")


def slide_show_on_a_topic(program):
    program.click("Beginning", window=SHOW_TITLE)
    wait_for_slide(program, "1967")
    program.click("Backward", window=SHOW_TITLE)
    wait_for_slide(program, "Torvik Postage Stamps ")


def main_window_after_the_show(program):
    program.click("Exit with this photo", window=SHOW_TITLE)
    program.wait_for_view(title="Torvik Postage Stamps ")


def position(program):
    """The place that the show tells, "5 of 900"; None while it tells none."""
    return next((element.name for element in program.elements()
                 if element.window == SHOW_TITLE and " of " in element.name), None)


def wait_for_slide(program, caption):
    program.wait_for(caption, window=SHOW_TITLE)


STOPS = (slide_show_paused, slide_show_next_photo, slide_show_with_a_longer_delay, slide_show_running, slide_show_middle,
         slide_show_on_a_topic, main_window_after_the_show)
