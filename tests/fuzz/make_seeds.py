#!/usr/bin/env python3
"""Writes the seeds of the fuzz targets into seeds/ beside this script: small files with every construct that is read."""

import pathlib
import struct

HERE = pathlib.Path(__file__).resolve().parent / "seeds"

HEAD = (
    rb"{\rtf1\ansi\ansicpg1252\deff0{\fonttbl{\f0\froman\fcharset0 Times New Roman;}{\f1\fnil\fcharset2 Symbol;}"
    rb"{\f2\fnil\fcharset128 MS Mincho;}}{\colortbl ;\red255\green0\blue0;}"
)


def write(folder, name, data):
    target = HERE / folder
    target.mkdir(parents=True, exist_ok=True)
    (target / name).write_bytes(data)


def longs(*values):
    return struct.pack("<%di" % len(values), *values)


def shorts(*values):
    return struct.pack("<%dh" % len(values), *values)


def dib(width, height, bits, compression, palette, pixels):
    colors = len(palette) // 4
    header = struct.pack("<IiiHHIIiiII", 40, width, height, 1, bits, compression, len(pixels), 0, 0, colors, 0)
    return header + palette + pixels


def old_record(function, parameters=b""):
    return struct.pack("<IH", 3 + len(parameters) // 2, function) + parameters


def old_metafile(records):
    body = old_record(0x20B, shorts(0, 0)) + old_record(0x20C, shorts(100, 100)) + records + old_record(0)
    return struct.pack("<HHHIHIH", 1, 9, 0x300, 9 + len(body) // 2, 8, 200, 0) + body


def new_record(kind, parameters=b""):
    return struct.pack("<II", kind, 8 + len(parameters)) + parameters


def new_metafile(records):
    header = struct.pack(
        "<II4i4iIIIIHHIII2i2i",
        1, 100, 0, 0, 100, 100, 0, 0, 1000, 1000, 0x464D4520, 0x10000, 0, 0, 16, 0, 0, 0, 0, 1000, 1000, 100, 100,
    )
    return header.ljust(100, b"\0") + records + new_record(14, longs(0, 16, 20))


COLORS = dib(2, 2, 24, 0, b"", bytes.fromhex("ff0000ffffff00000000ff00ff000000"))
STRIP = old_metafile(old_record(0xF43, struct.pack("<IH8h", 0xCC0020, 0, 2, 2, 0, 0, 100, 100, 0, 0) + COLORS))


SECTOR = 2048


def both(number):
    return struct.pack("<I", number) + struct.pack(">I", number)


def record(name, block, length, flags=0, system=b""):
    """A folder's record of a disc image."""
    body = b"\0" + both(block) + both(length) + bytes((101, 11, 21, 12, 30, 15, 4, flags, 0, 0, 1, 0, 0, 1, len(name))) + name
    body += b"\0" * (len(name) % 2 == 0) + system
    return bytes((len(body) + 1,)) + body


def descriptor(kind, root, marks=b""):
    text = (bytes((kind,)) + b"CD001\1").ljust(88, b"\0") + marks
    return (text.ljust(128, b"\0") + b"\0\x08\x08\0").ljust(156, b"\0") + record(b"\0", root, SECTOR, 2)


def image(with_long_names):
    """A disc with one folder and four records, under plain, Joliet and Rock Ridge names."""
    def own(root, system=b""):
        return record(b"\0", root, SECTOR, 2, system) + record(b"\1", root, SECTOR, 2)

    long_name = b"NM" + bytes((5 + 9, 1, 0)) + b"67Tor.jpg"
    more = b"CE" + bytes((28, 1)) + both(24) + both(0) + both(14)
    mark = b"SP\x07\x01\xbe\xef\0"
    sectors = {
        16: descriptor(1, 19),
        18: b"\xffCD001\1",
        19: own(19, mark if with_long_names else b"") + record(b"TORVIKS", 20, SECTOR, 2)
        + record(b"A.;1", 23, 9, 0, more) + record(b"LONG;1", 23, SECTOR, 128) + record(b"LONG;1", 24, 5)
        + record(b"MOVED;1", 23, 0, 0, b"CL" + bytes((12, 1)) + both(20)),
        20: own(20) + record(b"67TOR001.JPG;1", 23, 9, 0, long_name) + record(b"UP", 19, SECTOR, 2),
        21: own(21) + record("67Tör.jpg;1".encode("utf-16-be"), 23, 9) + record("up".encode("utf-16-be"), 21, SECTOR, 2),
        23: b"the photo",
        24: long_name,
    }
    sectors[17] = descriptor(2, 21, b"%/E") if not with_long_names else sectors[18]
    return b"".join(sectors.get(number, b"").ljust(SECTOR, b"\0") for number in range(25))


def raw(data, mode):
    head = b"\0" + b"\xff" * 10 + b"\0\0\2\0" + bytes((mode,)) + b"\0" * (8 if mode == 2 else 0)
    parts = (head + data[place:place + SECTOR] for place in range(0, len(data), SECTOR))
    return b"".join(part.ljust(2352, b"\0") for part in parts)


def volumes():
    write("volume", "plain.iso", image(False))
    write("volume", "long.iso", image(True))
    write("volume", "raw.bin", raw(image(True), 1))
    write("volume", "form.bin", raw(image(False), 2))
    place = len(image(True))
    table = struct.pack(">4sIQQIIQ", b"ETN2", 32, 0, place, 0, 0, 0) + b"END!\0\0\0\0"
    write("volume", "disc.nrg", image(True) + table + struct.pack(">4sQ", b"NER5", place))
    write("volume", "disc.cue", b'FILE "disc.bin" BINARY\r\n  TRACK 01 MODE1/2352\r\n    INDEX 01 00:02:00\r\n')


def documents():
    write(
        "rtf",
        "drawings.rtf",
        HEAD
        + rb"\pard a{\shp{\*\shpinst\shpleft0\shptop0\shpright900\shpbottom900{\sp{\sn shapeType}{\sv 3}}{\sp{\sn pVerticies}"
        rb"{\sv 8;2;(0,0);(9,9)}}{\sp{\sn fillColor}{\sv 255}}{\shptxt in\par}}{\shprslt x}}{\shpgrp{\*\shpinst{\sp{\sn groupRight}"
        rb"{\sv 9}}{\shp{\*\shpinst{\sp{\sn relRight}{\sv 9}}}}}}{\*\do\dobxpage\dptxbx{\dptxbxtext t\par}\dpx1\dpy1\dpxsize9"
        rb"\dpysize9\dpline\dpptx0\dppty0\dpptx9\dppty9\dplinew15\dppolyline\dpptx1\dppty2}\absw900\posx9 f\par\pard\dropcapli2 D\par"
        rb"\pard{\field{\*\fldinst IF {\field{\*\fldinst SEQ a}} > 1 \"y\" n}}{\field{\*\fldinst EQ \\\\o\\\\ad(\\\\s\\\\up 9(a),b)}}"
        rb"{\field{\*\fldinst FORMDROPDOWN{\*\formfield{\fftype2\ffres1{\*\ffl a}{\*\ffl b}}}}}\trowd\trrh900\rtlrow\clvertalc\cellx900"
        rb"\pard\intbl\tldot\tx300\tab\uldb u\cell\row\pard\keepn\par}",
    )
    write("rtf", "characters.rtf", HEAD + rb"""\b bold\b0\i x\i0\ul u\ulnone\super s\nosupersub\cf1 c\highlight1 h\caps C
\u8364?\u-10179?\u-8704?{\f2\'93\'fa}{\v hid}\ulw a b\outl o\rtlch\fcs1\af1\afs40\ab\ltrch\fcs0 x\u1513?\u1500? \par}""")
    write("rtf", "paragraphs.rtf", HEAD + rb"""\pard\qc\li720\fi-360\sb120\sl360\slmult1\tqr\tx2000 a\tab b\par
\pard\box\brdrs\brdrw15 box\par\pard\brdrb\brdrs rule\par\page x\par
\pard\rtlpar\li300\tldot\tx3000\u1513?\tab a\par\pard\phpg\posxc\absw900{\striked1\uldb\outl c}\par}""")
    write("rtf", "lists.rtf", HEAD + rb"""{\*\listtable{\list{\listlevel\levelnfc0{\leveltext\'02\'00.;}{\levelnumbers
\'01;}}\listid7}}{\*\listoverridetable{\listoverride\listid7\ls1}
{\listoverride\listid7{\lfolevel\listoverridestartat\listoverrideformat1{\listlevel\levelnfc1\levelnorestart1{\leveltext\'02\'00);}}}\ls2}}
\pard\ls2 a\par\pard\rtlpar\ls1 b\par\pard{\pntext\f1\'b7\tab}{\*\pn\pnlvlblt{\pntxtb\'b7}}one\par
\pard\ls1{\listtext 1.\tab}two\par\pard\ls1 three\par
\pard\fi-400\li400{\*\pn\pnlvlbody\pnlcltr\pnstart0{\pntxta )}}four\par}""")
    write("rtf", "table.rtf", HEAD + rb"""\trowd\trgaph100\trleft-100\clmgf\clbrdrt\brdrs\cellx1000\clmrg\cellx2000\clvmgf\cellx3000
\intbl a\cell b\cell c\cell\row\trowd\cellx1000\cellx2000\clvmrg\cellx3000\intbl d\cell\intbl\itap2 n\nestcell
{\*\nesttableprops\trowd\cellx900\nestrow}\itap1\cell e\cell\row\pard x\par}""")
    write("rtf", "fields.rtf", HEAD + rb"""{\field{\*\fldinst{HYPERLINK "http://a.example/"}}{\fldrslt l}}
{\field{\*\fldinst QUOTE "a\par {\field{\*\fldinst QUOTE b}{\fldrslt b\par}}"}}
{\field{\*\fldinst SYMBOL 183 \\f "Symbol"}{\fldrslt}}{\*\bkmkstart b}x{\*\bkmkend b}
{\field{\*\fldinst REF b}}{\field{\*\fldinst =-(1+2)*3^2/4 \\# "#,##0.0"}}\chftn{\footnote\chftn n}
{\upr{a}{\*\ud{\uc0 b}}}\par}""")
    write("rtf", "pictures.rtf", HEAD
          + rb"{\*\shppict{\pict\wmetafile8\picw100\pich100\picwgoal300\pichgoal300\piccropl30 " + STRIP.hex().encode()
          + rb"}}{\nonshppict{\pict\dibitmap0 " + COLORS.hex().encode()
          + rb"}}{\object{\*\objdata 00}{\result{\pict\dibitmap0\bin%d " % len(COLORS) + COLORS + rb"}}}\par}")


def pictures():
    write("metafile", "strip.wmf", STRIP)
    shapes = (
        old_record(0x2FA, struct.pack("<HhhI", 1, 2, 0, 255)) + old_record(0x12D, shorts(0))
        + old_record(0x2FC, struct.pack("<HIH", 2, 0xFF00, 3)) + old_record(0x12D, shorts(1))
        + old_record(0x41B, shorts(90, 90, 10, 10)) + old_record(0x418, shorts(80, 80, 20, 20))
        + old_record(0x817, shorts(10, 50, 50, 10, 90, 90, 10, 10)) + old_record(0x324, shorts(3, 0, 0, 50, 50, 0, 90))
        + old_record(0x538, shorts(2, 2, 2, 0, 0, 9, 9, 5, 5, 1, 1)) + old_record(0x1E) + old_record(0x127, shorts(-1))
        + old_record(0x2FB, shorts(-20, 0, 0, 0, 700) + bytes(8) + b"Arial".ljust(32, b"\0"))
        + old_record(0x12D, shorts(2)) + old_record(0xA32, shorts(50, 5, 2, 0) + b"Hi" + shorts(9, 9))
        + old_record(0x521, shorts(2) + b"yo" + shorts(70, 5))
    )
    write("metafile", "shapes.wmf", struct.pack("<IH4hHIH", 0x9AC6CDD7, 0, 0, 0, 100, 100, 96, 0, 0) + old_metafile(shapes))
    drawing = (
        new_record(17, longs(8)) + new_record(9, longs(100, 100)) + new_record(11, longs(100, 100))
        + new_record(38, longs(1, 0, 2, 0, 255)) + new_record(37, longs(1)) + new_record(43, longs(10, 10, 90, 90))
        + new_record(42, longs(20, 20, 80, 80)) + new_record(86, longs(0, 0, 9, 9, 3) + shorts(0, 0, 50, 50, 0, 90))
        + new_record(8, longs(0, 0, 9, 9, 2, 4, 2, 2, 0, 0, 9, 9, 5, 5, 1, 1)) + new_record(59)
        + new_record(27, longs(1, 1)) + new_record(54, longs(50, 60)) + new_record(61) + new_record(60)
        + new_record(63, longs(0, 0, 9, 9)) + new_record(33) + new_record(35, struct.pack("<6f", 1, 0, 0, 1, 5, 5))
        + new_record(45, longs(10, 10, 90, 90, 90, 50, 10, 50)) + new_record(34, longs(-1))
        + new_record(84, longs(0, 0, 9, 9, 1) + struct.pack("<2f", 1, 1) + longs(5, 50, 2, 76, 0, 0, 0, 0, 0, 0)
                     + "Hi".encode("utf-16le"))
    )
    write("metafile", "shapes.emf", new_metafile(drawing))
    places = longs(0, 0, 100, 100, 0, 0, 0, 0, 2, 2, 80, 40, 120, 16, 0, 0xCC0020, 100, 100)
    write("metafile", "bitmap.emf", new_metafile(new_record(81, places + COLORS)))
    write("metafile", "runs.dib", dib(4, 2, 8, 1, bytes.fromhex("0000ff0000ff0000"), bytes.fromhex("0401000004000001")))
    write("metafile", "mono.dib", dib(9, -2, 1, 0, bytes.fromhex("00000000ffffff00"), bytes.fromhex("aa80000055800000")))


if __name__ == "__main__":
    documents()
    pictures()
    volumes()
