#!/usr/bin/python3 -B
"""Opening a disc from the desktop, which starts the program with its folder."""

import configparser
import os
import shlex
from pathlib import Path

from gi.repository import Gio, GLib
from support.case import ProgramTest, run
from support.disc_image import make_bin_and_cue, make_iso
from support.program import MAIN_TITLE, SPLASH_TITLE, executable
from support.session import home_variables
from support.spoken import activate_element, read_elements
from support.waiting import wait_until

DESKTOP_ENTRY = Path(__file__).resolve().parents[2] / "packaging" / "torvik2001.desktop"


class Opening(ProgramTest):
    def entry(self):
        entry = configparser.ConfigParser(interpolation=None)
        entry.optionxform = str
        entry.read(DESKTOP_ENTRY)
        return entry["Desktop Entry"]

    def test_the_entry_takes_one_folder_or_image(self):
        self.assertEqual(self.entry()["Exec"], "torvik2001 %f")
        kinds = self.entry()["MimeType"].split(";")
        for kind in ("inode/directory", "application/x-cd-image", "application/x-cue", "application/x-nrg"):
            self.assertIn(kind, kinds)

    def install_command(self):
        """Puts the program where a desktop looks for commands, with a program folder of this test."""
        commands = self.folder / "commands"
        commands.mkdir()
        command = commands / "torvik2001"
        line = shlex.join([str(executable()), "--program-folder", str(self.program_folder)])
        command.write_text(f'#!/bin/sh\nexec setpriv --pdeathsig KILL {line} "$@"\n', "utf-8")
        command.chmod(0o755)
        before = os.environ["PATH"]
        self.addCleanup(os.environ.update, PATH=before)
        os.environ["PATH"] = f"{commands}:{before}"

    def open_with_program(self, screen, place):
        """Does what a file manager does for "Open with"; returns the number of the process."""
        entry = Gio.DesktopAppInfo.new_from_filename(str(DESKTOP_ENTRY))
        context = Gio.AppLaunchContext()
        surroundings = {**screen.environment, **home_variables(self.folder), "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
                        "PATH": os.environ["PATH"]}
        for name, value in surroundings.items():
            context.setenv(name, value)
        started = []
        entry.launch_uris_as_manager([place.as_uri()], context, GLib.SpawnFlags.DO_NOT_REAP_CHILD, None, None,
                                     lambda _, process: started.append(process))
        return started[0]

    def test_open_with_starts_the_program_on_a_folder_and_on_images(self):
        self.install_command()
        screen = self.make_screen()
        disc = self.make_disc()
        (self.folder / "my images").mkdir()
        for place in (disc.folder, make_iso(disc.folder, self.folder / "my images" / "disc.iso"),
                      make_bin_and_cue(disc.folder, self.folder / "my images" / "disc.cue")):
            with self.subTest(place.name):
                process = self.open_with_program(screen, place)
                find = lambda name: next((e for e in read_elements(process) if (e.window, e.name) == (MAIN_TITLE, name)), None)
                wait_until(lambda: find("67A.JPG"), "the disc's first photo")
                self.assertIsNone(find("67C.JPG"))
                activate_element(find("Exit"))
                wait_until(lambda: read_elements(process) == [], "the end")
                self.assertEqual(os.waitpid(process, 0)[1], 0)

    def test_a_second_start_with_another_disc_says_that_the_program_is_running(self):
        screen = self.make_screen()
        disc = self.make_disc()
        first = self.start(screen, disc.folder)
        first.start_browsing()
        other = self.folder / "other disc"
        (other / "Torviks").mkdir(parents=True)
        (disc.folder / "Torviks" / "67A.JPG").rename(other / "Torviks" / "67A.JPG")
        second = self.start(screen, other)
        second.wait_for("The Torvik Vollandry is already running!", window=SPLASH_TITLE)
        second.answer("OK", title=SPLASH_TITLE)
        self.assertEqual(second.wait_for_end(), 0)
        self.assertEqual(first.view().title, "1967")


if __name__ == "__main__":
    run()
