"""The start, the main window and its menus, topics and the play list."""

from support.program import BOX_TITLE, SPLASH_TITLE
from support.waiting import wait_until


def splash(program):
    program.wait_for_window(SPLASH_TITLE)
    wait_until_painted(program, SPLASH_TITLE)


def first_year(program):
    program.start_browsing()


def another_year(program):
    program.click("85")
    program.wait_for_view(title="1985", number="1")


def next_photo(program):
    program.click("Next photo")
    program.wait_for_view(title="1985", number="2")


def file_menu(program):
    program.choose("File")
    program.wait_for("Show File Names", role="menu item")


def file_name(program):
    program.click("Show File Names", role="menu item")
    program.wait_for(program.view().photo, role="text")


def menu_in_a_menu(program):
    program.choose("Literature", "Torvik Magazines")
    program.wait_for("Torvik Illustrated", role="menu item")


def topic(program):
    program.press("Escape", "Escape", "Escape")
    program.choose("Specialty", "Early Torvik Prototypes")
    program.wait_for_view(title="Early Torvik Prototypes ", number="1")


def topic_without_photos(program):
    program.choose("Artwork", "Lemuel Ostrand")
    program.wait_for_window(BOX_TITLE)


def play_list(program):
    program.answer("OK")
    program.click("85")
    program.wait_for_view(title="1985", number="1")
    program.click_photo(button=3)
    program.wait_for("Add this photo to list")


def help_menu(program):
    program.click("Exit", window=SPLASH_TITLE)
    program.wait_for_none("Add this photo to list")
    program.choose("Help")
    program.wait_for("About", role="menu item")


def wait_until_painted(program, title):
    """Waits until a window has more to show than its background."""
    def painted():
        window = next((element for element in program.elements() if element.window == title), None)
        return window and program.screen.count_colours(window.left, window.top, window.width, window.height) > 2
    wait_until(painted, f"{title!r} to be painted")


STOPS = (splash, first_year, another_year, next_photo, file_menu, file_name, menu_in_a_menu, topic,
         topic_without_photos, play_list, help_menu)
