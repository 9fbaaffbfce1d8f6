"""A copy where there is no room for it."""

from support.program import BOX_TITLE

# A file system that never has any.
CURRENT_FOLDER = "/proc"


def too_little_room(program):
    program.start_browsing()
    program.choose("File", "Copy CD-ROM movies to hard drive")
    program.wait_for_window(BOX_TITLE)


STOPS = (too_little_room,)
