"""What the comparisons of our reader with an office suite share."""

import os
import shutil
import sys


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
