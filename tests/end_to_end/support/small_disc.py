"""A disc with a handful of photos, each in a colour of its own."""

import colorsys
import subprocess

YEARS = [f"{year:02d}" for year in range(67, 100)] + ["A0", "A1"]
TOPICS = ["TD", "TF", "VM", "ZZ"]


class SmallDisc:
    """Two photos for each year and topic, and for any further prefix; five for 1969; all of 64 by 40 pixels."""

    def __init__(self, folder, further=()):
        self.folder = folder
        self.photos = {}
        for prefix in [*YEARS, *TOPICS, *further]:
            for letter in "ABCDE" if prefix == "69" else "AB":
                self._plan(f"{prefix}{letter}.JPG")
        self._write()

    def photos_of(self, prefix):
        return sorted(name for name in self.photos if name.startswith(prefix))

    def _plan(self, name):
        hue = len(self.photos) * 0.381966 % 1  # neighbours differ clearly
        red, green, blue = colorsys.hsv_to_rgb(hue, 0.7, 0.8)
        self.photos[name] = (round(red * 255), round(green * 255), round(blue * 255))

    def _write(self):
        (self.folder / "Torviks").mkdir(parents=True)
        command = ["convert", "-size", "64x40"]
        for name, (red, green, blue) in self.photos.items():
            command += ["(", f"xc:rgb({red},{green},{blue})", "-quality", "100",
                        "-write", f"JPEG:{self.folder / 'Torviks' / name}", "+delete", ")"]
        subprocess.run([*command, "null:"], check=False, capture_output=True)
        missing = [name for name in self.photos if not (self.folder / "Torviks" / name).is_file()]
        if missing:
            raise RuntimeError(f"cannot make the photos {missing}")
