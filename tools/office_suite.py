"""What the comparisons of our reader with an office suite share."""

import os
import shutil
import signal
import subprocess
import sys
from pathlib import Path

# One start of the suite takes longer than most documents.
DOCUMENTS_A_RUN = 100
SECONDS_TO_START = 60
SECONDS_A_DOCUMENT = 20


def need(program, how):
    """Ends with a message when a program is not installed."""
    if shutil.which(program) is None:
        sys.exit(f"{program} is not installed, so there is nothing to compare with. {how}")


def article_pages(build):
    """Our own program of a build; ends with a message when it was not built."""
    path = build / "bench/article_pages"
    if not path.is_file():
        sys.exit(f"{path} is missing: configure with -DTORVIK_BENCH=ON and build article_pages")
    return path


def documents_in(places):
    """The rich texts that are named, and those in folders that are named."""
    documents = []
    for place in places:
        documents += sorted(place.rglob("*.[Rr][Tt][Ff]")) if place.is_dir() else [place]
    return documents


def surroundings():
    """The environment in which our program needs no display."""
    return {**os.environ, "QT_QPA_PLATFORM": "offscreen"}


def run_suite(documents, kind, folder):
    """Whether the suite came to the end of these documents: one that hangs it or brings it down takes the rest with it."""
    run = subprocess.Popen(["soffice", f"-env:UserInstallation=file://{folder}/profile", "--headless", "--convert-to", kind,
                            "--outdir", folder, *documents], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                           start_new_session=True)
    try:
        return run.wait(SECONDS_TO_START + SECONDS_A_DOCUMENT * len(documents)) == 0
    except subprocess.TimeoutExpired:
        os.killpg(run.pid, signal.SIGKILL)
        run.wait()
        return False


def converted(documents, kind, folder):
    """What the suite writes for each document, None for one that it cannot read.

    `kind` is a file type or one with a filter ("txt:Text (encoded):UTF8"). The files are in `folder` under numbers, because documents in
    different places may have the same name.
    """
    folder = Path(folder)
    copies = []
    for number, document in enumerate(documents):
        copies.append(folder / f"{number}.rtf")
        shutil.copyfile(document, copies[-1])
    written = [copy.with_suffix("." + kind.partition(":")[0]) for copy in copies]
    left = list(range(len(copies)))
    while left:
        batch = left[:DOCUMENTS_A_RUN]
        if run_suite([copies[number] for number in batch], kind, folder):
            left = left[len(batch):]
            continue
        # The first one that is not there is the one that stopped it.
        missing = [number for number in batch if not written[number].is_file()]
        left = missing[1:] + left[len(batch):]
    return [path if path.is_file() else None for path in written]
