"""What the tests of the real program have in common."""

import tempfile
import unittest
from pathlib import Path

from support.program import Program
from support.screen import Screen
from support.session import enter_private_session
from support.small_disc import SmallDisc


class ProgramTest(unittest.TestCase):
    """A folder of its own for each test: a home, a program folder, and a disc where one is made."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="torvik-test-")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.program_folder = self.folder / "program"

    def make_disc(self, further=()):
        return SmallDisc(self.folder / "disc", further)

    def make_screen(self, width=800, height=600, managed=True, manager=None, monitors=1):
        screen = Screen(width, height, managed, manager, monitors)
        self.addCleanup(screen.__exit__)
        return screen

    def start(self, screen, *arguments, scale=1, folder=None, complaints=None):
        """The program on a screen, for the one user of the test."""
        program = Program(screen, self.folder / "home", "--program-folder", self.program_folder, *arguments,
                          scale=scale, folder=folder, complaints=complaints)
        self.addCleanup(program.__exit__)
        return program

    def assert_colour(self, screen, place, expected):
        """A JPEG picture keeps its colours nearly, not exactly."""
        seen = screen.colour_at(*place)
        self.assertTrue(all(abs(a - b) <= 6 for a, b in zip(seen, expected)), f"{seen} is not {expected}")


def run():
    enter_private_session()
    unittest.main(verbosity=2)
