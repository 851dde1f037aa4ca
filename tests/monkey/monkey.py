#!/usr/bin/python3
"""Shakes the editor: random gestures of mouse and keyboard in the real window.

EDITOR runs on a screen of its own, at home in a folder that it cannot leave, beside busy loops, and
is stopped for moments while gestures arrive. The run ends with exit status 1 when it dies, hangs,
writes to its standard error or grows without end, and names the seed and the last gestures; with 77
when nothing here can keep it in its folder. The same SEED brings the same gestures as long as they
bring up the same windows. QT_SCALE_FACTOR is passed on.
"""
import argparse
import os
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time
from collections import deque
from pathlib import Path

sys.dont_write_bytecode = True
HERE = Path(__file__).resolve().parent
sys.path.append(str(HERE.parent / "tour"))

from cage import furnish, rights  # noqa: E402
from editor import QUESTION, TITLE  # noqa: E402
from gestures import LOADING, View, drawn  # noqa: E402
from hands import Hands  # noqa: E402
from screen import Failure, Screen  # noqa: E402

START_LIMIT, HANG_LIMIT, SLICE = 180, 5, 0.05  # seconds; of a longer look the machine is guilty
# What Qt's file dialog writes: in a folder that may not be read, and where a file goes that is just
# being renamed.
BORNE = b"inotify_add_watch(", b"QAbstractItemView::", b"edit: editing failed"
TIDY = 150  # gestures until the files and the window are put in their places again
PAUSES = {0: 4, 0.003: 4, 0.012: 3, 0.04: 0.5}  # seconds behind each event, and how often
HASTY, STOPPED, BUSY = 0.2, 0.12, 0.01  # shares of the gestures
WARM_UP, GROWTH = 30, 300  # seconds of a process, and what it may then take in addition, in MB


class Monkey:
    def __init__(self, options, folder):
        self.options, self.home, self.began = options, folder / "home", time.monotonic()
        self.count = self.starts = self.peak = self.boxes = 0
        self.last, self.view, self.closing = deque(maxlen=60), None, False
        folder.chmod(0o755)
        self.home.mkdir(0o700)
        furnish(self.home)
        if (allowed := rights(self.home)) is None:
            sys.exit(77)
        # A copy, since it may stand where others than its owner do not come.
        self.program = shutil.copy(options.editor, folder / "terramark")
        self.errors = open(folder / "errors", "w+b")
        self.screen = Screen(str(folder), options.screen, ["--config-file", str(HERE / "rc.xml")],
                             str(self.home), cwd=self.home, **allowed)
        self.scale = os.environ.get("QT_SCALE_FACTOR", "1")
        # It finds no program to start; and what it frees does not count as what it holds.
        self.screen.environment.update(PATH="/dev/null", QT_SCALE_FACTOR=self.scale,
                                       ASAN_OPTIONS="detect_leaks=0:quarantine_size_mb=16")
        self.hands = Hands(self.screen.environment["DISPLAY"], options.screen)
        self.loop = subprocess.Popen(["true"])
        self.stop = threading.Timer(0, int)
        self.stop.start()

    # The editor.

    def start(self):
        self.process = self.screen.start([self.program], stderr=self.errors)
        self.started, self.warm, self.view = time.monotonic(), 0, None
        self.starts += 1
        while not (found := [window for window in self.hands.windows()
                             if self.hands.title(window) == TITLE]):
            if self.process.poll() is not None or time.monotonic() > self.started + START_LIMIT:
                raise Failure("it does not start")
            self.hands.listen(SLICE)
        self.window = found[0]

    def settled(self):
        """Waits until all that was played is done; False when the editor has ended."""
        self.stop.join()
        waited = 0
        for _ in range(2):
            self.hands.ping(self.window)
            while self.hands.answer < self.hands.pings:
                if self.process.poll() is not None:
                    return False
                if waited > HANG_LIMIT:
                    raise Failure(f"it does not answer for {HANG_LIMIT} s")
                before = time.monotonic()
                self.hands.listen(SLICE)
                waited += min(time.monotonic() - before, SLICE)
        return True

    def begin_anew(self):
        """If it was asked to end, in the box that was there at the last look or has come since."""
        self.hands.listen(SLICE)
        box = self.view and self.hands.boxes == self.boxes and self.view.title
        # A window that was just going had no title any more.
        asked = {0: self.closing or box in (QUESTION, False, ""), 1: box in (LOADING, False, "")}
        if not asked.get(self.process.returncode):
            raise Failure(f"it ended with status {self.process.returncode}")
        self.screen.started.remove(self.process)
        self.start()

    def check(self):
        lines = Path(self.errors.name).read_bytes().splitlines()
        if [line for line in lines if line and not line.startswith(BORNE)]:
            raise Failure("it wrote to its standard error")
        pages = int(Path(f"/proc/{self.process.pid}/statm").read_text().split()[1])
        size = pages * os.sysconf("SC_PAGE_SIZE") >> 20
        self.peak = max(self.peak, size)
        if time.monotonic() < self.started + WARM_UP:
            self.warm = max(self.warm, size)
        elif size > self.warm + GROWTH:
            raise Failure(f"it has grown from {self.warm} to {size} MB")

    # Looking and playing.

    def look(self):
        """Waits until windows have come to rest, and sees which has the keyboard."""
        for _ in range(20):
            self.hands.stirred = False
            if not self.settled():
                self.begin_anew()
            elif not self.hands.stirred and (active := self.hands.windows("_NET_ACTIVE_WINDOW")):
                break
            self.hands.listen(0.02)
        else:
            active = [self.window]
            self.hands.activate(self.window)
        self.check()
        rect, *popup = map(self.hands.place, [*active, *list(self.hands.popups.values())[-1:]])
        self.boxes, self.closing = self.hands.boxes, False
        if rect:
            self.view = View(self.hands.title(active[0]), rect, *popup or [None], float(self.scale))

    def gesture(self):
        rng = random.Random(f"{self.options.seed} {self.count}")
        if self.count % TIDY == 0:
            furnish(self.home)
            self.window.configure(x=20, y=30)
            self.hands.activate(self.window)
        if rng.random() > HASTY or not self.view:
            self.look()
        if rng.random() < BUSY and self.loop.poll() is not None:
            self.loop = subprocess.Popen(["timeout", str(rng.randint(1, 4)), "sh", "-c",
                                          "while :; do :; done"])
        name, strokes = drawn(rng, self.view)
        pause = rng.choices(list(PAUSES), PAUSES.values())[0]
        stop = rng.randrange(len(strokes)) if rng.random() < STOPPED else None
        length = rng.uniform(0.05, 0.3)
        self.count += 1
        self.closing |= name == "close"
        stopped = "" if stop is None else f"; stopped for {length:.2f} s before stroke {stop + 1}"
        self.last.append(f"{self.count:6} {self.view.title}: {name}: {', '.join(strokes)}; {pause}"
                         + stopped)
        if self.options.verbose:
            print(f"{time.monotonic() - self.began:7.2f}", self.last[-1], flush=True)
        for number, stroke in enumerate(strokes):
            if number == stop and not self.stop.is_alive():
                self.process.send_signal(signal.SIGSTOP)
                self.stop = threading.Timer(length, self.process.send_signal, [signal.SIGCONT])
                self.stop.start()
            self.hands.play(stroke, pause)

    def run(self):
        self.start()
        while time.monotonic() < self.began + self.options.seconds:
            self.gesture()
        self.look()

    def tell(self, failure):
        print(f"{failure}, after {time.monotonic() - self.began:.0f} s")
        try:
            self.process.wait(HANG_LIMIT)  # it may be writing still
        except subprocess.TimeoutExpired:
            pass
        self.errors.seek(0)
        print(self.errors.read().decode(errors="replace"), *self.last, sep="\n")

    def close(self):
        seconds = time.monotonic() - self.began
        self.stop.join()
        self.loop.wait()
        self.screen.close()
        print(f"seed {self.options.seed}: {self.count} gestures, {self.count / seconds:.0f} a "
              f"second, {self.starts - 1} restarts, at most {self.peak} MB")


def main():
    arguments = argparse.ArgumentParser(description=__doc__)
    arguments.add_argument("-v", dest="verbose", action="store_true", help="tell each gesture")
    arguments.add_argument("--screen", default="1280x1024", metavar="WIDTHxHEIGHT",
                           type=lambda size: tuple(map(int, size.split("x"))))
    arguments.add_argument("editor")
    arguments.add_argument("seconds", type=float)
    arguments.add_argument("seed", nargs="?", default=random.randrange(1 << 32))
    with tempfile.TemporaryDirectory(prefix="terramark-monkey-") as folder:
        monkey = Monkey(arguments.parse_args(), Path(folder))
        try:
            monkey.run()
        except Failure as failure:
            monkey.tell(failure)
            sys.exit(1)
        finally:
            monkey.close()


if __name__ == "__main__":
    main()
