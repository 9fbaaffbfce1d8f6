"""A home and a message bus of its own for a script that drives the real program."""

import os
import subprocess
import sys
import tempfile
from pathlib import Path

_MARK = "TORVIK_PRIVATE_SESSION"


def enter_private_session():
    """Runs the calling script once more with an empty home and a bus that nobody else is on, and ends with
    its result. Returns at once inside such a session."""
    if _MARK in os.environ:
        return
    with tempfile.TemporaryDirectory(prefix="torvik-session-") as home:
        surroundings = {**os.environ, **home_variables(Path(home)), _MARK: "1"}
        for inherited in ("DISPLAY", "WAYLAND_DISPLAY", "AT_SPI_BUS_ADDRESS", "DBUS_SESSION_BUS_ADDRESS"):
            surroundings.pop(inherited, None)
        command = ["dbus-run-session", "--", sys.executable, "-B", *sys.argv]
        result = subprocess.run(command, env=surroundings, check=False)
    sys.exit(result.returncode)


def home_variables(home):
    """The variables that make a folder a user's home; makes the folders that they name."""
    variables = {"HOME": home}
    for name in ("DATA", "CONFIG", "CACHE", "STATE"):
        variables[f"XDG_{name}_HOME"] = home / name.lower()
    variables["XDG_RUNTIME_DIR"] = home / "runtime"
    for folder in variables.values():
        folder.mkdir(mode=0o700, exist_ok=True)
    return {name: str(folder) for name, folder in variables.items()}
