#!/usr/bin/env python3
"""Makes the icons of the Windows programs from the drawing that the window shows.

    dist/windows/draw_icons.py FOLDER

FOLDER gets terramark.ico, the drawing as it stands; layout.ico, a sheet of paper with the map of
the drawing on it, for the files *.tml; and setup.bmp, the picture of the setup's last page.
"""
import struct
import sys
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[1]))

from draw_icon import png, read_drawing  # noqa: E402

SIZES = 16, 24, 32, 48, 64, 128, 256
LARGEST_BITMAP = 48  # larger images are PNG, which not everything reads in small ones

CLEAR, BLACK, WHITE, GREY = (0, 0, 0, 0), (0, 0, 0, 255), (255, 255, 255, 255), (192, 192, 192, 255)

ROWS, COLOURS = read_drawing()


def drawing(x, y):
    """Gives the drawing's colour at a point, in pixels of the drawing."""
    return (*COLOURS[ROWS[int(y)][int(x)]], 255)


def paper(x, y):
    """Gives the sheet's colour at a point of 32 x 32; one corner of it is folded down."""
    fold = x - y - 20.5  # how far the point lies beyond the diagonal of the fold
    if not 3 <= x < 29 or fold > 0.7:
        return CLEAR
    if x < 4 or x >= 28 or y < 1 or y >= 31 or fold > -0.7:
        return BLACK
    if x >= 21 and y < 8:
        return BLACK if x < 22 or y >= 7 else GREY
    if 5 <= x < 27 and 9 <= y < 30:
        return drawing(16 + (x - 16) * 1.3, 16 + (y - 19.5) * 1.36)
    return WHITE


def pixels(colour_at, size, exact):
    """Gives the rows of an icon. Each pixel is one point, or the mean of fine x fine."""
    fine = 1 if exact else 2 + 96 // size
    step = 32 / size / fine
    rows = []
    for y in range(size):
        row = []
        for x in range(size):
            points = [colour_at((x * fine + i + 0.5) * step, (y * fine + j + 0.5) * step)
                      for j in range(fine) for i in range(fine)]
            opaque = sum(point[3] for point in points)
            mean = [round(sum(point[c] * point[3] for point in points) / max(opaque, 1))
                    for c in range(3)]
            row.append((*mean, round(opaque / len(points))))
        rows.append(row)
    return rows


def bitmap(rows):
    """Gives a bitmap as an icon has it: upside down, and a mask of the clear pixels behind it."""
    size = len(rows)
    colours = mask = b""
    for row in reversed(rows):
        colours += b"".join(bytes((blue, green, red, alpha)) for red, green, blue, alpha in row)
        bits = "".join("0" if pixel[3] else "1" for pixel in row)
        width = (size + 31) // 32 * 32  # each row of the mask fills whole words of 32 bits
        mask += int(bits.ljust(width, "0"), 2).to_bytes(width // 8, "big")
    body = colours + mask
    return struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, len(body), 0, 0, 0, 0) + body


def icon(colour_at, exact_sizes):
    images = []
    for size in SIZES:
        rows = pixels(colour_at, size, size in exact_sizes)
        images.append(bitmap(rows) if size <= LARGEST_BITMAP else
                      png(size, size, 8, 6, [bytes(sum(row, ())) for row in rows]))
    directory = struct.pack("<HHH", 0, 1, len(images))
    place = len(directory) + 16 * len(images)
    for size, image in zip(SIZES, images):
        side = size % 256  # 0 stands for 256
        directory += struct.pack("<BBBBHHII", side, side, 0, 0, 1, 32, len(image), place)
        place += len(image)
    return directory + b"".join(images)


def setup_picture():
    """Gives a bitmap of the size that setups have, with the map of the drawing in the sea."""
    width, height, scale = 164, 314, 5  # a row fills whole words
    left, top = (width - 32 * scale) // 2, (height - 32 * scale) // 3
    body = b""
    for y in range(height - 1, -1, -1):
        for x in range(width):
            across, down = (x - left) // scale, (y - top) // scale
            inside = 0 < across < 31 and 0 < down < 31
            body += bytes(reversed(COLOURS[ROWS[down][across] if inside else "B"]))
    header = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(body), 0, 0, 0, 0)
    return struct.pack("<2sIII", b"BM", 54 + len(body), 0, 54) + header + body


folder = Path(sys.argv[1])
folder.mkdir(parents=True, exist_ok=True)
(folder / "terramark.ico").write_bytes(icon(drawing, [size for size in SIZES if size % 32 == 0]))
(folder / "layout.ico").write_bytes(icon(paper, []))
(folder / "setup.bmp").write_bytes(setup_picture())
