"""The floors of src/ include only what their libraries link, and Qt stays in its two rooms.

Give it the source folder, and the folder in which Qt's modules have their headers.
"""
import re
import sys
from pathlib import Path

ROOMS = {"pictures": {"QtCore", "QtGui"}, "window": {"QtCore", "QtGui", "QtWidgets"}}


def linked(floors, name):
    """A floor and all that it links, directly or through others."""
    return {name}.union(*(linked(floors, below) for below in floors.get(name, [])))


def included_room(source, header, top, qt):
    """The floor or the module of Qt in which a header stands; None when it is neither's."""
    for folder in (source.parent, top):
        path = (folder / header).resolve()
        if path.is_file() and path.is_relative_to(top):
            return path.relative_to(top).parts[0]
    modules = [path.relative_to(qt).parts[0] for path in (*qt.glob(f"Qt*/{header}"), qt / header)
               if path.is_file()]
    # A Qt header of a module that is not installed is a guest in every room.
    return modules[0] if modules else "Qt" if re.match("[Qq]t?[A-Z]", header) else None


def main():
    top, qt = (Path(folder).resolve() for folder in sys.argv[1:])
    lists = (top / "CMakeLists.txt").read_text()
    floors = {name: [below for below in links.split() if "::" not in below]
              for name, links in re.findall(r"^terramark_floor\((\w+)([^)]*)\)", lists, re.M)}
    faults = [f"src/CMakeLists.txt: {name} links pictures, which only window may"
              for name, links in floors.items() if "pictures" in links and name != "window"]
    count = 0
    for source in sorted([*top.rglob("*.h"), *top.rglob("*.cpp")]):
        name = source.relative_to(top).parts[0]
        allowed = linked(floors, name) | ROOMS.get(name, set())
        for header in re.findall(r'^\s*#\s*include\s*[<"]([^>"]+)', source.read_text(), re.M):
            count += 1
            room = included_room(source, header, top, qt)
            if room is not None and room not in allowed:
                faults.append(f"src/{source.relative_to(top)}: includes {header}, "
                              f"which {name} does not link")
    print(*faults, f"{count} includes of {len(floors)} floors", sep="\n")
    return 1 if faults or not (floors and count) else 0


sys.exit(main())
