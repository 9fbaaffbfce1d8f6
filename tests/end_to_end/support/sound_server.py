"""A sound server of a test's own whose one device plays into nothing, and an ear at that device."""

import array
import math
import subprocess
import tempfile
from pathlib import Path

from support.waiting import wait_until

_ENDS_WITH_US = ["setpriv", "--pdeathsig", "KILL"]
_RATE = 22050  # samples of sixteen bits a second


class SoundServer:
    def __init__(self):
        self._folder = tempfile.TemporaryDirectory(prefix="torvik-sound-")
        folder = Path(self._folder.name)
        socket = folder / "native"
        self.address = f"unix:{socket}"
        self._heard = folder / "heard.raw"
        self._server = subprocess.Popen(
            [*_ENDS_WITH_US, "pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
             "--disable-shm", "-L", "module-null-sink sink_name=nothing",
             "-L", f"module-native-protocol-unix socket={socket} auth-anonymous=1"],
            env={"HOME": str(folder), "XDG_RUNTIME_DIR": str(folder), "PATH": "/usr/bin:/bin"},
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until(socket.exists, "the sound server")
        with open(self._heard, "wb") as heard:
            self._ear = subprocess.Popen(
                [*_ENDS_WITH_US, "parec", "--server", self.address, "-d", "nothing.monitor", "--raw", "--format=s16le",
                 f"--rate={_RATE}", "--channels=1", "--latency-msec=50"],
                stdin=subprocess.DEVNULL, stdout=heard, stderr=subprocess.DEVNULL)
        wait_until(lambda: self._heard.stat().st_size > 0, "the ear to listen")

    def __exit__(self, *_):
        for process in (self._ear, self._server):
            process.kill()
            process.wait()
        self._folder.cleanup()

    def end(self):
        """The server goes away, as a device does that is pulled out."""
        self._server.kill()
        self._server.wait()

    def loudness(self, seconds=0.3):
        """How loud the last moment was, 0 to 1."""
        heard = self._heard.read_bytes()
        samples = array.array("h", heard[: len(heard) // 2 * 2][-2 * int(seconds * _RATE):])
        return math.sqrt(sum(sample * sample for sample in samples) / max(1, len(samples))) / 32768

    def wait_for_sound(self):
        wait_until(lambda: self.loudness() > 0.02, "something to be heard")

    def wait_for_silence(self):
        wait_until(lambda: self.loudness() == 0, "silence")
