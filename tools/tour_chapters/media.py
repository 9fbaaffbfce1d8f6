"""The movie player, waiting and playing, and the panel of sound effects."""

from support.waiting import wait_until

FIRST_MOVIE = "Torvik Movies - The 1967 Torvik"
SECOND_MOVIE = "Torvik Movies - The 1969 Torvik"


def movie_player(program):
    program.start_browsing()
    program.choose("Movies")
    program.wait_for("Exit", window=FIRST_MOVIE)
    wait_until(lambda: program.find("Play", window=FIRST_MOVIE).enabled, "the movie")


def movie_playing(program):
    go_on_to(program, 0.4)
    program.click("Play", window=FIRST_MOVIE)
    play_for_a_while(program)


def movie_paused(program):
    program.click("1969 Torvik", role="radio button")
    program.wait_for_window(SECOND_MOVIE)
    go_on_to(program, 0.25)
    program.click("Play", window=SECOND_MOVIE)
    play_for_a_while(program)
    program.click("Pause", window=SECOND_MOVIE)


def driver_offer(program):
    program.click("Help", window=SECOND_MOVIE)
    program.wait_for("No")


def sound_effects(program):
    program.click("No")
    program.click("Exit", window=SECOND_MOVIE)
    program.click("85")
    program.wait_for_view(title="1985", number="1")
    program.choose("Sound Effects")
    program.wait_for("Automobile Sound Effects")


def go_on_to(program, share):
    """Presses the groove of the position, after the title card."""
    wait_until(lambda: program.find("Play").enabled, "the movie")
    position = program.find("Position")
    program.screen.press_mouse(position.left + position.width * share, position.middle[1])


def play_for_a_while(program):
    """Lets some pictures pass."""
    place = program.wait_for("Movie")
    for _ in range(3):
        seen = program.screen.pixels(place.left, place.top, place.width, place.height)
        wait_until(lambda: program.screen.pixels(place.left, place.top, place.width, place.height) != seen,
                   "another picture")


STOPS = (movie_player, movie_playing, movie_paused, driver_offer, sound_effects)
