#!/usr/bin/python3 -B
"""The walk through all that the browser has, one click on the photo after the other."""

from support.case import ProgramTest, run

YEARS = [str(year) for year in range(1967, 2002)]
BEHIND_THE_YEARS = [
    ("Danbury Mint Die Cast Models ", "TD"),
    ("Franklin Mint Die Cast Models ", "TF"),
    ("Torvik Metal Signs ", "VM"),
    ("Torvik Postage Stamps ", "ZZ"),
]


def prefix_of(year):
    return {"2000": "A0", "2001": "A1"}.get(year, year[2:])


class Walk(ProgramTest):
    def walk_on(self, program, disc, screen, title, prefix):
        program.click_photo()
        photo = disc.photos_of(prefix)[0]
        program.wait_for_view(title=title, photo=photo, number="1")
        self.assert_colour(screen, program.find(photo).middle, disc.photos[photo])

    def test_clicks_lead_through_the_years_and_four_topics_and_back_to_1967(self):
        disc = self.make_disc()
        screen = self.make_screen()
        program = self.start(screen, disc.folder)
        program.start_browsing()
        for year in YEARS[1:]:
            self.walk_on(program, disc, screen, year, prefix_of(year))
        for title, prefix in BEHIND_THE_YEARS:
            self.walk_on(program, disc, screen, title, prefix)
        self.walk_on(program, disc, screen, "1967 ", "67")
        self.walk_on(program, disc, screen, "1968", "68")


if __name__ == "__main__":
    run()
