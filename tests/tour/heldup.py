#!/usr/bin/env python3
"""Holds the editor up, as a slow disk or a busy machine does, while keys arrive.

    heldup.py EDITOR

Works in a copy of the samples; what does not come out as at a hand's pace ends it with status 1.
"""
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

sys.dont_write_bytecode = True

from editor import FILE_DIALOGS, GREEN, QUESTION, WHITE, Editor  # noqa: E402
from screen import Failure, Screen  # noqa: E402

SAMPLES = Path(__file__).resolve().parents[2] / "samples"
HELD_UP = 0.1  # seconds
HELD_DOWN = 1.5  # seconds, of which a keyboard repeats the last


class HeldUp(Editor):
    def hold_up(self, *commands):
        """Each command is words for xdotool."""
        os.kill(self.process.pid, signal.SIGSTOP)
        for words in commands:
            self.screen.tool(*words)
        time.sleep(HELD_UP)
        os.kill(self.process.pid, signal.SIGCONT)

    def clear(self):
        self.press_control("DelAll")
        self.answer("alt+y")
        self.wait_share("an empty map", self.map, WHITE, 100)

    def ask(self):
        self.press_control("LoadMpa")
        self.screen.wait_active(FILE_DIALOGS["LoadMpa"])

    def loaded(self):
        self.back()
        self.park()
        self.wait_look("plain", self.areas)

    def close_the_dialog(self):
        for _ in range(3):
            self.ask()
            self.hold_up(("type", "europe.tml"), ("key", "Return"))
            self.loaded()
            self.clear()

    def take_a_name_from_the_list(self):
        keys = "Down", "KP_Enter", "Return"
        for pace in 500, 12, 0:
            self.ask()
            self.screen.tool("type", "eur")
            self.wait("the list of names", lambda: len(self.screen.tool(
                "search", "--onlyvisible", "--classname", "^terramark$").split()) == 3)
            if pace:
                self.screen.tool("key", "--delay", pace, *keys)
            else:
                self.hold_up(("key", *keys))
            self.loaded()
            self.clear()

    def answer_once(self):
        self.choose("LoadMpa", "europe.tml")
        self.press_control("DelAll")
        self.screen.wait_active(QUESTION)
        self.hold_up(("key", "Escape", "Tab", "space"))
        self.loaded()

    def keep_a_key_down(self):
        self.says(GREEN, lambda: self.press_area(15))
        busy = [subprocess.Popen(["sh", "-c", "while :; do :; done"]) for _ in range(3)]
        try:
            self.screen.tool("keydown", "Up", "sleep", HELD_DOWN)
            self.says(GREEN, lambda: self.screen.tool("keyup", "Up"))
        finally:
            for process in busy:
                process.kill()
        self.wait_look("current", [16])

    def run(self):
        self.areas = {int(number): (int(x), int(y)) for number, x, y in re.findall(
            rb"\n([1-9]\d*),(\d+),(\d+)(?=\r)",
            Path("europe.tml").read_bytes().split(b"X,Y Coordinates for ")[1])}
        for part in (self.close_the_dialog, self.take_a_name_from_the_list, self.answer_once,
                     self.keep_a_key_down):
            print(part.__name__, flush=True)
            part()


def main():
    program = Path(sys.argv[1]).resolve()
    with tempfile.TemporaryDirectory(prefix="terramark-heldup-") as folder:
        os.chdir(shutil.copytree(SAMPLES, folder + "/samples"))
        screen = Screen(folder)
        try:
            HeldUp(screen, program).run()
        except Failure as failure:
            sys.exit(f"FAILED: {failure}\n{Path(screen.log.name).read_text(errors='replace')}")
        finally:
            screen.close()


if __name__ == "__main__":
    main()
