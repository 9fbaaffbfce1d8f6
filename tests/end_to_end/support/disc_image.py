"""Images of a disc's folder, as people have them instead of a drive."""

import subprocess
from pathlib import Path

CONTENT = 2048  # bytes of a sector
RAW = 2352
SYNC = b"\0" + b"\xff" * 10 + b"\0"


def make_iso(folder, file):
    """An ISO image with Joliet names."""
    subprocess.run(["xorriso", "-as", "mkisofs", "-quiet", "-iso-level", "3", "-J", "-o", str(file), str(folder.resolve())],
                   check=True, capture_output=True)
    return file


def make_bin_and_cue(folder, cue):
    """A BIN file of raw sectors of mode 1, and the CUE sheet that describes it; returns the sheet."""
    iso = make_iso(folder, cue.with_suffix(".tmp"))
    with open(iso, "rb") as content, open(cue.with_suffix(".bin"), "wb") as raw:
        number = 150  # places on a disc count from two seconds before its first sector
        while sector := content.read(CONTENT):
            minutes, seconds = divmod(number // 75, 60)
            place = bytes(int(f"{part:02d}", 16) for part in (minutes, seconds, number % 75))
            raw.write((SYNC + place + b"\1" + sector).ljust(RAW, b"\0"))
            number += 1
    iso.unlink()
    cue.write_text(f'FILE "{cue.with_suffix(".bin").name}" BINARY\n  TRACK 01 MODE1/2352\n    INDEX 01 00:00:00\n')
    return cue


class FolderDisc:
    """A disc that is there already: its photos by their prefix."""

    def __init__(self, folder):
        self.folder = Path(folder)
        self.photos = sorted(photo.name.upper() for photo in (self.folder / "Torviks").iterdir())

    def photos_of(self, prefix):
        return [name for name in self.photos if name.startswith(prefix)]
