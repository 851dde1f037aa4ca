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
SOURCE = (DIST.parent / "src/shell/icon.cpp").read_text("ascii")

rows = re.findall(r'"([A-Z]{32})"', SOURCE)
marks = "".join(sorted(set("".join(rows))))
colours = dict(re.findall(r"case '(\w)':\s+return 0xFF(\w{6});", SOURCE))
other = re.search(r"default:\s+return 0xFF(\w{6});", SOURCE)
if len(rows) != 32 or len(colours) != 5 or not other:
    sys.exit("src/shell/icon.cpp: not a drawing of 32 rows in six colours, as draw_icon.py reads it")

# Four bits a pixel, as many as 16 colours take.
digits = str.maketrans(marks, "0123456789ABCDEF"[:len(marks)])
chunks = [
    (b"IHDR", struct.pack(">IIBBBBB", 32, len(rows), 4, 3, 0, 0, 0)),
    (b"PLTE", bytes.fromhex("".join(colours.get(mark, other[1]) for mark in marks))),
    (b"IDAT", zlib.compress(b"".join(b"\0" + bytes.fromhex(row.translate(digits)) for row in rows), 9)),
    (b"IEND", b""),
]
png = b"\x89PNG\r\n\x1a\n"
for name, body in chunks:
    png += struct.pack(">I", len(body)) + name + body + struct.pack(">I", zlib.crc32(name + body))
Path(sys.argv[1] if len(sys.argv) > 1 else DIST / "icons/terramark.png").write_bytes(png)
