"""A Wayland desktop without a display: nobody can press its keys or mouse, but a screen reader's way is open."""

import os
import subprocess
import tempfile
from pathlib import Path

from support.waiting import wait_until


class WestonDesktop:
    """Has what a Program needs of a screen."""

    def __init__(self, width=1280, height=800):
        self._folder = tempfile.TemporaryDirectory(prefix="torvik-weston-")
        self._runtime = Path(self._folder.name)
        self._runtime.chmod(0o700)
        self.environment = {**os.environ, "XDG_RUNTIME_DIR": str(self._runtime), "WAYLAND_DISPLAY": "torvik",
                            "QT_QPA_PLATFORM": "wayland"}
        self._process = subprocess.Popen(
            ["setpriv", "--pdeathsig", "KILL", "weston", "--backend=headless-backend.so", "--use-pixman", "--debug",
             "--no-config", f"--width={width}", f"--height={height}", "--socket=torvik"],
            env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until(lambda: (self._runtime / "torvik").exists(), "Weston")

    def __exit__(self, *_):
        self._process.terminate()
        self._process.wait()
        self._folder.cleanup()

    @property
    def own_variables(self):
        """Those that a user's home must not replace."""
        return {"XDG_RUNTIME_DIR": str(self._runtime)}

    def save_picture(self, file):
        subprocess.run(["weston-screenshooter"], cwd=self._runtime, env=self.environment, check=True)
        picture = next(self._runtime.glob("wayland-screenshot-*.png"))
        subprocess.run(["convert", str(picture), str(file)], check=True)
        picture.unlink()
