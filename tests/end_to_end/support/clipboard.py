"""The clipboard of a virtual screen, as other programs see it and fill it."""

import signal
import subprocess
from contextlib import contextmanager

from support.waiting import wait_until

_CLIPBOARD = ["xclip", "-selection", "clipboard"]
_TEXT = "UTF8_STRING"
_PICTURE = "image/png"
_PATIENCE = 10  # seconds for one answer of the program that owns the clipboard


class Clipboard:
    def __init__(self, screen):
        self._environment = screen.environment

    @contextmanager
    def owned_by_another_program(self, text):
        """A program of its own offers a text; what is yielded is its process."""
        owner = subprocess.Popen(["setpriv", "--pdeathsig", "KILL", *_CLIPBOARD, "-in", "-quiet"], text=True,
                                 env=self._environment, stdin=subprocess.PIPE, stderr=subprocess.DEVNULL)
        owner.stdin.write(text)
        owner.stdin.close()
        try:
            wait_until(lambda: self.text() == text, "the other program to own the clipboard")
            yield owner
        finally:
            owner.send_signal(signal.SIGCONT)
            owner.kill()
            owner.wait()

    def formats(self):
        """What is offered; empty when the clipboard is."""
        return (self._read("TARGETS") or b"").decode().split()

    def text(self):
        """The text that is offered, None when there is none."""
        return self._read(_TEXT).decode() if _TEXT in self.formats() else None

    def save_picture(self, file):
        """Pastes the picture into a PNG file; False when none is offered."""
        picture = self._read(_PICTURE) if _PICTURE in self.formats() else None
        if picture is None:
            return False
        file.write_bytes(picture)
        return True

    def _read(self, target):
        answer = subprocess.run([*_CLIPBOARD, "-out", "-target", target], env=self._environment, check=False,
                                stdin=subprocess.DEVNULL, capture_output=True, timeout=_PATIENCE)
        return answer.stdout if answer.returncode == 0 else None
