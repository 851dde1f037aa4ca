"""What is installed fits together, and the desktops' own tools take it.

Give it a build folder in which all is built. It installs into a folder of its own.
"""
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path
from shutil import which

DIST = Path(__file__).resolve().parents[2] / "dist"
# Files below share/, what they name, and what has to be there for each name.
NAMED = [
    ("applications/*", r"^Icon=(.*)", "share/icons/hicolor/32x32/apps/{}.png",
     "share/icons/hicolor/scalable/apps/{}.svg"),
    *((entries, r"^(?:Try)?Exec=([\w-]+)", "bin/{}", "share/man/man1/{}.1.gz")
      for entries in ("applications/*", "thumbnailers/*")),
    ("mime/packages/*", r'<icon name="([^"]+)"', "share/icons/hicolor/scalable/mimetypes/{}.svg"),
    ("metainfo/*", r"file:///usr/([^<]+)", "{}"),
    ("metainfo/*", r"<binary>([^<]+)", "bin/{}", "share/man/man1/{}.1.gz"),
    ("metainfo/*", r'"desktop-id">([^<]+)', "share/applications/{}"),
    ("terramark/samples/*.tml", r"\A.*\n.*\n.*\n(.*)", "share/terramark/samples/{}"),
]
# The project has no web site: no domain for its id, no address for its screenshot.
BORNE = {"cid-maybe-not-rdns", "web-url-expected"}


def said(*words):
    """The lines that a tool says; none where there is no such tool."""
    return subprocess.run(words, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          text=True).stdout.splitlines() if which(words[0]) else []


faults = []
with tempfile.TemporaryDirectory() as stage:
    usr, share = Path(stage, "usr"), Path(stage, "usr/share")
    os.environ["XDG_DATA_HOME"] = str(share)
    faults += [line for line in said("cmake", "--install", sys.argv[1], "--prefix", str(usr))
               if not line.startswith("-- ")]
    for files, pattern, *needed in NAMED:
        names = [(file.name, name) for file in share.glob(files)
                 for name in re.findall(pattern, file.read_text("cp1252"), re.M)]
        faults += [f"{file}: {path.format(name)} is not installed" for file, name in names
                   for path in needed if not (usr / path.format(name)).exists()]
        faults += [] if names else [f"{files}: nothing is named by {pattern}"]

    drawn = Path(stage, "drawn.png")
    faults += said(str(DIST / "draw_icon.py"), str(drawn))
    if drawn.read_bytes() != (DIST / "icons/terramark.png").read_bytes():
        faults.append("dist/icons/terramark.png: not the drawing; run dist/draw_icon.py")

    faults += said("desktop-file-validate", *share.glob("applications/*"))
    faults += [line for line in said("appstreamcli", "validate", "--no-net", *share.glob("metainfo/*"))
               if (tag := re.match(r"[EWI]: \S+ (\S+)", line)) and tag[1] not in BORNE]
    faults += said("update-mime-database", share / "mime")
print(*faults, sep="\n")
sys.exit(bool(faults))
