"""A screen that nobody sees, with a window manager, a mouse and a keyboard.

Xvfb keeps its picture in a file; reading a pixel is reading that file, so a look costs nothing and
can be taken as often as it takes.
"""
import mmap
import os
import struct
import subprocess
import time
import zlib
from collections import namedtuple

LIMIT = 180  # seconds that a step may take: what comes, comes sooner, however slow the machine
PAUSE = 0.02
WIDTH, HEIGHT = 1280, 1024
RC = "--config-file", os.path.join(os.path.dirname(os.path.abspath(__file__)), "rc.xml")


class Failure(Exception):
    """What was waited for did not come."""


class Rect(namedtuple("Rect", "left top width height")):
    """In pixels."""

    def moved(self, x, y):
        return Rect(self.left + x, self.top + y, self.width, self.height)

    def inner(self, by):
        return Rect(self.left + by, self.top + by, self.width - 2 * by, self.height - 2 * by)

    @property
    def centre(self):
        return self.left + self.width // 2, self.top + self.height // 2


def rgb_rows(look, width):
    """What a look gave, as rows of red, green and blue."""
    for start in range(0, len(look), 4 * width):
        row = look[start:start + 4 * width]
        line = bytearray(3 * width)
        line[0::3], line[1::3], line[2::3] = row[2::4], row[1::4], row[0::4]
        yield bytes(line)


def write_png(path, rows):
    """Writes rows of red, green and blue."""
    head = struct.pack(">IIBBBBB", len(rows[0]) // 3, len(rows), 8, 2, 0, 0, 0)
    pixels = zlib.compress(b"".join(b"\0" + row for row in rows), 9)
    with open(path, "wb") as file:
        file.write(b"\x89PNG\r\n\x1a\n")
        for chunk in b"IHDR" + head, b"IDAT" + pixels, b"IEND":
            file.write(struct.pack(">I", len(chunk) - 4) + chunk)
            file.write(struct.pack(">I", zlib.crc32(chunk)))


class Screen:
    def __init__(self, folder, size=(WIDTH, HEIGHT), manager=RC, home=None, **rights):
        """Starts it; what its programs write goes into the folder. The window manager takes more
        arguments; it and what runs on the screen are at home in a folder of their own, and have
        rights, as subprocess.Popen knows them."""
        home = home or folder
        self.size = size
        self.log = open(os.path.join(folder, "programs.log"), "wb")
        self.started, self.rights = [], {}
        # Nothing that a person set up for their own desktop reaches what runs here.
        self.environment = {key: value for key, value in os.environ.items()
                            if not key.startswith(("XDG_", "QT_", "WAYLAND_"))}
        self.environment.update(HOME=home, LC_ALL="C.UTF-8", XDG_RUNTIME_DIR=home,
                                QT_QPA_PLATFORM="xcb")
        ready, told = os.pipe()
        self.start(["Xvfb", "-displayfd", str(told), "-screen", "0", "{}x{}x24".format(*size),
                    "-dpi", "96", "-nolisten", "tcp", "-noreset", "-fbdir", folder],
                   pass_fds=[told])
        self.rights = rights
        os.close(told)
        with os.fdopen(ready) as number:
            display = number.readline().strip()
        if not display:
            raise Failure("Xvfb does not start")
        self.environment["DISPLAY"] = ":" + display
        # It loses windows that come up while it starts, so it has to say when it is through.
        managed = os.path.join(home, "managed")
        self.start(["openbox", "--sm-disable", "--startup", f"touch '{managed}'", *manager])
        self.wait("the window manager", lambda: os.path.exists(managed))
        with open(os.path.join(folder, "Xvfb_screen0"), "rb") as file:
            self.picture = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        # The header of a window dump: 25 numbers, the first of them its length, then the colours.
        header = struct.unpack(">25I", self.picture[:100])
        self.stride = header[12]
        self.start_of_pixels = header[0] + 12 * header[19]

    def start(self, command, **options):
        """Runs a program on the screen."""
        usual = {"stdin": subprocess.DEVNULL, "stdout": self.log, "stderr": self.log,
                 "env": self.environment}
        self.started.append(subprocess.Popen(command, **usual | self.rights | options))
        return self.started[-1]

    def start_bus(self):
        """Starts a session bus of its own, by which programs reach assistive tools."""
        told, address = os.pipe()
        self.start(["dbus-daemon", "--session", "--nofork", f"--print-address={address}"],
                   pass_fds=[address])
        os.close(address)
        self.environment.pop("AT_SPI_BUS_ADDRESS", None)
        with os.fdopen(told) as line:
            self.environment.update(DBUS_SESSION_BUS_ADDRESS=line.readline().strip(),
                                    QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")

    def close(self):
        for process in reversed(self.started):
            process.terminate()
            process.wait(LIMIT)

    def wait(self, what, seen):
        """Looks again and again until seen() is true."""
        end = time.monotonic() + LIMIT
        while not seen():
            if time.monotonic() > end:
                raise Failure(f"waited {LIMIT} s in vain: {what}")
            for process in self.started:
                if process.poll() is not None:
                    raise Failure(f"{process.args[0]} ended ({process.returncode}) before: {what}")
            time.sleep(PAUSE)

    # The mouse, the keyboard and the windows.

    def tool(self, *words, check=True):
        """Runs xdotool and gives its output. The words may be several of its commands in a row.
        To look for windows fails where one is just going."""
        done = subprocess.run(["xdotool", *map(str, words)], env=self.environment, text=True,
                              stdin=subprocess.DEVNULL, capture_output=True, timeout=LIMIT)
        if check and done.returncode:
            raise Failure(f"xdotool {' '.join(map(str, words))}: {done.stderr.strip()}")
        return done.stdout.strip()

    def wait_active(self, title):
        """Until a window of that title has the keyboard."""
        self.wait(f"the keyboard in the window {title!r}",
                  lambda: self.tool("getactivewindow", "getwindowname", check=False) == title)

    def corner(self):
        """Where the inside of the window begins that has the keyboard."""
        words = self.tool("getactivewindow", "mousemove", "--window", "%1", 0, 0,
                          "getmouselocation").split()
        return tuple(int(word.split(":")[1]) for word in words[:2])

    # The picture.

    def _row(self, rect, y):
        start = self.start_of_pixels + (rect.top + y) * self.stride + 4 * rect.left
        return self.picture[start:start + 4 * rect.width]

    def look(self, rect):
        """The pixels of a part, as bytes that can be compared."""
        return b"".join(self._row(rect, y) for y in range(rect.height))

    def count(self, rect, colour):
        """How many pixels of a part have exactly the colour, 0xRRGGBB."""
        pixels = memoryview(self.look(rect)).cast("I")
        return sum(pixel & 0xFFFFFF == colour for pixel in pixels)

    def save(self, path, rect=None):
        """Writes the screen or a part of it as a PNG file."""
        rect = rect or Rect(0, 0, *self.size)
        write_png(path, list(rgb_rows(self.look(rect), rect.width)))
