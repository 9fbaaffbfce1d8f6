"""An office suite and a reader of our own that are a few lines each, for the tests of what compares them."""

import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]

# The mark of a rich text, which the stand-ins leave out of the text.
MARK = "{\\rtf1}"

# Writes a document's own text; one that it cannot read and one that brings it down say so.
SUITE = """
import os, pathlib, sys
words = sys.argv[1:]
ending = words[words.index("--convert-to") + 1].partition(":")[0]
into = pathlib.Path(words[words.index("--outdir") + 1])
with open({runs!r}, "a") as runs:
    print("run", file=runs)
for document in map(pathlib.Path, words[words.index("--outdir") + 2:]):
    text = document.read_text().removeprefix({mark!r}).partition("|")[0]
    if "unreadable" in text:
        continue
    if "poison" in text:
        os.kill(os.getpid(), 9)
    (into / (document.stem + "." + ending)).write_text(text)
"""

# Has not the words that begin with an x.
READER = """
import os, pathlib, signal, sys
text = pathlib.Path(sys.argv[2]).read_text().removeprefix({mark!r}).partition("|")[2]
if "stumble" in text:
    os.kill(os.getpid(), 9)
if "endless" in text:
    signal.pause()
if sys.argv[1] == "--text":
    print(" ".join(word for word in text.split() if not word.startswith("x")))
else:
    pathlib.Path(sys.argv[3] + ".told").write_text("\\n".join(sys.argv[4:]))
"""

# Makes two pages of every document.
PRINTER = """
import pathlib, sys
for page in "12":
    pathlib.Path(sys.argv[-1] + "-" + page + ".png").write_text(pathlib.Path(sys.argv[-2]).read_text())
"""


class StandIns:
    """A folder with these programs and some documents; remove() it at the end."""

    def __init__(self):
        self.folder = Path(tempfile.mkdtemp())
        self.documents = self.folder / "documents"
        for name in ("bin", "bench", "documents"):
            (self.folder / name).mkdir()
        self.runs = self.folder / "runs"
        self._program("bin/soffice", SUITE.format(runs=str(self.runs), mark=MARK))
        self._program("bin/pdftoppm", PRINTER)
        self._program("bench/article_pages", READER.format(mark=MARK))

    def _program(self, name, text):
        path = self.folder / name
        path.write_text(f"#!{sys.executable}\n{text}")
        path.chmod(0o755)

    def remove(self):
        shutil.rmtree(self.folder)

    def write(self, name, of_suite, ours=None):
        """A rich text in which the suite reads `of_suite`, and our reader the same or `ours`."""
        self.write_plain(name, f"{MARK}{of_suite}|{of_suite if ours is None else ours}")

    def write_plain(self, name, text):
        path = self.documents / name
        path.parent.mkdir(exist_ok=True)
        path.write_text(text)

    def take_away(self, program):
        (self.folder / program).unlink()

    def starts_of_suite(self):
        return len(self.runs.read_text().split())

    def run(self, tool, *arguments, path=None):
        """What a tool says of the documents, and its exit code, with nothing but these programs and those of the system."""
        surroundings = {**os.environ, "PATH": path or f"{self.folder / 'bin'}:{os.environ['PATH']}"}
        return subprocess.run([sys.executable, "-B", ROOT / "tools" / tool, "--build", self.folder, *arguments, self.documents],
                              env=surroundings, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
