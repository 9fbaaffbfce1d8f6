#!/usr/bin/python3 -B
"""A disc as an image: walked through, looked at, listened to, printed, copied and shown by the saver as from its folder."""

import subprocess

from media_test import FIRST_MOVIE, encode
from support.case import ProgramTest, run
from support.disc_image import FolderDisc, make_bin_and_cue, make_iso
from support.program import BOX_TITLE, executable
from support.saver import Saver, write_settings
from support.sound_server import SoundServer
from support.waiting import wait_until
from walk_test import BEHIND_THE_YEARS, YEARS, prefix_of


class Image(ProgramTest):
    def sample_disc(self):
        """The build's own; a small one where the build was told to make none."""
        built = executable().parent.parent / "disc"
        return FolderDisc(built) if (built / "Torviks").is_dir() else self.make_disc()

    def walk(self, screen, disc, image, expected=None):
        """Clicks through all years and four topics; returns what the photos look like, by their names, and waits for
        those that are expected."""
        program = self.start(screen, image)
        program.start_browsing()
        looks = {}
        for title, prefix in [(year, prefix_of(year)) for year in YEARS[1:]] + BEHIND_THE_YEARS:
            program.click_photo()
            photo = disc.photos_of(prefix)[0]
            program.wait_for_view(title=title, photo=photo, number="1")
            looks[photo] = self.look(screen, program.find(photo), expected and expected[photo])
        program.kill()
        return looks

    def look(self, screen, place, expected):
        """What is on the screen there when it does not change any more, or when it is as expected."""
        seen = [None]

        def is_settled():
            seen.append(screen.pixels(place.left, place.top, place.width, place.height))
            return seen[-1] == (expected or seen[-2])

        wait_until(is_settled, f"{place.name} to look as expected")
        return seen[-1]

    def test_the_walk_through_the_years_looks_the_same_from_folder_iso_and_bin(self):
        disc = self.sample_disc()
        screen = self.make_screen()
        from_folder = self.walk(screen, disc, disc.folder)
        self.assertEqual(len(set(from_folder.values())), len(from_folder))
        self.walk(screen, disc, make_iso(disc.folder, self.folder / "disc.iso"), from_folder)
        self.walk(screen, disc, make_bin_and_cue(disc.folder, self.folder / "disc.cue"), from_folder)

    def test_photos_are_copied_from_an_image(self):
        disc = self.make_disc()
        screen = self.make_screen()
        program = self.start(screen, "--drive", f"G={make_bin_and_cue(disc.folder, self.folder / 'disc.cue')}")
        program.start_browsing()
        program.choose("File", "Copy CD-ROM photos to hard drive")
        program.click("Copy Photos")
        program.wait_for_window(BOX_TITLE)
        program.answer("OK")
        for name in disc.photos:
            self.assertEqual((disc.folder / "Torviks" / name).read_bytes(),
                             (self.program_folder / "Torviks" / name).read_bytes())

    def test_movies_and_sounds_are_played_from_an_image(self):
        disc = self.make_disc()
        movie = disc.folder / "movies" / "torvik67.avi"
        encode(movie, "testsrc=s=320x240:r=15:d=12", "-c:v", "mjpeg", "-q:v", "3", "-c:a", "pcm_s16le")
        sound = disc.folder / "wav" / "backfrng.wav"
        sound.parent.mkdir()
        subprocess.run(["ffmpeg", "-v", "error", "-f", "lavfi", "-i", "sine=440:d=30:r=11025,volume=4", str(sound)],
                       stdin=subprocess.DEVNULL, check=True)
        server = SoundServer()
        self.addCleanup(server.__exit__)
        screen = self.make_screen(1024, 768)
        screen.environment["PULSE_SERVER"] = server.address
        program = self.start(screen, make_bin_and_cue(disc.folder, self.folder / "disc.cue"))
        program.start_browsing()
        program.choose("Sound Effects")
        program.click("Backfiring")
        server.wait_for_sound()
        program.click("Stop")
        server.wait_for_silence()
        program.click("Close")
        program.choose("Movies")
        program.wait_for_window(FIRST_MOVIE)
        program.click("Prev", window=FIRST_MOVIE)
        place = program.wait_for("Movie")

        def picture():
            return screen.pixels(place.left, place.top, place.width, place.height)

        first = picture()
        program.click("Next", window=FIRST_MOVIE)
        wait_until(lambda: picture() != first, "the last picture")
        program.click("Prev", window=FIRST_MOVIE)
        wait_until(lambda: picture() == first, "the first picture again")

    def test_an_article_is_printed_from_an_image(self):
        disc = self.make_disc()
        texts = disc.folder / "RichText"
        texts.mkdir(exist_ok=True)
        (texts / "books.rtf").write_text(r"{\rtf1\ansi All books about it.}", "ascii")
        printed = self.folder / "printed"
        program = self.start(self.make_screen(), "--print-to", printed, make_iso(disc.folder, self.folder / "disc.iso"))
        program.start_browsing()
        program.choose("Literature", "Torvik Books")
        program.click("Print")
        program.click("Yes", window=BOX_TITLE)
        program.wait_for("Printing complete!", window=BOX_TITLE)
        program.answer("OK")
        text = subprocess.run(["pdftotext", str(printed / "job-1.pdf"), "-"], capture_output=True, text=True, check=True)
        self.assertIn("All books about it.", text.stdout)

    def test_the_saver_shows_the_photos_of_an_image(self):
        disc = self.make_disc()
        image = make_iso(disc.folder, self.folder / "disc.iso")
        screen = self.make_screen()
        home = self.folder / "home"
        home.mkdir()
        write_settings(home, 1, "E:\\Torviks\\")
        saver = Saver(screen, home, "/s", "--drive", f"E={image}")
        self.addCleanup(saver.__exit__)
        saver.wait_for_colour((400, 300), list(disc.photos.values()), "a photo")

    def test_an_image_in_the_program_folder_is_the_disc(self):
        disc = self.make_disc()
        self.program_folder.mkdir()
        make_iso(disc.folder, self.program_folder / "disc.iso")
        program = self.start(self.make_screen())
        program.start_browsing()

    def test_an_image_that_is_none_is_no_disc(self):
        image = self.folder / "disc.iso"
        image.write_bytes(b"no image")
        program = self.start(self.make_screen(), image)
        program.wait_for_window(BOX_TITLE)
        make_iso(self.make_disc().folder, image)  # the image comes while the program asks for the disc
        program.answer("Retry")
        program.start_browsing()


if __name__ == "__main__":
    run()
