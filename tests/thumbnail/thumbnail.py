"""Shows layouts, good and broken, as a desktop would: thumbnail.py PROGRAM SAMPLES"""
import os
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
from pathlib import Path

PROGRAM, SAMPLES = (Path(path).resolve() for path in sys.argv[1:])
OLD = b"an older thumbnail"

with tempfile.TemporaryDirectory() as folder:
    os.chdir(folder)
    layout = (SAMPLES / "europe.tml").read_bytes()
    # A name of bytes that are no text, beside its picture; and one that looks like an option.
    for name in (b"\xff\xfe.tml", b"-h"):
        Path(os.fsdecode(name)).write_bytes(layout)
    shutil.copy(SAMPLES / "europe.bmp", ".")
    Path("cut.tml").write_bytes(layout[:-400])
    Path("alone.tml").write_bytes(layout.replace(b"europe.bmp", b"gone.bmp"))
    os.mkfifo("pipe.tml")
    for name, size, status, told in [
            (b"\xff\xfe.tml", "128", 0, ""),
            ("-h", "1024", 0, ""),
            ("cut.tml", "128", 1, "/cut.tml:164: the file ends, expected the place of an Area"),
            ("alone.tml", "128", 1, "cannot read picture gone.bmp: no such file"),
            ("pipe.tml", "128", 1, "/pipe.tml: it is no plain file"),
            ("-h", "0", 2, "usage: "),
            ("-h", "128px", 2, "usage: ")]:
        png = Path("map.png")
        png.write_bytes(OLD)
        run = subprocess.run([PROGRAM, name, png, size], stderr=subprocess.PIPE, text=True)
        case = f"{name} {size}: {run}"
        assert run.returncode == status and told in run.stderr, case
        assert run.stderr.count("\n") == (status != 0), case
        if status == 0:
            assert struct.unpack(">2I", png.read_bytes()[16:24])[0] == min(int(size), 546), case
        else:
            assert png.read_bytes() == OLD, case
    # What the map is made from is not written over, whatever the name.
    os.symlink("-h", "link")
    os.link("europe.bmp", "twin")
    for png, told in [("link", "layout"), ("twin", "picture"), (".", "folder"), ("gone/map.png", "no such")]:
        run = subprocess.run([PROGRAM, "-h", png, "64"], stderr=subprocess.PIPE, text=True)
        assert run.returncode == 1 and ": cannot write /" in run.stderr and told in run.stderr, run
        assert Path("-h").read_bytes() == layout and os.path.samefile("twin", "europe.bmp"), run
    # Fonts that never come, a caller that holds the alarm up, and nobody who listens.
    heard, told = os.pipe()
    os.close(heard)
    block = lambda: signal.pthread_sigmask(signal.SIG_BLOCK, [signal.SIGALRM])
    fonts = {"FONTCONFIG_FILE": os.path.abspath("pipe.tml")}
    run = subprocess.run([PROGRAM, "-h", "map.png", "64"], stderr=told, env=fonts, preexec_fn=block, timeout=180)
    assert run.returncode == 1, run
    assert set(os.listdir()) == {os.fsdecode(b"\xff\xfe.tml"), "-h", "europe.bmp", "cut.tml",
                                 "alone.tml", "pipe.tml", "map.png", "link", "twin"}
