#!/usr/bin/env python3
"""Uses for try-package the editor that is installed in a system of its own, as one who works there.

    use_editor.py ROOT OUTPUT

ROOT is that system's root, with a program home/mapper/start that starts the editor in it; the
screenshot goes into the folder OUTPUT. Loads the sample layout and saves it again; exit status 1
when what was saved is not what was loaded.
"""
import sys
import tempfile
from itertools import zip_longest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "tests/tour"))

from editor import WINDOW, Editor  # noqa: E402
from screen import Failure, Screen  # noqa: E402

SAMPLE = "/usr/share/terramark/samples/europe.tml"
COPY = "/home/mapper/copy.tml"
SEA = 20, 100, 0xB0D0EC  # a place on the map where no marker stands, and its colour


def use(screen, root, output):
    editor = Editor(screen, str(root / "home/mapper/start"))
    editor.choose("LoadMpa", SAMPLE)
    editor.wait("the sea", lambda: editor.shows(*SEA))
    screen.save(output / "installed.png", WINDOW.moved(*editor.origin))
    editor.choose("SaveCFG", COPY)
    copy = root / COPY[1:]
    editor.wait(f"the file {COPY}", copy.exists)
    editor.wait_blank_bar()
    got, want = (path.read_bytes().split(b"\r\n") for path in (copy, root / SAMPLE[1:]))
    want[1] = got[1]  # the time of saving
    for pair in zip_longest(got, want):
        if len(set(pair)) > 1:
            raise Failure("{}: {!r} instead of {!r}".format(COPY, *pair))


def main():
    root, output = (Path(folder).resolve() for folder in sys.argv[1:])
    with tempfile.TemporaryDirectory() as folder:
        screen = Screen(folder)
        try:
            use(screen, root, output)
        except Failure as failure:
            screen.save(output / "failure.png")
            log = Path(folder, "programs.log").read_text("utf-8", "replace")
            sys.exit(f"try-package: {failure}\n{log}")
        finally:
            screen.close()


main()
