#!/usr/bin/python3 -B
"""Emblem, script and clip art over the photo with the real clipboard, and the advertisement in its viewer."""

import signal

from support.case import ProgramTest, run
from support.clipboard import Clipboard
from support.drawn_picture import (LOWER_LEFT, LOWER_RIGHT, UPPER_LEFT, UPPER_RIGHT, colour_in, draw_picture, size_of,
                                   write_bitmap)
from support.program import BOX_TITLE, MAIN_TITLE, SPLASH_TITLE
from support.waiting import wait_until

AD_TITLE = "The Torvik Vollandry    {} Advertisement"
COPY_QUESTION = "Would you like to copy this image to the Windows Clipboard?"
SORRY = "Sorry!\r\n\r\nThe Year 2001 ad has not yet been released by Brenmoor.\r\n"


class Pictures(ProgramTest):
    def browse(self, width=800, height=600, scale=1):
        """The year 1969 on a screen, on a disc with pictures for it."""
        self.disc = self.make_disc()
        for name, size in {"emblems/emb69.jpg": (160, 90), "emblems/emb70.jpg": (150, 80),
                           "scripts/scri69.jpg": (220, 60), "ClipArt/69clip.jpg": (480, 60),
                           "ads/67brto00.jpg": (1240, 1610), "ads/69brto00.jpg": (1240, 1610), "ads/87brto00.jpg": (1610, 1240)}.items():
            draw_picture(self.disc.folder / name, *size)
        self.screen = self.make_screen(width, height)
        self.program = self.start(self.screen, self.disc.folder, scale=scale)
        self.program.start_browsing()
        if width >= 800:
            self.program.click("69")
            self.program.wait_for_view(title="1969", focus="70")

    def show(self, button, picture):
        self.program.click(button)
        return self.program.wait_for(picture, role="graphic")

    def copy(self, picture, answer="Yes"):
        self.program.click(picture, role="graphic", button=3)
        self.program.wait_for(COPY_QUESTION, window=SPLASH_TITLE)
        self.program.answer(answer, title=SPLASH_TITLE)


class Overlays(Pictures):
    def setUp(self):
        super().setUp()
        self.browse()
        self.clipboard = Clipboard(self.screen)

    def test_each_button_opens_its_picture_and_closes_it_again(self):
        for button, picture in (("Emblem", "emb69.jpg"), ("Script", "scri69.jpg"), ("ClipArt ", "69clip.jpg")):
            shown = self.show(button, picture)
            self.assertEqual(size_of(self.file_of(picture)), (shown.width, shown.height))
            self.assert_colour(self.screen, (shown.left + 5, shown.top + 5), UPPER_LEFT)
            self.assert_colour(self.screen, (shown.right - 5, shown.bottom - 5), LOWER_RIGHT)
            self.program.click(button)
            self.program.wait_for_none(picture)
        self.program.wait_for_view(title="1969", focus="ClipArt ")

    def test_a_click_on_a_picture_closes_it_and_the_keys_step_on(self):
        self.show("Emblem", "emb69.jpg")
        self.program.click("emb69.jpg", role="graphic")
        self.program.wait_for_none("emb69.jpg")
        self.program.wait_for_view(title="1969", focus="70")
        self.program.press("period")
        self.program.wait_for_view(number="2")

    def test_an_open_emblem_follows_the_year(self):
        self.show("Emblem", "emb69.jpg")
        self.program.click("70")
        self.program.wait_for("emb70.jpg", role="graphic")
        self.program.wait_for_none("emb69.jpg")

    def test_a_right_click_copies_the_picture_for_other_programs(self):
        for button, picture in (("Emblem", "emb69.jpg"), ("Script", "scri69.jpg"), ("ClipArt ", "69clip.jpg")):
            self.show(button, picture)
            self.copy(picture)
            self.assert_pasted(picture)
            self.assertIsNone(self.clipboard.text())

    def test_after_copying_the_keys_step_on(self):
        self.show("Emblem", "emb69.jpg")
        self.program.wait_for_view(focus="70")
        self.copy("emb69.jpg")
        self.program.wait_for_view(title="1969", focus="70")
        self.program.press("period")
        self.program.wait_for_view(number="2", focus="70")

    def test_no_leaves_the_clipboard_untouched(self):
        self.show("Emblem", "emb69.jpg")
        with self.clipboard.owned_by_another_program("a text of another program"):
            self.copy("emb69.jpg", answer="No")
            self.assertEqual(self.clipboard.text(), "a text of another program")

    def test_what_another_program_owns_is_replaced(self):
        self.show("Emblem", "emb69.jpg")
        with self.clipboard.owned_by_another_program("a text of another program"):
            self.copy("emb69.jpg")
            self.assert_pasted("emb69.jpg")
            self.assertIsNone(self.clipboard.text())

    def test_a_program_that_hangs_while_it_owns_the_clipboard_holds_nobody_up(self):
        self.show("Emblem", "emb69.jpg")
        with self.clipboard.owned_by_another_program("a text of another program") as owner:
            owner.send_signal(signal.SIGSTOP)
            self.copy("emb69.jpg")
            self.assert_pasted("emb69.jpg")

    def file_of(self, picture):
        return next(self.disc.folder.glob(f"*/{picture}"))

    def assert_pasted(self, picture):
        pasted = self.folder / "pasted.png"
        wait_until(lambda: self.clipboard.save_picture(pasted), f"{picture} on the clipboard")
        width, height = size_of(self.file_of(picture))
        self.assertEqual(size_of(pasted), (width, height))
        for place, colour in (((5, 5), UPPER_LEFT), ((width - 5, 5), UPPER_RIGHT), ((5, height - 5), LOWER_LEFT),
                              ((width - 5, height - 5), LOWER_RIGHT)):
            seen = colour_in(pasted, *place)
            self.assertTrue(all(abs(a - b) <= 6 for a, b in zip(seen, colour)), f"{seen} is not {colour}")


class Advertisement(Pictures):
    def open_ad(self, year="1969"):
        self.program.click("Advertisement")
        self.title = AD_TITLE.format(year)
        self.program.wait_for_window(self.title)
        return self.page(1200)

    def page(self, at_least):
        """The page in the view that is wider than that; waits until it is there."""
        def probe():
            return next((e for e in self.program.elements() if e.window == self.title and e.role == "graphic"
                         and e.width > at_least), None)
        return wait_until(probe, f"a page wider than {at_least}")

    def wait_for_colour(self, place, expected):
        def probe():
            return all(abs(a - b) <= 6 for a, b in zip(self.screen.colour_at(*place), expected))
        wait_until(probe, lambda: f"{expected} at {place}; it is {self.screen.colour_at(*place)}")

    def test_the_page_opens_over_the_whole_screen_at_full_size(self):
        self.browse()
        page = self.open_ad()
        self.assertEqual((page.left, page.top, page.width, page.height), (0, 0, 1240, 1610))
        window = next(e for e in self.program.elements() if e.window == self.title)
        self.assertEqual((window.left, window.top, window.width, window.height), (0, 0, 800, 600))
        close = self.program.wait_for("Close", window=self.title)
        self.assertEqual((close.right, close.bottom), (800, 600))
        bars = [e for e in self.program.elements() if e.window == self.title and e.role == "scroll bar"]
        self.assertEqual(len(bars), 2)
        self.assertTrue(all(bar.enabled and bar.right <= 800 and bar.bottom <= 600 for bar in bars))
        self.wait_for_colour((5, 5), UPPER_LEFT)
        self.wait_for_colour((700, 5), UPPER_RIGHT)

    def test_keys_and_wheel_scroll_to_every_corner(self):
        self.browse()
        self.open_ad()
        self.program.press("End")
        self.wait_for_colour((5, 570), LOWER_LEFT)
        self.program.press(*["Right"] * 20)
        self.wait_for_colour((770, 570), LOWER_RIGHT)
        self.wait_for_colour((5, 570), LOWER_LEFT)
        self.program.press("Home")
        self.wait_for_colour((770, 10), UPPER_RIGHT)
        page = self.page(1200)
        self.assertEqual((page.left, page.top), (800 - close_width(self.program) - 1240, 0))
        for _ in range(3):
            self.screen.press_mouse(300, 300, button=5)
        wait_until(lambda: self.page(1200).top < -100, "the wheel to scroll")
        self.assertEqual(self.page(1200).left, page.left)

    def test_a_left_click_zooms_out_to_the_whole_page_and_in_again(self):
        self.browse()
        self.open_ad()
        self.screen.press_mouse(300, 300)
        # 0.77 of the height wide, centred: 462 pixels from 169 on
        self.wait_for_colour((175, 5), UPPER_LEFT)
        self.wait_for_colour((625, 5), UPPER_RIGHT)
        self.wait_for_colour((175, 590), LOWER_LEFT)
        self.wait_for_colour((625, 590), LOWER_RIGHT)
        self.screen.press_mouse(300, 300)
        self.assertEqual(self.page(1200).width, 1240)
        self.wait_for_colour((5, 590 - 20), UPPER_LEFT)

    def test_a_landscape_page_fills_the_screen(self):
        self.browse()
        self.program.click("87")
        self.program.wait_for_view(title="1987")
        self.open_ad("1987")
        self.screen.press_mouse(300, 300)
        self.wait_for_colour((5, 5), UPPER_LEFT)
        self.wait_for_colour((795, 5), UPPER_RIGHT)
        self.wait_for_colour((5, 595), LOWER_LEFT)

    def test_right_click_corner_button_and_escape_close_it(self):
        self.browse()
        for close in (lambda: self.screen.press_mouse(300, 300, button=3), lambda: self.program.click("Close"),
                      lambda: self.program.press("Escape"), lambda: self.program.press("space")):
            self.open_ad()
            close()
            self.program.wait_for_no_window(self.title)
        self.program.click("70")
        self.program.wait_for_view(title="1970")

    def test_a_year_without_an_advertisement_says_sorry_and_goes_on(self):
        self.browse()
        self.program.click("70")
        self.program.wait_for_view(title="1970")
        for _ in range(2):
            self.program.click("Advertisement")
            self.program.wait_for(SORRY, window=BOX_TITLE)
            self.program.answer("OK")
        self.program.click("69")
        self.program.wait_for_view(title="1969")
        self.open_ad()

    def test_pages_that_are_no_pictures_say_sorry(self):
        self.browse()
        whole = (self.disc.folder / "ads" / "69brto00.jpg").read_bytes()
        for content in (b"no picture at all", b"", whole[:len(whole) // 2]):
            (self.disc.folder / "ads" / "69brto00.jpg").write_bytes(content)
            self.program.click("Advertisement")
            self.program.wait_for(SORRY, window=BOX_TITLE)
            self.program.answer("OK")

    def test_a_page_of_20000_pixels_scrolls_to_its_end(self):
        self.browse()
        write_bitmap(self.disc.folder / "ads" / "69brto00.jpg", 20000, 1000)
        page = self.open_ad()
        self.assertEqual(page.width, 20000)
        self.program.press("End")
        bar = next(e for e in self.program.elements() if e.role == "scroll bar" and e.width > e.height)
        self.screen.drag_mouse((bar.left + 22, bar.middle[1]), (bar.right + 50, bar.middle[1]))
        wait_until(lambda: self.page(1200).right == bar.right, "the end of the page")
        self.wait_for_colour((770, 570), LOWER_RIGHT)
        self.screen.press_mouse(300, 300)
        self.wait_for_colour((175, 5), UPPER_LEFT)
        self.wait_for_colour((625, 590), LOWER_RIGHT)

    def test_on_a_small_screen_all_is_in_reach(self):
        self.assert_in_reach(640, 480)

    def test_on_a_dense_screen_all_is_in_reach(self):
        self.assert_in_reach(2560, 1600, scale=2)

    def assert_in_reach(self, width, height, scale=1):
        self.browse(width, height, scale)
        button = self.program.wait_for("Advertisement")
        self.screen.press_mouse(button.left + 8, button.middle[1])
        self.title = AD_TITLE.format(self.program.view().title)
        self.program.wait_for_window(self.title)
        close = self.program.wait_for("Close", window=self.title)
        self.assertEqual((close.right, close.bottom), (width, height))
        self.program.click("Close")
        self.program.wait_for_no_window(self.title)
        self.program.press("space")  # the focus is on the button still
        self.program.wait_for_window(self.title)


def close_width(program):
    return program.wait_for("Close").width


if __name__ == "__main__":
    run()
