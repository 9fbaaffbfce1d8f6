"""Display check, about box and help."""


def display_check(program):
    program.start_browsing()
    program.choose("File", "Check Screen Resolution")
    program.wait_for("OK")


def about_box(program):
    program.click("OK")
    program.wait_for_none("OK")
    program.choose("Help", "About")
    program.wait_for("OK")


def help_window(program):
    program.click("OK")
    program.wait_for_none("OK")
    program.choose("Help", "Contents")
    program.wait_for("Find next")


def help_topic(program):
    program.click("Printing", role="tree item")
    program.wait_for("Back")


STOPS = (display_check, about_box, help_window, help_topic)
