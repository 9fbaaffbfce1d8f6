"""The form that finds words, the article that it opens, the bar of the viewer, and a caption that was found."""

from support.waiting import wait_until

FIND_TITLE = "Find"


def find_form(program):
    program.start_browsing()
    program.press("ctrl+f")
    wait_until(lambda: any(element.focused and element.window == FIND_TITLE for element in program.elements()),
               "the form to have the keyboard")


def found_while_typing(program):
    wait_until(lambda: "Reading" not in told(program), "the disc to be read")
    find(program, "engine oil")
    program.press("Down", "Down")


def found_article(program):
    program.press("Return")
    program.wait_for("Print")


def next_place_in_the_article(program):
    program.press("F3")


def nothing_found(program):
    program.click("OK")
    program.wait_for_none("Print")
    find(program, "submarine")


def found_caption(program):
    find(program, '"works museum" 1984')
    program.press("Return")
    program.wait_for_view(title="1984")


STOPS = (find_form, found_while_typing, found_article, next_place_in_the_article, nothing_found, found_caption)


def find(program, words):
    """Types words in place of those that stand there, and waits for their answer."""
    before = told(program)
    program.press("ctrl+a")
    program.screen.type_text(words)
    wait_until(lambda: told(program) != before and "ound" in told(program), f"an answer to {words!r}")


def told(program):
    """What the form says below its list."""
    return " ".join(element.name for element in program.elements()
                    if element.window == FIND_TITLE and element.role == "label")
