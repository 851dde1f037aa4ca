"""What is said of layouts, good and spoilt: check.py PROGRAM TINY SAMPLES"""
import os
import subprocess
import sys
import tempfile
from pathlib import Path

PROGRAM, TINY, SAMPLES = (Path(path).resolve() for path in sys.argv[1:])
LINES = TINY.read_bytes().replace(b"C:\\MAPS\\TINY.BMP", b"tiny.bmp").split(b"\r\n")


def tiny(changes, count=40):
    """So many of the lines, some of them, counted from 1, with another text."""
    return b"".join(changes.get(n, LINES[n - 1]) + b"\r\n" for n in range(1, count + 1))


def line(n, old, new):
    """A line with something else in it."""
    return {n: LINES[n - 1].replace(old, new)}


GONE, COMMA, QUOTE, END = (f": warning: {text}" for text in (
    "the picture {} is not there", "a comma ends the path of the picture",
    "a double quote ends a text before its end; the rest is lost", "the file ends before its last line"))
# Name of the file, its bytes, status, what is said of it behind its name.
FILES = [
    ("good", tiny({}), 0, [": good, 6 Areas, 2 Regions"]),
    ("euro", tiny({4: b"\x80\xfc.bmp"}), 0, [": good, 6 Areas, 2 Regions"]),
    ("gone", tiny({4: b"g\xf6ne.bmp"}), 0, [":4" + GONE.format("g\u00f6ne.bmp")]),
    ("comma", tiny({4: b"a, b.bmp"}), 0, [":4" + COMMA, ":4" + GONE.format("a")]),
    ("quote", tiny(line(9, b"Cedar", b'The "old" Cedar')), 0, [":9" + QUOTE]),
    ("end", tiny({}, 39), 0, [":40" + END]),
    ("name", tiny(line(9, b"Cedar", b"")), 1, [":9: Area# 3 has no name"]),
    ("link", tiny({4: b"x"} | line(7, b'Ash","0102', b'Stra\xdfe","0103')), 1,
     [":4" + GONE.format("x"),
      ":7: Area# 1(Stra\u00dfe) is not in the neighbour list of Area# 3 (Cedar)"]),
    ("region", tiny(line(10, b"South", b"")), 1, [":10: Region# 2 has no name"]),
    ("count", b"".join(b"%s\r\n" % line for line in [
        b"", b"", b"0,0", b"tiny.bmp", b"0," * 11 + b"0", b"BRIDGES BETWEEN REGIONS", b"0,",
        b"BLITZ", b"BREAKS", b"X,Y Coordinates for Areas", b"15,15", b"0,0,0",
        b"X,Y Coordinates for Regions", b"end"]), 1, [":3: Number of Areas must be more than 1"]),
    # A line too few: the rest is read out of step, and to the end.
    ("place", tiny({}, 40).replace(b"5,360,150\r\n", b""), 0, [
        ":12: warning: Area 5 is given no place",
        ":36: warning: this is not the head X,Y Coordinates for Regions; a line may be missing "
        "above, or be too much"]),
    ("reach", tiny({29: b"32767,15", 31: b"1,3" + b"0" * 38 + b",1"}), 2,
     [":31: cannot be read: expected a place that can be reached"]),
    # What a terminal would obey, or take for a line of its own.
    ("controls", tiny(line(7, b'Ash","0102', b'\x1b[2J\0\x9d\nx: good","0103')), 1,
     [":7: Area# 1(?[2J???x: good) is not in the neighbour list of Area# 3 (Cedar)"]),
    ("none", tiny({4: b'""'}), 1, [":4: No Map file (.WMF/.BMP)"]),
    ("stop", tiny({4: b"tiny.bmp, b"}), 2,
     [":4" + COMMA, ":5: cannot be read: expected the number of a Region, 0 to 2"]),
    # As a save leaves it that an Area without neighbours has stopped.
    ("broken", tiny({}, 15), 2, [
        ":16: cannot be read: the file ends, expected a bridge or the 0 behind the last (a save "
        "breaks off here at an Area without neighbours)"]),
    ("bridges", tiny({}, 17), 2, [
        ":18: cannot be read: the file ends, expected the head BLITZ"]),
    ("empty", b"", 2, [":1: cannot be read: the file ends, expected a header"]),
    ("lost", None, 2, [": cannot be read: no such file or directory"]),
]


def check(*names):
    run = subprocess.run([PROGRAM, *names], capture_output=True)
    return run.returncode, run.stdout.decode(), run.stderr.decode()


with tempfile.TemporaryDirectory() as folder:
    os.mkdir(folder + "/maps")
    for picture in ("tiny.bmp", "\u20ac\u00fc.bmp"):
        Path(folder, "maps", picture).write_bytes(b"a picture")
    os.chdir(folder)
    everything = ""
    for name, content, status, said in FILES:
        path = f"maps/{name}.tml"
        if content is not None:
            Path(path).write_bytes(content)
        lines = "".join(path + text + "\n" for text in said)
        assert check(path) == (status, lines, ""), (name, check(path))
        everything += lines
    paths = [f"maps/{name}.tml" for name, *_ in FILES]
    assert check(*paths) == (2, everything, ""), check(*paths)
    assert check(*paths[:8])[0] == 1 and check(*paths[:6])[0] == 0
    assert check("maps") == (2, "maps: cannot be read: it is a folder\n", "")
    assert check()[0] == 2 and check()[2].startswith("usage: ")
    with open("/dev/full", "w") as full:
        assert subprocess.run([PROGRAM, *4000 * paths[:1]], stdout=full).returncode == 2
for sample in SAMPLES.glob("*.tml"):
    assert check(sample) == (0, f"{sample}: good, 42 Areas, 8 Regions\n", ""), sample
