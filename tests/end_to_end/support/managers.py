"""The window managers under which the program is tried."""

from dataclasses import dataclass


@dataclass(frozen=True)
class Manager:
    """What a manager does not do is here, and in docs/desktops.md in words."""
    name: str
    command: tuple = ()
    keeps_on_top: bool = True
    covers_screen: bool = True
    maximizes: bool = True
    divides_screen: bool = True  # takes the monitors of a virtual screen, which are no outputs, for monitors


OPENBOX = Manager("openbox", ("openbox", "--sm-disable"))
XFWM4 = Manager("xfwm4", ("xfwm4", "--compositor=off"))
METACITY = Manager("metacity", ("metacity", "--sm-disable"))
KWIN = Manager("kwin", ("kwin_x11",), divides_screen=False)
MUTTER = Manager("mutter", ("mutter", "--x11", "--sm-disable"), divides_screen=False)
NONE = Manager("none", keeps_on_top=False, covers_screen=False, maximizes=False)

ALL = {manager.name: manager for manager in (OPENBOX, XFWM4, METACITY, KWIN, MUTTER, NONE)}
