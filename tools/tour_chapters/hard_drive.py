"""Copies on the hard drive, from the panel to the end with a failure on the way, and the play list of the saver."""

from support.program import BOX_TITLE, SPLASH_TITLE
from support.waiting import wait_until


def prepare(program_folder):
    """A folder in the place of a copy makes the copying stop there with a message, so that a picture can be taken."""
    (program_folder / "Torviks" / "84TOR003.JPG").mkdir(parents=True)


def copy_panel(program):
    program.start_browsing()
    program.choose("File", "Copy CD-ROM photos to hard drive")
    program.wait_for("Copy Photos", role="push button")


def copy_again_question(program):
    program.click("Copy Photos")
    program.wait_for("OK", role="push button", window=SPLASH_TITLE)


def copy_in_the_middle(program):
    program.click("OK", window=SPLASH_TITLE)
    program.wait_for("Path/File access error", role="label")
    program.screen.move_window(program.screen.find_window(f"^{SPLASH_TITLE}$"), 420, 400)
    wait_until(lambda: program.find("OK", window=SPLASH_TITLE).top > 400, "the box to stand below the panel")


def copied(program):
    program.click("OK", window=SPLASH_TITLE)
    program.wait_for_window(BOX_TITLE)


def play_list_on_top(program):
    program.answer("OK")
    program.wait_for_none("Copying file:")
    program.click_photo(button=3)
    program.wait_for("Add this photo to list")


def photo_added(program):
    program.click("Add this photo to list")
    program.wait_for("Photo Successfully Copied!")


def play_list_of_a_listed_photo(program):
    program.click("OK", window=SPLASH_TITLE)
    program.wait_for_none("Photo Successfully Copied!")


def remove_all_question(program):
    program.click("Remove all photos from the list")
    program.wait_for("Yes", role="push button")


def all_removed(program):
    program.click("Yes")
    program.wait_for("OK", role="push button", window=SPLASH_TITLE)


def play_list_help(program):
    program.click("OK", window=SPLASH_TITLE)
    program.click("Help", window=SPLASH_TITLE)
    program.wait_for("OK", role="push button", window=SPLASH_TITLE)


def remove_photos_question(program):
    program.click("OK", window=SPLASH_TITLE)
    program.click("Exit", window=SPLASH_TITLE)
    program.wait_for_none("Add this photo to list")
    program.choose("File", "Remove photos from hard drive")
    program.wait_for("Yes", role="push button")


def photos_removed(program):
    program.click("Yes")
    program.wait_for("OK", role="push button", window=SPLASH_TITLE)


STOPS = (copy_panel, copy_again_question, copy_in_the_middle, copied, play_list_on_top, photo_added,
         play_list_of_a_listed_photo, remove_all_question, all_removed, play_list_help, remove_photos_question,
         photos_removed)
