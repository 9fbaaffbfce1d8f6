#!/usr/bin/python3 -B
"""The sample disc as an image: walked through, looked at, listened to and copied as from its folder."""

from support.case import ProgramTest, run
from support.disc_image import FolderDisc, make_bin_and_cue, make_iso
from support.program import BOX_TITLE, executable
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
