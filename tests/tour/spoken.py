#!/usr/bin/python3
"""Makes a map of six Areas by keyboard alone, and holds what Orca says against what it should say.

    spoken.py EDITOR

Orca runs as it comes, but for echoing all keys, on a screen and on buses of its own, and speaks to
a speech dispatcher that writes down what it is to say. What is not said ends the run with exit
status 1; where there is no Orca, the status is 77.
"""
import html
import os
import re
import shutil
import socketserver
import sys
import tempfile
import threading
from pathlib import Path

sys.dont_write_bytecode = True

from editor import FILE_DIALOGS, TITLE, Editor  # noqa: E402
from screen import LIMIT, Failure, Screen  # noqa: E402

SAMPLES = Path(__file__).resolve().parents[2] / "samples"
# Orca's own words around the name of a thing; and an Area's card symbol, which is drawn at random.
BEFORE = r"(notification )?"
AFTER = r"( (push button|text|frame|dialog\b.*|HORSE|GUN|SOLDIER))?\.?"
# Orca gives up where a program is long in answering; here it waits as long as the test does.
PATIENCE = f"""from gi.repository import Atspi
from orca import settings
settings.timeoutTime = 0
Atspi.set_timeout({1000 * LIMIT}, {1000 * LIMIT})
"""
# How Orca echoes a key where it does not say its name.
ECHOES = {"shift+Tab": "left shift", "period": "dot"}
CENTRE = "273, 138"  # of the map, where new Areas come
# By how many presses of which arrow each goes from there, and where it comes to.
AREAS = [(8, "Left", "193, 138"), (4, "Left", "233, 138"), (4, "Up", "273, 98"),
         (4, "Down", "273, 178"), (4, "Right", "313, 138"), (8, "Right", "353, 138")]


def at(place, corner="bottom left"):
    return f"at {place}, fill point {corner}"


def area(number, name=None, region="*UNKNOWN*"):
    return f"{number}: {name or f'Area {number}'} in Region {region}"


class Dispatcher(socketserver.StreamRequestHandler):
    """Answers as a speech dispatcher that has said everything as soon as it is asked to."""

    def handle(self):
        for line in self.rfile:
            if line.startswith(b"SPEAK"):
                self.answer("230 OK")
                text = b"".join(iter(self.rfile.readline, b".\r\n")).decode()
                self.server.said.append(html.unescape(re.sub("<.*?>", "", text)).strip())
                self.answer("225-1", "225 OK", "701-1", "701-1", "701 BEGIN",
                            "702-1", "702-1", "702 END")
            elif line.startswith(b"HISTORY"):
                self.answer("245-1", "245 OK")
            else:
                self.answer("200 OK")

    def answer(self, *lines):
        self.wfile.write("".join(line + "\r\n" for line in lines).encode())


class Listener(Editor):
    def __init__(self, screen, program, said):
        self.said = said
        super().__init__(screen, program)

    def press(self, keys, *wanted):
        """Presses keys, parted by blanks, each when Orca has met the one before; then listens."""
        self.said.clear()
        for key in keys.split():
            before, echo = len(self.said), ECHOES.get(key, key.split("+")[-1].lower())
            self.key(key)
            self.wait(f"Orca to echo {key}", lambda: echo in map(str.lower, self.said[before:]))
        self.listen(*wanted)

    def listen(self, *wanted):
        """Waits until all that is wanted has been said, in that order. More may be said."""
        def heard():
            said = iter(list(self.said))
            return all(any(re.fullmatch(BEFORE + re.escape(words) + AFTER, text) for text in said)
                       for words in wanted)
        try:
            self.wait("", heard)
        except Failure as failure:
            raise Failure(f"{wanted} not said, but {self.said}; {failure}") from failure

    def select(self, name, region="*UNKNOWN*"):
        self.press("space", f"Area {name}, Region = {region}, neighbours = 0, card symbol =")

    def mark(self, before, *told):
        """Marks the Area in hand. On a busy machine Orca does not always say that it is selected,
        so this listens when it is met again, from the one before."""
        self.press("shift+space")
        self.press("Left", before)
        self.press("Right", *told)

    def load(self):
        button = "Picture Load A .WMF Picture"
        self.listen(TITLE, "Header of the Map Layout")
        self.press("F6", "Map")
        self.press(8 * "Tab ", button)
        self.press("space", FILE_DIALOGS["LoadMap"], "File name:")
        self.press("e u r o p e period b m p")
        self.press("Return", TITLE, button, os.getcwd() + "/europe.bmp")

    def add_areas(self):
        self.press("F6", "Map")
        for number, (times, arrow, place) in enumerate(AREAS, 1):
            self.press("ctrl+Return", area(number), at(CENTRE))
            self.press("Return", f"held at {CENTRE}")
            self.press(times * f"shift+{arrow} ", f"held at {place}")
            self.press("Return", at(place))
        self.press("c", "fill point top left")
        self.press("F6", "Picture Load A .WMF Picture")
        self.press("F6", "Map", "List with 6 items", area(6), at(place, "top left"))

    def walk(self):
        self.press("Home", area(1), at(AREAS[0][-1]))
        for number in range(2, 6):
            self.press("Right", area(number), at(AREAS[number - 1][-1]))
        self.press("Left", area(4), at(AREAS[3][-1]))
        self.press("End", area(6), at(AREAS[5][-1], "top left"))

    def rename(self):
        for number, new in (6, "Norway"), (5, "Ireland"):
            self.select(f"Area {number}")  # the old name, so that typing takes its place
            self.press(" ".join(new))
            self.press("Tab")
            self.press("F6", "Map", area(number, new))
            self.press("Left", area(number - 1))

    def group(self):
        self.press(6 * "shift+Tab ", "Add Region")
        self.press("space")
        self.press("F6", "Map", "1:  Region 1", "at 48, 163, current")
        self.press("space", "Region Region 1, Areas = 0, armies = 5")
        self.press("Left", area(6, "Norway"))
        self.mark(area(5, "Ireland"), at(AREAS[5][-1], "top left") + ", marked")
        self.press(4 * "shift+Tab ", "Set Region")
        self.press("space", "Region Region 1 has 1 Areas = <06>")
        self.press("F6", "Map", area(6, "Norway", "Region 1"))

    def link(self):
        self.select("Norway", "Region 1")
        self.press("F6", "Map")
        self.press("Left", area(5, "Ireland"))
        self.mark(area(4), at(AREAS[4][-1]) + ", marked")
        self.press(5 * "shift+Tab ", "Set Neighbours")
        self.press("space")
        self.press("F6", "Map", area(5, "Ireland"))

    def validate(self):
        self.press(8 * "Tab ", "Validate Map")
        self.press("space", "Number of Regions must be more than 1")

    def run(self):
        for part in (self.load, self.add_areas, self.walk, self.rename, self.group, self.link,
                     self.validate):
            print(part.__name__, flush=True)
            part()


def main():
    if not shutil.which("orca"):
        print("Orca is not installed.")
        sys.exit(77)
    program = Path(sys.argv[1]).resolve()
    with tempfile.TemporaryDirectory(prefix="terramark-spoken-",
                                     ignore_cleanup_errors=True) as folder:
        os.chdir(shutil.copytree(SAMPLES, folder + "/samples"))
        settings = Path(folder, ".local/share/orca")
        settings.mkdir(parents=True)
        (settings / "orca-customizations.py").write_text(PATIENCE)
        # Orca does not start beside another of the same user: it is to find none.
        Path(folder, "pgrep").symlink_to("/bin/false")
        dispatcher = socketserver.ThreadingUnixStreamServer(folder + "/speech", Dispatcher)
        dispatcher.daemon_threads, dispatcher.said = True, []
        threading.Thread(target=dispatcher.serve_forever, daemon=True).start()
        screen = Screen(folder)
        screen.environment.update(
            SPEECHD_ADDRESS="unix_socket:" + dispatcher.server_address,
            GSETTINGS_BACKEND="memory", PATH=f"{folder}:{screen.environment['PATH']}")
        screen.start_bus()
        orca = screen.start(["orca", "--disable=braille", "--enable=navigation-keys"])
        try:
            screen.wait("Orca's first words", lambda: dispatcher.said)
            Listener(screen, program, dispatcher.said).run()
        except Failure as failure:
            print("FAILED:", failure)
            sys.exit(Path(screen.log.name).read_text(errors="replace"))
        finally:
            orca.kill()  # asked to end, it would wait for something to happen first
            screen.close()


if __name__ == "__main__":
    main()
