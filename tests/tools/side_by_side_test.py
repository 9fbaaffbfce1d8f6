#!/usr/bin/env python3
"""Shows what tools/side_by_side hands to our program, with stand-ins for the office suite and for that program."""

import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from stand_in_suite import StandIns  # noqa: E402


class SideBySideTest(unittest.TestCase):
    def setUp(self):
        self.stand_ins = StandIns()
        self.addCleanup(self.stand_ins.remove)
        self.into = self.stand_ins.folder / "pictures"

    def run_tool(self, **how):
        return self.stand_ins.run("side_by_side", "--into", str(self.into), **how)

    def pages_handed_over(self, name):
        return [Path(page).name for page in (self.into / f"{name}.told").read_text().splitlines()]

    def test_the_pages_of_the_suite_are_handed_over_in_their_order(self):
        self.stand_ins.write("bonnet.rtf", "A bonnet")
        self.stand_ins.write("wheel.rtf", "A wheel")
        said = self.run_tool()
        self.assertEqual(said.returncode, 0, said.stderr)
        self.assertEqual(said.stdout, "bonnet.rtf: 2 pages of the suite\nwheel.rtf: 2 pages of the suite\n")
        self.assertEqual(self.pages_handed_over("bonnet"), ["0-1.png", "0-2.png"])
        self.assertEqual(self.pages_handed_over("wheel"), ["1-1.png", "1-2.png"])

    def test_what_the_suite_does_not_read_is_shown_alone(self):
        self.stand_ins.write("wheel.rtf", "unreadable")
        said = self.run_tool()
        self.assertEqual(said.returncode, 0, said.stderr)
        self.assertEqual(said.stdout, "wheel.rtf: 0 pages of the suite\n")
        self.assertEqual(self.pages_handed_over("wheel"), [])

    def test_without_the_suite_it_tells_what_is_missing(self):
        self.stand_ins.take_away("bin/soffice")
        said = self.run_tool(path=str(self.stand_ins.folder / "bin"))
        self.assertEqual(said.returncode, 1)
        self.assertEqual(said.stderr, "soffice is not installed, so there is nothing to compare with. "
                                      "LibreOffice: apt-get install libreoffice-writer-nogui\n")
        self.assertFalse(self.into.exists())

    def test_without_the_maker_of_pictures_it_tells_what_is_missing(self):
        self.stand_ins.take_away("bin/pdftoppm")
        said = self.run_tool(path=str(self.stand_ins.folder / "bin"))
        self.assertEqual(said.returncode, 1)
        self.assertEqual(said.stderr, "pdftoppm is not installed, so there is nothing to compare with. "
                                      "apt-get install poppler-utils\n")


if __name__ == "__main__":
    unittest.main()
