"""The floors of src/ include only what their libraries link, and Qt stays in its two rooms.

Give it the source folder, and the folder in which Qt's modules have their headers.
"""
import re
import sys
from pathlib import Path

TOP, QT = (Path(folder).resolve() for folder in sys.argv[1:])
ROOMS = {"pictures": {"QtCore", "QtGui"}, "window": {"QtCore", "QtGui", "QtWidgets"}}
FLOORS = {name: links.split() for name, links in re.findall(
    r"^terramark_floor\((\w+)([^)]*)\)", (TOP / "CMakeLists.txt").read_text(), re.M)}


def linked(name):
    """A floor and all that it links, directly or through others."""
    return {name}.union(*map(linked, FLOORS.get(name, [])))


def room_of(header, source):
    """The floor or the module of Qt in which a header stands; None when it is neither's."""
    for path in ((folder / header).resolve() for folder in (source.parent, TOP)):
        if path.is_file() and path.is_relative_to(TOP):
            return path.relative_to(TOP).parts[0]
    for path in (QT / header, *QT.glob(f"Qt*/{header}")):
        if path.is_file():
            return path.relative_to(QT).parts[0]
    return "a module of Qt that is not here" if re.match("Qt?[A-Z]", header) else None


faults = [f"src/CMakeLists.txt: {name} links pictures, which no floor of the editor may"
          for name in linked("editor") if "pictures" in linked(name)]
for path in sorted([*TOP.rglob("*.h"), *TOP.rglob("*.cpp")]):
    floor = path.relative_to(TOP).parts[0]
    allowed = linked(floor) | ROOMS.get(floor, set()) | {None}
    faults += [f"src/{path.relative_to(TOP)}: includes {header}, which {floor} does not link"
               for header in re.findall(r'^\s*#\s*include\s*[<"]([^>"]+)', path.read_text(), re.M)
               if room_of(header, path) not in allowed]
print(*faults, sep="\n")
sys.exit(bool(faults) or not FLOORS)
