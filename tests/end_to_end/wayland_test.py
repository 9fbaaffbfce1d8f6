#!/usr/bin/python3 -B
"""The windows on a Wayland desktop: what can be seen there without a mouse and a keyboard."""

import os
import re
import shutil
import unittest
from pathlib import Path

from support.case import ProgramTest, run
from support.desktop_case import SHOW_TITLE
from support.program import BOX_TITLE, MAIN_TITLE, SPLASH_TITLE
from support.weston import WestonDesktop

DESKTOP_ENTRY = Path(__file__).resolve().parents[2] / "packaging" / "torvik2001.desktop"


@unittest.skipUnless(shutil.which("weston"), "Weston is installed for the deep tests alone")
class Wayland(ProgramTest):
    def check(self, width, height):
        desktop = WestonDesktop(width, height)
        self.addCleanup(desktop.__exit__)
        program = self.start(desktop, "--scale", "1", self.make_disc().folder)
        program.wait_for_window(SPLASH_TITLE)
        program.wait_for_view(title="1967", number="1", photo="67A.JPG")  # no seat, so no focus
        window = next(e for e in program.elements() if e.window == MAIN_TITLE)
        expected = (800, 581) if (width, height) == (800, 600) else (800, 588)
        self.assertEqual((window.width, window.height), expected)
        folder = os.environ.get("TORVIK_DESKTOP_PICTURES")
        if folder:
            Path(folder).mkdir(parents=True, exist_ok=True)
            desktop.save_picture(Path(folder) / f"weston-{width}x{height}.png")
        program.activate("72")
        program.wait_for_view(title="1972", photo="72A.JPG")
        program.activate("Statistics")
        program.wait_for("OK", window=BOX_TITLE)
        program.activate("OK", window=BOX_TITLE)
        program.wait_for_no_window(BOX_TITLE)
        program.activate("SlideShow")
        program.wait_for_window(SHOW_TITLE)
        show = next(e for e in program.elements() if e.window == SHOW_TITLE)
        self.assertEqual((show.width, show.height), expected)
        program.activate("Exit", window=SHOW_TITLE)
        program.wait_for_no_window(SHOW_TITLE)
        program.activate("Exit")
        self.assertEqual(program.wait_for_end(), 0)

    def test_windows_belong_to_the_desktop_entry_whose_icon_the_task_switcher_shows(self):
        desktop = WestonDesktop()
        self.addCleanup(desktop.__exit__)
        desktop.environment["WAYLAND_DEBUG"] = "1"
        told = self.folder / "told.txt"
        with open(told, "w", encoding="utf-8") as complaints:
            program = self.start(desktop, "--scale", "1", self.make_disc().folder, complaints=complaints)
            program.wait_for_window(MAIN_TITLE)
        names = set(re.findall(r'set_app_id\("([^"]*)"\)', told.read_text("utf-8", errors="replace")))
        self.assertEqual(names, {DESKTOP_ENTRY.stem})
        self.assertIn("Icon=torvik2001\n", DESKTOP_ENTRY.read_text("utf-8"))

    def test_weston_on_640_by_480(self):
        self.check(640, 480)

    def test_weston_on_800_by_600(self):
        self.check(800, 600)

    def test_weston_on_1024_by_768(self):
        self.check(1024, 768)

    def test_weston_on_1280_by_800(self):
        self.check(1280, 800)

    def test_weston_on_1920_by_1080(self):
        self.check(1920, 1080)

    def test_weston_on_3840_by_2160(self):
        self.check(3840, 2160)


if __name__ == "__main__":
    run()
