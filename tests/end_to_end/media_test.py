#!/usr/bin/python3 -B
"""Movies on the screen and sounds at a real sound server."""

import subprocess

from support.case import ProgramTest, run
from support.program import BOX_TITLE
from support.sound_server import SoundServer
from support.waiting import wait_until

FIRST_MOVIE = "Torvik Movies - The 1967 Torvik"
SECOND_MOVIE = "Torvik Movies - The 1969 Torvik"
BARS = ("white", "yellow", "cyan", "lime", "magenta", "red", "blue", "black")
COLOURS = ((255, 255, 255), (255, 255, 0), (0, 255, 255), (0, 255, 0), (255, 0, 255), (255, 0, 0), (0, 0, 255), (0, 0, 0))


def encode(file, pictures, *codecs, seconds=12):
    """A movie with a loud tone."""
    file.parent.mkdir(exist_ok=True)
    subprocess.run(["ffmpeg", "-v", "error", "-y", "-f", "lavfi", "-i", pictures,
                    "-f", "lavfi", "-i", f"sine=440:d={seconds}:r=22050,volume=4", *codecs, str(file)],
                   stdin=subprocess.DEVNULL, check=True)


class Media(ProgramTest):
    def setUp(self):
        super().setUp()
        self.disc = self.make_disc()
        self.screen = self.make_screen(1024, 768)

    def add_movies(self):
        movies = self.disc.folder / "movies"
        encode(movies / "torvik67.avi", "testsrc=s=320x240:r=15:d=12", "-c:v", "mjpeg", "-q:v", "3", "-c:a", "pcm_s16le")
        parts = ";".join(f"color={colour}:s=40x240:r=15:d=12[b{index}]" for index, colour in enumerate(BARS))
        joined = "".join(f"[b{index}]" for index in range(len(BARS)))
        encode(movies / "torvik69.avi", f"{parts};{joined}hstack=8", "-c:v", "cinepak", "-c:a", "adpcm_ima_wav")

    def add_sounds(self):
        sounds = self.disc.folder / "wav"
        sounds.mkdir()
        for name, codec in (("backfrng.wav", "pcm_u8"), ("car_door.wav", "adpcm_ms")):
            subprocess.run(["ffmpeg", "-v", "error", "-f", "lavfi", "-i", "sine=440:d=30:r=11025,volume=4",
                            "-c:a", codec, str(sounds / name)], stdin=subprocess.DEVNULL, check=True)

    def make_sound_server(self):
        server = SoundServer()
        self.addCleanup(server.__exit__)
        self.screen.environment["PULSE_SERVER"] = server.address
        return server

    def open_movies(self):
        program = self.start(self.screen, self.disc.folder)
        program.start_browsing()
        program.choose("Movies")
        program.wait_for_window(FIRST_MOVIE)
        return program

    def grab(self, program):
        place = program.wait_for("Movie")
        return self.screen.pixels(place.left, place.top, place.width, place.height)

    def test_pictures_move_on_the_screen_and_stop_goes_back_to_the_first(self):
        self.add_movies()
        program = self.open_movies()
        program.click("Prev", window=FIRST_MOVIE)
        first = self.grab(program)
        program.click("Play", window=FIRST_MOVIE)
        wait_until(lambda: self.grab(program) != first, "the second picture")
        later = self.grab(program)
        wait_until(lambda: self.grab(program) not in (first, later), "a third picture")
        program.click("Stop", window=FIRST_MOVIE)
        wait_until(lambda: self.grab(program) == first, "the first picture again")
        self.assertEqual(self.grab(program), first)

    def test_a_movie_shows_its_colours(self):
        self.add_movies()
        program = self.open_movies()
        program.click("1969 Torvik", role="radio button")
        program.wait_for_window(SECOND_MOVIE)
        program.click("Step", window=SECOND_MOVIE)
        place = program.wait_for("Movie")
        width = min(place.width, place.height * 4 / 3)
        for index, expected in enumerate(COLOURS):
            x = place.middle[0] + ((index + 0.5) / len(COLOURS) - 0.5) * width
            seen = self.screen.colour_at(x, place.middle[1])
            with self.subTest(BARS[index]):
                self.assertTrue(all(abs(a - b) <= 12 for a, b in zip(seen, expected)), f"{seen} is not {expected}")

    def test_a_movie_is_heard_and_exit_ends_it(self):
        self.add_movies()
        server = self.make_sound_server()
        program = self.open_movies()
        server.wait_for_silence()
        program.click("Play", window=FIRST_MOVIE)
        server.wait_for_sound()
        program.click("Exit", window=FIRST_MOVIE)
        program.wait_for_view(title="1967")
        server.wait_for_silence()

    def test_a_sound_effect_reaches_the_sound_server_until_stop(self):
        self.add_sounds()
        server = self.make_sound_server()
        program = self.start(self.screen, self.disc.folder)
        program.start_browsing()
        program.choose("Sound Effects")
        for label in ("Backfiring", "Car Door"):
            program.click(label)
            server.wait_for_sound()
            program.click("Stop")
            server.wait_for_silence()
        program.click("Backfiring")
        server.wait_for_sound()
        program.click("Close")
        program.wait_for_none("Automobile Sound Effects")
        server.wait_for_sound()

    def test_a_sound_server_that_goes_away_ends_nothing(self):
        self.add_movies()
        self.add_sounds()
        server = self.make_sound_server()
        program = self.start(self.screen, self.disc.folder)
        program.start_browsing()
        program.choose("Sound Effects")
        program.click("Backfiring")
        server.wait_for_sound()
        server.end()
        program.click("Car Door")
        program.click("Stop")
        program.click("Close")
        program.choose("Movies")
        program.wait_for_window(FIRST_MOVIE)
        program.click("Play", window=FIRST_MOVIE)
        first = self.grab(program)
        wait_until(lambda: self.grab(program) != first, "another picture")
        program.click("Exit", window=FIRST_MOVIE)
        program.wait_for_view(title="1967")

    def test_a_missing_sound_is_reported(self):
        program = self.start(self.screen, self.disc.folder)
        program.start_browsing()
        program.choose("Sound Effects")
        program.click("Going By")
        program.wait_for_window(BOX_TITLE)
        self.assertIsNotNone(next((element for element in program.elements()
                                   if element.name.startswith("Error number: ER038")), None))
        program.answer("OK")


if __name__ == "__main__":
    run()
