"""The form that finds words while it still reads: on a disc whose articles are so long that it takes seconds."""

from pathlib import Path

from support.waiting import wait_until
from tour_chapters.finding import find_form, told

MORE = b"{\\pard\\plain And so the road went on and on, over the hills.\\par}" * 6000


def disc_made_of(disc, folder):
    folder.mkdir()
    for entry in Path(disc).iterdir():
        if entry.name != "RichText":
            (folder / entry.name).symlink_to(entry)
    texts = folder / "RichText"
    texts.mkdir()
    for article in Path(disc, "RichText").iterdir():
        text = article.read_bytes()
        end = text.rfind(b"}")
        (texts / article.name).write_bytes(text[:end] + MORE + text[end:])
    return folder


def found_while_reading(program):
    find_form(program)
    program.screen.type_text("engine")
    wait_until(lambda: "found" in told(program) and "Reading" in told(program), "hits in what is read already")


STOPS = (found_while_reading,)
