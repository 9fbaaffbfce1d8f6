#!/usr/bin/python3 -B
"""Steps through the photos of one year, by keys and by the arrows."""

from support.case import ProgramTest, run


class Stepping(ProgramTest):
    def setUp(self):
        super().setUp()
        self.disc = self.make_disc()
        self.program = self.start(self.make_screen(), self.disc.folder)
        self.program.start_browsing()
        self.program.click("69")
        self.photos = self.disc.photos_of("69")
        self.program.wait_for_view(title="1969", photo=self.photos[0], number="1", focus="70")

    def wait_for_photo(self, index):
        self.program.wait_for_view(title="1969", photo=self.photos[index], number=str(index + 1), focus="70")

    def test_the_period_key_walks_through_the_year_and_round_to_its_first_photo(self):
        for index in [1, 2, 3, 4, 0]:
            self.program.press("period")
            self.wait_for_photo(index)

    def test_the_comma_key_walks_back_from_the_last_photo(self):
        for index in [4, 3, 2, 1, 0, 4]:
            self.program.press("comma")
            self.wait_for_photo(index)

    def test_a_change_of_direction_lands_on_the_neighbour(self):
        for key, index in [("period", 1), ("period", 2), ("comma", 1), ("comma", 0), ("period", 1)]:
            self.program.press(key)
            self.wait_for_photo(index)

    def test_the_arrows_step_as_the_keys_do(self):
        self.program.click("Next photo")
        self.wait_for_photo(1)
        self.program.click("Previous photo")
        self.wait_for_photo(0)

    def test_the_menu_shows_and_hides_the_name_of_the_file(self):
        self.program.choose("File", "Show File Names")
        self.program.wait_for(self.photos[0], role="text")
        self.program.press("period")
        self.program.wait_for(self.photos[1], role="text")
        self.program.choose("File", "Hide File Names")
        self.program.wait_for_none(self.photos[1], role="text")


if __name__ == "__main__":
    run()
