"""The rooms of src/ include only what their libraries link; Qt is in those that draw or show.

Give it the source folder, and the folder in which Qt's modules have their headers.
"""
import re
import sys
from pathlib import Path

TOP, QT = (Path(folder).resolve() for folder in sys.argv[1:])
WIDGETS = {"QtCore", "QtGui", "QtWidgets"}
WITH_QT = {"bitmap": {"QtCore"}, "metafile": {"QtCore", "QtGui"}, "pictures": {"QtCore"},
           "paint": {"QtCore", "QtGui"}, "widgets": WIDGETS, "helpview": WIDGETS, "window": WIDGETS}
CMAKE = (TOP / "CMakeLists.txt").read_text()
ROOMS = {name: links.split() for name, links in re.findall(
    r"^ *terramark_room\((\w+)([^)]*)\)", CMAKE, re.M)}
PROGRAMS = set(re.findall(r"^ *add_executable\(.* (\w+)/main\.cpp\)", CMAKE, re.M))


def linked(name):
    """A room and all that it links, directly or through others."""
    return {name}.union(*map(linked, ROOMS.get(name, [])))


def room_of(header, source):
    """The room or the module of Qt in which a header is; None when it is in neither."""
    for path in ((folder / header).resolve() for folder in (source.parent, TOP)):
        if path.is_file() and path.is_relative_to(TOP):
            return path.relative_to(TOP).parts[0]
    for path in (QT / header, *QT.glob(f"Qt*/{header}")):
        if path.is_file():
            return path.relative_to(QT).parts[0]
    return "a module of Qt that is not here" if re.match("Qt?[A-Z]", header) else None


faults = []
for room in ROOMS:
    others = linked(room) - {room}
    faults += [f"src/CMakeLists.txt: {room} links {program}, which is a program"
               for program in others & PROGRAMS]
    if room not in PROGRAMS | WITH_QT.keys():
        faults += [f"src/CMakeLists.txt: {room} links {drawing}, which knows Qt"
                   for drawing in others & WITH_QT.keys()]
for path in sorted([*TOP.rglob("*.h"), *TOP.rglob("*.cpp")]):
    room = path.relative_to(TOP).parts[0]
    allowed = linked(room) | WITH_QT.get(room, set()) | {None}
    faults += [f"src/{path.relative_to(TOP)}: includes {header}, which {room} does not link"
               for header in re.findall(r'^\s*#\s*include\s*[<"]([^>"]+)', path.read_text(), re.M)
               if room_of(header, path) not in allowed]
print(*faults, sep="\n")
sys.exit(bool(faults) or not ROOMS or len(PROGRAMS) != 3)
