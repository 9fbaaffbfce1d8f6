"""The installation of the screen saver, and the saver itself."""

from support.program import MAIN_TITLE, SPLASH_TITLE
from support.saver import Saver, installed_saver, write_settings
from support.waiting import wait_until

_running = []  # the saver that is on the screen


def saver_panel(program):
    program.start_browsing()
    put_on_play_list(program, "1994", "94")
    program.choose("File", "Install Screen saver")
    program.wait_for("Install Screen Saver", role="label", window=MAIN_TITLE)


def saver_question(program):
    program.click("Longer delay")
    program.click("Longer delay")
    program.click("Install")
    program.wait_for_window(SPLASH_TITLE)


def saver_copies_photos(program):
    program.answer("Yes", title=SPLASH_TITLE)
    program.wait_for("Copy Photos", role="push button")


def saver_copies_done(program):
    program.click("Copy Photos")
    program.wait_for_window("The Torvik Vollandry", patience=300)


def saver_installed(program):
    program.answer("OK")
    program.wait_for_window(SPLASH_TITLE)


def saver_selected_photos(program):
    program.answer("OK", title=SPLASH_TITLE)
    program.click("Selected Photos", role="radio button")
    program.click("Install")
    program.wait_for_window(SPLASH_TITLE)
    program.answer("OK", title=SPLASH_TITLE)


def saver_show(program):
    show(program, "/s")


def saver_title_card(program):
    write_settings(program.home, 5, "Q:\\Torviks\\")
    show(program, "/s")


def saver_information(program):
    end_show()
    write_settings(program.home, 5, "C:\\opt\\torvik2001\\ssTorviks\\")
    saver = Saver(program.screen, program.home, "/c", file=installed_saver(program.home))
    _running.append(saver)
    wait_until(lambda: program.screen.find_window("^The Torvik Vollandry 2001$"), "the saver's box")


def put_on_play_list(program, title, button):
    program.click(button)
    program.wait_for_view(title=title, number="1")
    program.click_photo(button=3)
    program.click("Add this photo to list")
    program.wait_for("Photo Successfully Copied!", window=SPLASH_TITLE)
    program.press("Return")
    program.wait_for_none("Photo Successfully Copied!")
    program.click("Exit", window=SPLASH_TITLE)
    program.wait_for_none("Add this photo to list")


def show(program, *arguments):
    """Starts the installed saver in place of the one before, and waits until its first photo has come."""
    end_show()
    _running.append(Saver(program.screen, program.home, *arguments, file=installed_saver(program.home)))
    places = [(x, y) for x in (300, 512, 700) for y in (250, 384, 500)]
    before = None

    def has_settled():
        nonlocal before
        seen = [program.screen.colour_at(*place) for place in places]
        is_same = seen == before
        before = seen
        return is_same and max(map(max, seen)) > 60 and program.screen.find_window("Screen Saver")
    wait_until(has_settled, "the saver's picture")


def end_show():
    while _running:
        _running.pop().__exit__()


STOPS = (saver_panel, saver_question, saver_copies_photos, saver_copies_done, saver_installed, saver_selected_photos,
         saver_show, saver_title_card, saver_information)
