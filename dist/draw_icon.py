#!/usr/bin/env python3
"""Makes the small icon of the desktops from the drawing that the window shows.

    dist/draw_icon.py [PNG]

The drawing, 32 x 32 pixels in the 16 colours, stands in src/shell/icon.cpp. Without PNG it goes
where the packages take it from.
"""
import re
import struct
import sys
import zlib
from pathlib import Path

DIST = Path(__file__).resolve().parent


def read_drawing():
    """Gives the rows of the drawing, a letter a pixel, and the red, green, blue of each letter."""
    source = (DIST.parent / "src/shell/icon.cpp").read_text("ascii")
    rows = re.findall(r'"([A-Z]{32})"', source)
    colours = dict(re.findall(r"case '(\w)':\s+return 0xFF(\w{6});", source))
    other = re.search(r"default:\s+return 0xFF(\w{6});", source)
    if len(rows) != 32 or len(colours) != 5 or not other:
        sys.exit("src/shell/icon.cpp: not a drawing of 32 rows in six colours, as it is read here")
    marks = sorted(set("".join(rows)))
    return rows, {mark: bytes.fromhex(colours.get(mark, other[1])) for mark in marks}


def png(width, height, depth, kind, rows, palette=b""):
    """Gives the bytes of a PNG: depth and kind are its bits a sample and its colour type."""
    chunks = [
        (b"IHDR", struct.pack(">IIBBBBB", width, height, depth, kind, 0, 0, 0)),
        (b"PLTE", palette),
        (b"IDAT", zlib.compress(b"".join(b"\0" + row for row in rows), 9)),
        (b"IEND", b""),
    ]
    file = b"\x89PNG\r\n\x1a\n"
    for name, body in chunks:
        if body or name == b"IEND":
            file += struct.pack(">I", len(body)) + name + body
            file += struct.pack(">I", zlib.crc32(name + body))
    return file


def main():
    rows, colours = read_drawing()
    # Four bits a pixel, as many as 16 colours take.
    digits = str.maketrans("".join(colours), "0123456789ABCDEF"[:len(colours)])
    small = png(32, len(rows), 4, 3, [bytes.fromhex(row.translate(digits)) for row in rows],
                b"".join(colours.values()))
    Path(sys.argv[1] if len(sys.argv) > 1 else DIST / "icons/terramark.png").write_bytes(small)


if __name__ == "__main__":
    main()
