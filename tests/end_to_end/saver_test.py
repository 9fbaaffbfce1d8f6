#!/usr/bin/python3 -B
"""The screen saver: installed by the program, then run by the desktop."""

import shutil
import subprocess

from support.case import ProgramTest, run
from support.program import MAIN_TITLE, SPLASH_TITLE
from support.saver import Saver, built_saver, installed_saver, is_alike, write_settings
from support.waiting import wait_until

BLACK = (0, 0, 0)
MIDDLE = (400, 300)


class SaverTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.home = self.folder / "home"
        self.home.mkdir()

    def make_photos(self, *colours, size="400x300"):
        """A folder of photos in plain colours."""
        folder = self.folder / "photos"
        folder.mkdir()
        for index, (red, green, blue) in enumerate(colours):
            subprocess.run(["convert", "-size", size, f"xc:rgb({red},{green},{blue})", "-quality", "100",
                            f"JPEG:{folder / f'{index}.JPG'}"], check=True)
        return folder

    def run_saver(self, screen, *arguments, **options):
        saver = Saver(screen, self.home, *arguments, **options)
        self.addCleanup(saver.__exit__)
        return saver

    def start_show(self, screen):
        """The saver with one red photo on the whole screen."""
        write_settings(self.home, 1, self.make_photos((200, 30, 30)))
        saver = self.run_saver(screen, "/s")
        saver.wait_for_colour(MIDDLE, [(200, 30, 30)], "the photo")
        return saver


class Installation(SaverTest):
    def test_selected_photos_are_installed_and_shown_by_the_copy_in_the_windows_folder(self):
        disc = self.make_disc()
        screen = self.make_screen()
        self.program_folder.mkdir()
        shutil.copy(built_saver(), self.program_folder)
        program = self.start(screen, disc.folder)
        program.start_browsing()
        for year, photo in (("69", "69A.JPG"), ("85", "85A.JPG")):
            program.click(year)
            program.wait_for_view(photo=photo)
            program.click_photo(button=3)
            program.click("Add this photo to list")
            program.wait_for("Photo Successfully Copied!", window=SPLASH_TITLE)
            program.press("Return")
            program.wait_for_none("Photo Successfully Copied!")
            program.click("Exit", window=SPLASH_TITLE)
            program.wait_for_none("Add this photo to list")

        program.choose("File", "Install Screen saver")
        program.wait_for("Install Screen Saver", role="label", window=MAIN_TITLE)
        program.click("Selected Photos", role="radio button")
        program.click("Longer delay")
        program.wait_for("2 Seconds", role="label")
        program.click("Install")
        program.wait_for_window(SPLASH_TITLE)
        program.answer("OK", title=SPLASH_TITLE)
        program.kill()

        self.assertTrue(installed_saver(self.home).is_file())
        colours = [disc.photos["69A.JPG"], disc.photos["85A.JPG"]]
        saver = self.run_saver(screen, "/s", file=installed_saver(self.home))
        first = saver.wait_for_colour(MIDDLE, colours, "one of the photos")
        second = saver.wait_for_colour(MIDDLE, [colours[1 - first]], "the other photo")
        self.assertEqual(second, 0)
        saver.wait_for_colour(MIDDLE, [colours[first]], "the first photo again")
        screen.press_key("space")
        self.assertEqual(saver.wait_for_end(), (0, "", ""))


    def test_closing_the_window_while_an_installation_waits_for_copies_ends_the_program(self):
        disc = self.make_disc()
        program = self.start(self.make_screen(), disc.folder)
        program.start_browsing()
        program.choose("File", "Install Screen saver")
        program.click("Install")
        program.answer("Yes", title=SPLASH_TITLE)
        program.wait_for("Copy Photos", role="push button")
        program.click("69")
        program.wait_for_view(title="1969", photo="69A.JPG")
        program.click("Exit", window=MAIN_TITLE)
        self.assertEqual(0, program.wait_for_end())
        self.assertFalse(installed_saver(self.home).exists())


class Show(SaverTest):
    def test_a_photo_covers_the_screen_with_its_proportions_kept(self):
        screen = self.make_screen()
        write_settings(self.home, 1, self.make_photos((30, 160, 60), size="400x150"))
        saver = self.run_saver(screen, "/s")
        saver.wait_for_colour(MIDDLE, [(30, 160, 60)], "the photo")
        for place in ((2, 300), (797, 300), (400, 153), (400, 446)):
            self.assert_colour(screen, place, (30, 160, 60))
        for place in ((400, 145), (400, 455), (2, 2), (797, 597)):
            self.assert_colour(screen, place, BLACK)

    def test_one_photo_fades_into_the_next(self):
        red, blue = (200, 0, 0), (0, 0, 200)
        screen = self.make_screen()
        write_settings(self.home, 3, self.make_photos(red, blue))
        saver = self.run_saver(screen, "/s")
        saver.wait_for_colour(MIDDLE, [red], "the red photo")

        def mixture():
            red_part, green_part, blue_part = screen.colour_at(*MIDDLE)
            return 10 < red_part < 190 and green_part < 10 and abs(red_part + blue_part - 200) <= 12
        wait_until(mixture, "a mixture of both photos")
        saver.wait_for_colour(MIDDLE, [blue], "the blue photo")

    def test_a_key_ends_it(self):
        screen = self.make_screen()
        saver = self.start_show(screen)
        screen.press_key("a")
        self.assertEqual(saver.wait_for_end(), (0, "", ""))

    def test_a_click_ends_it(self):
        screen = self.make_screen()
        saver = self.start_show(screen)
        screen.press_mouse(*MIDDLE)
        self.assertEqual(saver.wait_for_end()[0], 0)

    def test_a_tremble_of_the_mouse_does_not_end_it_but_a_move_does(self):
        screen = self.make_screen()
        saver = self.start_show(screen)
        for step in ((1, 0), (0, 2), (-2, -1)):
            screen.nudge_mouse(*step)
        saver.wait_for_colour(MIDDLE, [(200, 30, 30)], "the photo")
        self.assertTrue(saver.is_running())
        screen.nudge_mouse(12, 5)
        self.assertEqual(saver.wait_for_end()[0], 0)

    def test_it_is_sharp_on_a_dense_screen(self):
        """Stripes of one pixel each stay black and white."""
        screen = self.make_screen()
        folder = self.folder / "stripes"
        folder.mkdir()
        subprocess.run(["convert", "-size", "2x600", "pattern:horizontal2", "-scale", "800x600!", "-quality", "100",
                        f"JPEG:{folder / 'A.JPG'}"], check=True)
        write_settings(self.home, 1, folder)
        self.run_saver(screen, "/s", scale=2)

        def rows():
            return [sum(screen.colour_at(400, 300 + row)) / 3 for row in range(4)]
        wait_until(lambda: max(rows()) > 230 and min(rows()) < 25, lambda: f"sharp stripes; they are {rows()}")

    def test_a_damaged_photo_is_passed_over(self):
        red, blue = (200, 0, 0), (0, 0, 200)
        screen = self.make_screen()
        folder = self.make_photos(red, red, blue)
        photo = folder / "1.JPG"
        photo.write_bytes(photo.read_bytes()[:500])
        (folder / "0.JPG").write_text("no picture")
        write_settings(self.home, 1, folder)
        saver = self.run_saver(screen, "/s")
        saver.wait_for_colour(MIDDLE, [blue], "the one sound photo")

    def test_a_missing_folder_shows_the_title_card(self):
        screen = self.make_screen()
        write_settings(self.home, 1, self.folder / "nowhere")
        saver = self.run_saver(screen, "/s")
        wait_until(lambda: screen.count_colours(250, 150, 300, 200) > 1000, "the title picture")
        self.assertGreater(screen.count_colours(250, 390, 300, 100), 20)
        self.assert_colour(screen, (5, 5), BLACK)
        screen.press_key("Escape")
        self.assertEqual(saver.wait_for_end(), (0, "", ""))

    def test_before_the_installation_the_title_card_is_shown_too(self):
        screen = self.make_screen()
        saver = self.run_saver(screen, "-s")
        wait_until(lambda: screen.count_colours(250, 150, 300, 200) > 1000, "the title picture")
        self.assertTrue(saver.is_running())

    def test_photos_that_come_later_take_the_place_of_the_card(self):
        screen = self.make_screen()
        write_settings(self.home, 1, self.folder / "photos")
        saver = self.run_saver(screen, "/s")
        wait_until(lambda: screen.count_colours(250, 150, 300, 200) > 1000, "the title picture")
        self.make_photos((30, 160, 60))
        saver.wait_for_colour((5, 5), [(30, 160, 60)], "the photo")

    def test_a_drive_that_is_named_holds_the_photos(self):
        screen = self.make_screen()
        self.make_photos((30, 160, 60))
        write_settings(self.home, 1, "G:\\photos\\")
        saver = self.run_saver(screen, "/s", "--drive", f"G={self.folder}")
        saver.wait_for_colour(MIDDLE, [(30, 160, 60)], "the photo")

    def test_the_embedded_disc_is_found_above_the_installed_saver(self):
        screen = self.make_screen()
        installed = installed_saver(self.home)
        installed.parent.mkdir(parents=True)
        shutil.copy(built_saver(), installed)
        disc = installed.parent.parent / "disc"
        shutil.copytree(self.make_photos((30, 160, 60)), disc / "Torviks")
        write_settings(self.home, 1, "Z:\\Torviks\\")
        saver = self.run_saver(screen, "/s", file=installed)
        saver.wait_for_colour(MIDDLE, [(30, 160, 60)], "the photo")


class Embedded(SaverTest):
    def open_host(self, screen):
        """A window of another program, 300 by 200 pixels, which writes down what happens to it; and its number."""
        with open(self.folder / "events", "w", encoding="utf-8") as events:
            host = subprocess.Popen(["setpriv", "--pdeathsig", "KILL", "xev", "-geometry", "300x200+100+100"],
                                    env=screen.environment, stdin=subprocess.DEVNULL, stdout=events)
        self.addCleanup(host.wait)
        self.addCleanup(host.kill)
        number = wait_until(lambda: screen.find_window("Event Tester"), "the host window")
        return host, number

    def events(self):
        """How often the host was told of a click and of a key."""
        text = (self.folder / "events").read_text(encoding="utf-8")
        return text.count("\nButtonPress event"), text.count("\nKeyPress event")

    def place_in(self, screen, number):
        left, top = screen.place_of(number)
        return left + 200, top + 100

    def test_the_show_stays_inside_the_window_and_leaves_keys_and_mouse_to_it(self):
        screen = self.make_screen()
        _, number = self.open_host(screen)
        green = (30, 160, 60)
        write_settings(self.home, 1, self.make_photos(green, size="300x200"))
        for arguments, variables in ((("-window-id", number), {}), (("/p", hex(int(number))), {}),
                                     (("-root",), {"XSCREENSAVER_WINDOW": hex(int(number))})):
            with self.subTest(arguments):
                clicks, keys = self.events()
                saver = self.run_saver(screen, *arguments, **variables)
                place = self.place_in(screen, number)
                saver.wait_for_colour(place, [green], "the photo in the window")
                self.assertFalse(is_alike(screen.colour_at(place[0] + 300, place[1]), green))
                screen.press_mouse(*place)
                screen.press_key("a")
                screen.nudge_mouse(20, 20)
                wait_until(lambda: self.events() == (clicks + 1, keys + 1), lambda: f"the events; they are {self.events()}")
                saver.wait_for_colour(place, [green], "the photo in the window")
                saver.__exit__()

    def test_it_follows_the_windows_size_and_ends_with_the_window(self):
        screen = self.make_screen()
        host, number = self.open_host(screen)
        green = (30, 160, 60)
        write_settings(self.home, 1, self.make_photos(green, size="300x200"))
        saver = self.run_saver(screen, "-window-id", number)
        saver.wait_for_colour(self.place_in(screen, number), [green], "the photo in the window")
        screen.size_window(number, 600, 400)
        left, top = screen.place_of(number)
        saver.wait_for_colour((left + 590, top + 390), [green], "the photo in the larger window")
        host.kill()
        self.assertEqual(saver.wait_for_end()[0], 0)

    def test_a_window_that_is_not_there_is_told(self):
        screen = self.make_screen()
        saver = self.run_saver(screen, "-window-id", "0x7777777")
        code, said, complained = saver.wait_for_end()
        self.assertEqual((code, said), (2, ""))
        self.assertIn("There is no window 125269879.", complained)

    def test_without_a_window_the_show_runs_behind_all_others(self):
        screen = self.make_screen()
        _, number = self.open_host(screen)
        green = (30, 160, 60)
        write_settings(self.home, 1, self.make_photos(green))
        saver = self.run_saver(screen, "-root")
        saver.wait_for_colour((700, 500), [green], "the photo on the desktop")
        self.assertFalse(is_alike(screen.colour_at(*self.place_in(screen, number)), green))
        screen.press_key("a")
        screen.nudge_mouse(50, 50)
        saver.wait_for_colour((700, 500), [green], "the photo on the desktop")


class Information(SaverTest):
    def test_without_a_task_it_tells_what_it_shows(self):
        screen = self.make_screen()
        write_settings(self.home, 15, self.folder / "photos")
        for arguments in ((), ("/c",), ("/C:4711",)):
            with self.subTest(arguments):
                saver = self.run_saver(screen, *arguments)
                window = screen.window_of(saver.process)
                self.assertEqual(screen.title_of(window), "The Torvik Vollandry 2001")
                screen.press_key("Return")
                self.assertEqual(saver.wait_for_end()[0], 0)

    def test_help_and_version_need_no_display(self):
        screen = self.make_screen()
        code, said, complained = self.run_saver(screen, "--help", DISPLAY="").wait_for_end()
        self.assertEqual((code, complained), (0, ""))
        self.assertIn("Usage: Torvik2001.scr", said)
        code, said, complained = self.run_saver(screen, "--version", DISPLAY="").wait_for_end()
        self.assertEqual((code, complained), (0, ""))
        self.assertRegex(said, r"^Torvik2001\.scr 2001\.\d+\n$")

    def test_a_wrong_argument_is_told(self):
        screen = self.make_screen()
        code, _, complained = self.run_saver(screen, "--bogus").wait_for_end()
        self.assertEqual(code, 2)
        self.assertIn("There is no option --bogus.", complained)


if __name__ == "__main__":
    run()
