#!/usr/bin/python3 -B
"""The check of a disc from the command line, on the sample disc where there is one."""

import json
import os
import shutil
import subprocess

from support.case import ProgramTest, run
from support.disc_image import make_bin_and_cue, make_iso
from support.program import executable
from support.session import home_variables


class Check(ProgramTest):
    def check(self, *arguments):
        """Runs the check without any display; returns its exit code, what it printed and what it complained of."""
        home = self.folder / "home"
        home.mkdir(exist_ok=True)
        surroundings = {name: value for name, value in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
        done = subprocess.run([str(executable()), "--check", *map(str, arguments)], capture_output=True, text=True,
                              env={**surroundings, **home_variables(home)}, stdin=subprocess.DEVNULL, check=False)
        return done.returncode, done.stdout, done.stderr

    def copy_sample(self):
        built = executable().parent.parent / "disc"
        if not (built / "Torviks").is_dir():
            self.fail("these tests need the sample disc of the build")
        return shutil.copytree(built, self.folder / "disc")

    def findings(self, disc):
        code, printed, _ = self.check("--json", disc)
        self.assertIn(code, (0, 1))
        return [finding for finding in json.loads(printed)["findings"] if finding["kind"] != "remark"]

    def test_the_sample_disc_is_whole_as_folder_iso_and_bin(self):
        disc = self.copy_sample()
        for form in (disc, make_iso(disc, self.folder / "disc.iso"), make_bin_and_cue(disc, self.folder / "disc.cue")):
            code, printed, _ = self.check(form)
            self.assertEqual(code, 0, printed)
            self.assertIn("the disc is whole", printed)

    def test_what_was_taken_from_the_sample_disc_is_named_with_its_screens(self):
        disc = self.copy_sample()
        (disc / "wav" / "taxi.wav").unlink()
        photo = sorted((disc / "Torviks").iterdir())[0]
        photo.write_bytes(photo.read_bytes()[:-2000])
        found = self.findings(disc)
        self.assertEqual([(finding["kind"], finding["screens"]) for finding in found],
                         [("missing", ["Sound Effects > Taxi Horns"]), ("damaged", ["1967"])])

    def test_half_of_an_image_is_told_from_its_first_lost_file_on(self):
        image = make_iso(self.copy_sample(), self.folder / "disc.iso")
        os.truncate(image, image.stat().st_size // 2)
        found = self.findings(image)
        self.assertGreater(sum(finding["kind"] == "unreadable" for finding in found), 10)
        self.assertTrue(all(finding["screens"] for finding in found if finding["kind"] == "unreadable"
                            and finding["file"].startswith("Torviks")))

    def test_an_empty_folder_is_no_disc(self):
        empty = self.folder / "empty"
        empty.mkdir()
        code, printed, complaint = self.check(empty)
        self.assertEqual((code, printed), (2, ""))
        self.assertIn("there is no disc in", complaint)

    def test_a_drive_of_the_command_line_is_checked_by_its_letter(self):
        disc = self.make_disc()
        self.assertEqual(self.check("--drive", f"G={disc.folder}", "G:")[0], 1)
        self.assertEqual(self.check("--drive", f"G={disc.folder}", "H:")[0], 2)
        self.assertEqual(self.check("--no-such-option")[0], 2)


if __name__ == "__main__":
    run()
