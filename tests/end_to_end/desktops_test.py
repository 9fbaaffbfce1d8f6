#!/usr/bin/python3 -B
"""The windows on the desktops that many people have, on a small and a usual screen."""

from support.case import run
from support.desktop_case import DesktopCase
from support.managers import OPENBOX, XFWM4


class Desktops(DesktopCase):
    def test_openbox_on_800_by_600(self):
        self.check_desktop(OPENBOX, 800, 600)

    def test_openbox_on_1280_by_800(self):
        self.check_desktop(OPENBOX, 1280, 800)

    def test_xfwm4_on_800_by_600(self):
        self.check_desktop(XFWM4, 800, 600)

    def test_xfwm4_on_1280_by_800(self):
        self.check_desktop(XFWM4, 1280, 800)


if __name__ == "__main__":
    run()
