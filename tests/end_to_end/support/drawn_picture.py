"""JPEG pictures with a colour in each quarter, so that turned, cut or moved ones are told apart."""

import struct
import subprocess

UPPER_LEFT, UPPER_RIGHT, LOWER_LEFT, LOWER_RIGHT = (200, 40, 40), (40, 160, 60), (40, 70, 190), (230, 200, 60)


def draw_picture(file, width, height):
    """Writes the picture, folders and all."""
    file.parent.mkdir(parents=True, exist_ok=True)
    # A corner stands for a quarter: the four pixels are drawn out without being smoothed.
    rows = [(UPPER_LEFT, UPPER_RIGHT), (LOWER_LEFT, LOWER_RIGHT)]
    pixels = bytes(value for row in rows for colour in row for value in colour)
    subprocess.run(["convert", "-size", "2x2", "-depth", "8", "rgb:-", "-filter", "point", "-resize",
                    f"{width}x{height}!", "-quality", "100", f"JPEG:{file}"], input=pixels, check=True)


def write_bitmap(file, width, height):
    """The same as a bitmap with a palette, which may be larger than the tools for pictures like."""
    start, step = 54 + 4 * 4, (width + 3) // 4 * 4
    file.parent.mkdir(parents=True, exist_ok=True)
    palette = b"".join(bytes(reversed(colour)) + b"\0" for colour in (UPPER_LEFT, UPPER_RIGHT, LOWER_LEFT, LOWER_RIGHT))
    upper, lower = ((bytes([left]) * (width // 2)).ljust(width, bytes([left + 1])).ljust(step, b"\0") for left in (0, 2))
    file.write_bytes(b"BM" + struct.pack("<IHHI", start + step * height, 0, 0, start)
                     + struct.pack("<IiiHHIIiiII", 40, width, height, 1, 8, 0, step * height, 2835, 2835, 4, 4)
                     + palette + lower * (height - height // 2) + upper * (height // 2))


def size_of(file):
    """Width and height in pixels."""
    answer = subprocess.run(["identify", "-format", "%w %h", str(file)], text=True, check=True, capture_output=True)
    return tuple(int(number) for number in answer.stdout.split())


def colour_in(file, x, y):
    """Red, green and blue of a pixel of a picture file, 0 to 255."""
    pixel = subprocess.run(["convert", str(file), "-crop", f"1x1+{x}+{y}", "-depth", "8", "rgb:-"], check=True,
                           capture_output=True).stdout
    return tuple(pixel[:3])
