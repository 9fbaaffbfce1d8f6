#!/usr/bin/python3 -B
"""The windows on every window manager and screen. One pair alone: desktop_matrix_test.py Matrix.test_kwin_on_800_by_600"""

from support.case import run
from support.desktop_case import DesktopCase
from support.managers import ALL

SCREENS = [(640, 480), (800, 600), (1024, 768), (1280, 800), (1920, 1080), (3840, 2160)]


class Matrix(DesktopCase):
    """Its tests are made below."""


def _test(manager, width, height, monitors):
    return lambda self: self.check_desktop(manager, width, height, monitors)


for _manager in ALL.values():
    for _width, _height in SCREENS:
        setattr(Matrix, f"test_{_manager.name}_on_{_width}_by_{_height}", _test(_manager, _width, _height, 1))
    setattr(Matrix, f"test_{_manager.name}_on_two_monitors", _test(_manager, 2560, 800, 2))

if __name__ == "__main__":
    run()
