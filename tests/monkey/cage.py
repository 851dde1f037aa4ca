"""Where the editor is kept: a folder with files to load and save over, and no way to do harm
outside of it, since a file dialog deletes and renames whatever the user may."""
import ctypes
import os
import pwd
import shutil
import struct
from pathlib import Path

SAMPLES = Path(__file__).resolve().parents[2] / "samples"
GOOD = "europe.tml", "europe.bmp", "europe.wmf", "europe-wmf.tml"
ODD = "Île.tml", "no-picture.tml", "broken.tml", "inner"  # the last is a folder
NOBODY = pwd.getpwnam("nobody")
# Landlock: its calls; what they handle, which is writing, removing and making of all kinds, and
# with later versions moving and cutting off as well.
CREATE_RULESET, ADD_RULE, RESTRICT_SELF, SET_NO_NEW_PRIVS = 444, 445, 446, 38
CHANGES = 0b0001_1111_1111_0010, 0b0011_1111_1111_0010, 0b0111_1111_1111_0010
LIBC = ctypes.CDLL(None, use_errno=True)


def furnish(home):
    """Puts the files there, whatever has become of them."""
    for path in home.iterdir():
        if path.name[0] != "." and path.name != "inner":
            shutil.rmtree(path) if path.is_dir() else path.unlink()
    layout = (SAMPLES / GOOD[0]).read_bytes()
    (home / "inner").mkdir(exist_ok=True)
    for name in GOOD:
        shutil.copy(SAMPLES / name, home)
    for name, content in zip(ODD, (layout, layout.replace(b"europe.bmp", b"none.bmp"),
                                   layout[:len(layout) // 2])):
        (home / name).write_bytes(content)
    for path in (home, *home.iterdir()) if os.getuid() == 0 else ():
        os.chown(path, NOBODY.pw_uid, NOBODY.pw_gid)


def rights(home):
    """What a program may do, for subprocess.Popen; None where nothing can keep it in the folder."""
    version = LIBC.syscall(CREATE_RULESET, None, 0, 1)
    walls = {"preexec_fn": lambda: shut_in(home, CHANGES[min(version, 3) - 1])}
    user = {"user": NOBODY.pw_uid, "group": NOBODY.pw_gid, "extra_groups": []}
    return (user if os.getuid() == 0 else {}) | (walls if version > 0 else {}) or None


def shut_in(home, changes):
    """Lets this process and its children change nothing outside the folder."""
    rules = LIBC.syscall(CREATE_RULESET, struct.pack("=Q", changes), 8, 0)
    inside = struct.pack("=Qi", changes, os.open(home, os.O_PATH))
    if (rules < 0 or LIBC.syscall(ADD_RULE, rules, 1, inside, 0)
            or LIBC.prctl(SET_NO_NEW_PRIVS, 1, 0, 0, 0) or LIBC.syscall(RESTRICT_SELF, rules, 0)):
        raise OSError(ctypes.get_errno(), "Landlock")
