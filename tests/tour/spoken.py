#!/usr/bin/python3
"""Makes a map of six Areas by keyboard alone, and holds what Orca says against what it should say.

    spoken.py EDITOR

Orca runs as it comes, on a screen and on buses of its own, and speaks to a speech dispatcher that
writes down what it is to say. What is not said ends the run with exit status 1; where there is no
Orca, the status is 77.
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

SKIPPED = 77
SAMPLES = Path(__file__).resolve().parents[2] / "samples"
# What Orca 43 with Qt 6.4 does not say, however it is told: texts in the message bar, and a new
# description of what has the keyboard. And what the editor does not tell: an Area's fill corner.
MESSAGES_SAID = CHANGES_SAID = CORNERS_TOLD = False
# Orca's own words about what it names.
ROLES = r"( (push button|text|frame|panel|dialog\b.*))?\.?"
# Orca gives up where a program is long in answering; here it waits as long as the test does.
PATIENCE = f"""from gi.repository import Atspi
from orca import settings
settings.timeoutTime = 0
Atspi.set_timeout({1000 * LIMIT}, {1000 * LIMIT})
"""
CENTRE = 273, 138  # of the map, where new Areas come
REGION = 48, 163
STEP, STEPS = 10, 4
# The ways that the Areas go from there.
WAYS = [("Left",), ("Right",), ("Up",), ("Down",), ("Left", "Up"), ("Right", "Down")]
ALONG = {"Left": (-1, 0), "Right": (1, 0), "Up": (0, -1), "Down": (0, 1)}


class Dispatcher(socketserver.StreamRequestHandler):
    """Answers Orca's end of a speech dispatcher's protocol; all is said as soon as it is sent."""

    def handle(self):
        for line in self.rfile:
            if line.startswith(b"SPEAK"):
                self.answer("230 OK")
                text = b"".join(iter(self.rfile.readline, b".\r\n")).decode()
                self.server.said.append(html.unescape(re.sub("<.*?>", "", text)).strip())
                self.answer("225-1", "225 OK", "701-1", "701-1", "701 BEGIN", "702-1", "702-1",
                            "702 END")
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

    def hears(self, act, *wanted):
        """Does something and waits until all that is wanted has been said, in that order; Orca's
        words may come between."""
        self.said.clear()
        act()
        patterns = [re.compile(re.escape(words) + ROLES) for words in wanted]

        def heard():
            said = iter(list(self.said))
            return all(any(map(pattern.fullmatch, said)) for pattern in patterns)
        try:
            self.wait("", heard)
        except Failure as failure:
            raise Failure(f"{wanted} not said, but {self.said}; {failure}") from failure

    def press_keys(self, keys, *wanted):
        """The keys are separated by blanks."""
        self.hears(lambda: self.key(*keys.split()), *wanted)

    def to_map(self, *wanted):
        self.press_keys("F6", "Map", *wanted)

    def place(self, number, corner="bottom left"):
        """What the description of an Area says once it has gone its way."""
        ways = [ALONG[way] for way in WAYS[number - 1]]
        x, y = (start + STEP * STEPS * sum(steps)
                for start, steps in zip(CENTRE, zip(*ways)))
        return f"at {x}, {y}" + (f", fill point {corner}" if CORNERS_TOLD else "")

    def load(self):
        self.to_map()
        self.press_keys(" ".join(8 * ["Tab"]), "Picture Load A .WMF Picture")
        self.press_keys("space", FILE_DIALOGS["LoadMap"], "File name:")
        self.screen.tool("type", "europe.bmp")
        self.press_keys("Return", TITLE, "Picture Load A .WMF Picture",
                        os.getcwd() + "/europe.bmp")

    def add_areas(self):
        self.to_map()
        for number, ways in enumerate(WAYS, 1):
            start = "at {}, {}".format(*CENTRE)
            corner = ", fill point bottom left" if CORNERS_TOLD else ""
            self.press_keys("ctrl+Return", f"{number}: Area {number} in Region *UNKNOWN*",
                            start + corner)
            self.press_keys("Return", *CHANGES_SAID * ["held " + start])
            for way in ways:
                self.press_keys(" ".join(STEPS * ["shift+" + way]))
            self.press_keys("Return", *CHANGES_SAID * [self.place(number)])
        self.press_keys("c", *CHANGES_SAID * [self.place(6, "top left")])

    def walk(self):
        names = [f"{number}: Area {number} in Region *UNKNOWN*" for number in range(1, 7)]
        self.press_keys("F6", "Picture Load A .WMF Picture")
        self.to_map("List with 6 items.", names[5], self.place(6, "top left"))
        self.press_keys("Home", names[0], self.place(1))
        for number in range(2, 6):
            self.press_keys("Right", names[number - 1], self.place(number))
        self.press_keys("Left", names[3], self.place(4))
        self.press_keys("End", names[5], self.place(6, "top left"))

    def name_areas(self):
        for number, name in (6, "Norway"), (5, "Ireland"):
            # The old name is selected, to be typed over.
            self.press_keys("space", f"Area {number}", "selected")
            self.screen.tool("type", name)
            self.press_keys("Tab", "Card symbol of the Area")
            self.to_map(f"{number}: {name} in Region *UNKNOWN*", self.place(
                number, "bottom left" if number < 6 else "top left"))
            self.press_keys("Left", f"{number - 1}: Area {number - 1} in Region *UNKNOWN*")

    def set_region(self):
        back = ["shift+Tab"]
        self.press_keys(" ".join(6 * back), "Add Region")
        self.press_keys("space")
        self.to_map("1:  Region 1", "at {}, {}".format(*REGION))
        self.press_keys("space")
        self.press_keys("Left", "6: Norway in Region *UNKNOWN*")
        for said in "selected", "unselected", "selected":
            self.press_keys("shift+space", said)
        self.press_keys(" ".join(4 * back), "Set Region")
        self.press_keys("space")
        self.to_map("6: Norway in Region Region 1")

    def link(self):
        self.press_keys("space", "Norway", "selected")
        self.to_map()
        self.press_keys("Left", "5: Ireland in Region *UNKNOWN*")
        self.press_keys("shift+space", "selected")
        self.press_keys(" ".join(5 * ["shift+Tab"]), "Set Neighbours")
        self.press_keys("space")

    def validate(self):
        self.to_map()
        self.press_keys(" ".join(8 * ["Tab"]), "Validate Map")
        self.press_keys("space", *MESSAGES_SAID * ["Number of Regions must be more than 1"])

    def run(self):
        for part in (self.load, self.add_areas, self.walk, self.name_areas, self.set_region,
                     self.link, self.validate):
            print(part.__name__, flush=True)
            part()


def main():
    if not shutil.which("orca"):
        print("Orca is not installed")
        sys.exit(SKIPPED)
    program = Path(sys.argv[1]).resolve()
    with tempfile.TemporaryDirectory(prefix="terramark-spoken-") as folder:
        os.chdir(shutil.copytree(SAMPLES, folder + "/samples"))
        for name, text in {".local/share/orca/orca-customizations.py": PATIENCE}.items():
            file = Path(folder, name)
            file.parent.mkdir(parents=True)
            file.write_text(text)
        # Orca does not start beside another of the same user, or ends it: it finds none.
        Path(folder, "pgrep").symlink_to("/bin/false")
        socket = folder + "/speech"
        dispatcher = socketserver.ThreadingUnixStreamServer(socket, Dispatcher)
        dispatcher.daemon_threads = True
        dispatcher.said = []
        threading.Thread(target=dispatcher.serve_forever, daemon=True).start()
        screen = Screen(folder)
        orca = None
        try:
            screen.start_buses()
            screen.environment.update(
                SPEECHD_ADDRESS="unix_socket:" + socket, GSETTINGS_BACKEND="memory",
                PATH=f"{folder}:{screen.environment['PATH']}")
            orca = screen.start(["orca", "--disable=braille"])
            screen.wait("Orca's first words", lambda: dispatcher.said)
            Listener(screen, program, dispatcher.said).run()
        except Failure as failure:
            print("FAILED:", failure)
            sys.exit(Path(screen.log.name).read_text(errors="replace"))
        finally:
            if orca:
                orca.kill()  # it would not heed a request to end before something happens
            screen.close()


if __name__ == "__main__":
    main()
