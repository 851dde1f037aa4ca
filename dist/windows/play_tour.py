#!/usr/bin/env python3
"""Plays the tour for try-windows, in the editor that is set up under wine.

    play_tour.py START OUTPUT FOLDER NAME

START is a program that starts the editor in FOLDER, into which the samples are copied; wine names
the folder NAME. The screenshots and the saved layouts go into the folder OUTPUT.
"""
import sys
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tests/tour"))

from editor import TITLE  # noqa: E402
from tour import Tour, run  # noqa: E402


class WindowsTour(Tour):
    WINDOWS = r"^terramark\.exe$"

    def full_name(self, name):
        return f"{sys.argv[4]}\\{name}"

    def back(self):
        # After a dialog of the system, wine leaves the keyboard to no window.
        self.wait("the editor's window", self.activate)
        super().back()

    def activate(self):
        active = self.screen.tool("getactivewindow", "getwindowname", check=False)
        if not active:
            self.screen.tool("search", "--onlyvisible", "--name", f"^{TITLE}$", "windowactivate",
                             check=False)
        return active == TITLE


def main():
    if len(sys.argv) != 5:
        sys.exit(__doc__)
    run(WindowsTour, *(Path(argument).resolve() for argument in sys.argv[1:4]))


main()
