"""What a person does at the editor, drawn by lot: gestures, each a list of strokes."""
import re
from collections import namedtuple

from cage import GOOD, ODD, SAMPLES
from editor import ABOUT, AREA_SIZE, CONTROLS, FILE_DIALOGS, HELP, QUESTION, TITLE, place_of
from hands import LETTERS

LOADING, POPUP = "TMRK 1.1", "a list"  # the box about a layout that does not load; a menu or list
# What a gesture begins with: the title and the place of the window that has the keyboard, the place
# of the list that is open, and the pixels of the screen to one of the window's.
View = namedtuple("View", "title rect popup scale")

MARKERS = [tuple(map(int, at)) for at in re.findall(
    rb"\n[1-9]\d*,(\d+),(\d+)(?=\r)", (SAMPLES / "europe.tml").read_bytes())]
BUTTONS = " ".join(name for name in CONTROLS if not re.match(
    "Label|Text|Edit|Symb|Armypc|Count|Frame|RGB|Mess|Help|ArmyAt|Cont|ColBar|Picture|Quit", name))
OFTEN = " LoadMpa:6 LoadMap:3 SaveCFG:4 TMHelp DBPush1 DelControl:2 AddTer AddCont Quit:0.3"
BOXES, PLAYERS, BARS = (" ".join(name for name in CONTROLS if re.match(words, name)) for words in (
    "Text|Edit|Symb|Armypc", "PlColor", "ColBar"))
BAR_BUTTONS = 90  # pixels of a title bar
WORDS = "Region", "12", "h", "0", "-1", "99999", "Sea of Azov", "links", *LETTERS


class Draw:
    """Lots and strokes. What one of several words is, a text says, with weights other than 1."""

    def __init__(self, rng, view):
        self.rng, self.view = rng, view

    def one(self, words):
        pairs = [word.partition(":") for word in words.split()]
        return self.rng.choices(pairs, [float(weight or 1) for *_, weight in pairs])[0][0]

    def keys(self, most, words):
        return ["key " + self.one(words) for _ in range(self.rng.randint(1, most))]

    def text(self):
        return [f"type {self.rng.choice(WORDS)}"]

    def maybe(self, share, strokes):
        return strokes if self.rng.random() < share else []

    # Places on the screen.

    def on(self, rect):
        left, top, width, height = rect
        return left + self.rng.randrange(width), top + self.rng.randrange(height)

    def in_window(self, left, top, width, height):
        rect = (left, top, width, height)
        left, top, width, height = (max(int(part * self.view.scale), 1) for part in rect)
        return self.on(self.view.rect._replace(width=width, height=height).moved(left, top))

    def control(self, names):
        return self.in_window(*place_of(self.one(names)))

    def marker(self):
        """Or, where none is, any place of the map."""
        left, top = self.rng.choice(MARKERS)
        place = place_of("Picture1")
        at = (place.left + left, place.top + top, *AREA_SIZE) if self.rng.random() < 0.7 else place
        return self.in_window(*at)

    def on_bar(self, from_right=None):
        """The title bar beside its buttons, or its button so far from the right edge."""
        left, top, width, _ = self.view.rect
        right = from_right or self.rng.randrange(BAR_BUTTONS, max(width, BAR_BUTTONS + 1))
        return left + width - right, top - 10

    # Mouse.

    def press(self, at, buttons="1", held="-", times="1"):
        key, clicks = self.one(held), [f"click {self.one(buttons)}"] * int(self.one(times))
        strokes = ["move {} {}".format(*at), *clicks]
        return strokes if key == "-" else [f"hold {key}", *strokes, f"free {key}"]

    def drag(self, start, *ends):
        start, *way = ["move {} {}".format(*at) for at in (start, *ends)]
        return [start, "press 1", *way, *self.maybe(0.15, self.keys(1, "Escape Left F6")), "let 1"]

    def wheel(self, at, held):
        return self.press(at, self.one("4 5"), held, "1 2 3 5")


MAP_KEYS = ("Right:5 Left:2 End space:4 shift+space:4 Return:3 c:2 Menu Escape ctrl+Return Prior "
            "Next shift+Next Up:2 Down:2 shift+Right:2 ctrl+plus ctrl+minus:2 ctrl+0 ctrl+9 F1:0.2")
LIST_KEYS = "Down:4 Up Return:4 Escape Tab"
READING = ("Tab:5 Return:4 alt+Left:3 alt+Right Next:2 End ctrl+plus ctrl+minus ctrl+0 shift+Down "
           "ctrl+c ctrl+a shift+F10:0.5 Escape:0.5")


def name_file(draw):
    name = draw.rng.choice([*GOOD * 4, *ODD, "mine.tml", "qq"])
    whole = draw.rng.random() < 0.4
    return draw.maybe(0.3, ["key ctrl+a"]) + [
        f"type {name if whole else name[:draw.rng.randint(1, len(name))]}",
        *draw.keys(4, "Return:5 Down:4 Up Escape Tab BackSpace")]


def repeat(draw):
    key = draw.one("Right Left Down Tab Next BackSpace Return x")
    return [f"hold {key}", "rest 0.8", f"free {key}"]


# Where a window's frame is taken; what closes the main window comes less often.
FRAME = {
    "bar": (4, lambda draw: draw.drag(draw.on_bar(), draw.on_bar())),
    "bar twice": (1, lambda draw: draw.press(draw.on_bar(), times="2")),
    "large": (1, lambda draw: draw.press(draw.on_bar(30))),
    "small": (1, lambda draw: draw.press(draw.on_bar(50))),
    "next": (3, lambda draw: draw.keys(2, "alt+Tab")),
    "close": (0.1, lambda draw: draw.keys(1, "alt+F4") if draw.rng.random() < 0.5
              else draw.press(draw.on_bar(10)))}
BOX = {
    "keys": (4, lambda draw: draw.keys(2, "Return:3 Escape:3 alt+y alt+n space Tab shift+F10:0.3")),
    "anywhere": (2, lambda draw: draw.press(draw.on(draw.view.rect), "1:5 3", times="1:4 2"))}
# What is done in a window, and how often.
GESTURES = {
    TITLE: FRAME | {
        "button": (64, lambda draw: draw.press(draw.control(BUTTONS + OFTEN), "1:30 3",
                                               "-:12 shift", "1:15 2")),
        "marker": (56, lambda draw: draw.press(draw.marker(), "1:6 3", "-:5 shift:4 ctrl:2")),
        "carry": (24, lambda draw: draw.drag(*[draw.marker() for _ in range(
            draw.rng.randint(2, 4))])),
        "map keys": (28, lambda draw: draw.keys(1, "F6 Home:2") + draw.keys(6, MAP_KEYS)),
        "wheel": (16, lambda draw: draw.wheel(draw.marker(), "- ctrl:4 shift alt")),
        "edit": (40, lambda draw: draw.maybe(0.8, draw.press(draw.control(BOXES)))
                 + draw.maybe(0.3, draw.keys(4, "ctrl+a ctrl+x ctrl+c ctrl+v ctrl+z"))
                 + draw.text() + draw.keys(2, "Tab:2 BackSpace Home")),
        "menu": (8, lambda draw: draw.press(draw.control(BOXES), "3") + draw.keys(4, LIST_KEYS)),
        "mix": (12, lambda draw: draw.press(draw.control(PLAYERS))
                + draw.drag(draw.control(BARS), draw.control(BARS))),
        "tour": (12, lambda draw: draw.keys(6, "Tab:5 shift+Tab:3")
                 + draw.keys(2, "space:3 Return F1 Down Next shift+F10")),
        "anywhere": (6, lambda draw: draw.press(draw.on(draw.view.rect), "1 3")),
        "repeat": (1, repeat)},
    **dict.fromkeys(FILE_DIALOGS.values(), BOX | FRAME | {
        "name": (30, name_file),
        "anywhere": (12, lambda draw: draw.press(draw.on(draw.view.rect), "1:5 3", times="1:2 2")),
        "list": (8, lambda draw: draw.keys(4, LIST_KEYS + " shift+Tab F2 Delete:0.3")),
        "wheel": (2, lambda draw: draw.wheel(draw.on(draw.view.rect), "-"))}),
    QUESTION: BOX | {"yes": (8, lambda draw: ["key alt+y"]), "next": FRAME["next"]},
    HELP: BOX | FRAME | {
        "look up": (10, lambda draw: ["key ctrl+f", "key ctrl+a", *draw.text(),
                                      *draw.keys(3, "F3:3 shift+F3 Return Tab Down:2 Escape:0.3")]),
        "read": (12, lambda draw: draw.keys(5, READING)),
        "anywhere": (10, BOX["anywhere"][1]),
        "wheel": (5, lambda draw: draw.wheel(draw.on(draw.view.rect), "-:2 ctrl"))},
    ABOUT: BOX | FRAME | {"drag": (2, lambda draw: draw.drag(*map(draw.on, [draw.view.rect] * 2)))},
    LOADING: BOX,
    POPUP: {"list": (6, lambda draw: draw.keys(4, LIST_KEYS)), "type": (1, Draw.text),
            "pick": (4, lambda draw: draw.press(draw.on(draw.view.popup), "1:9 3"))}}


def drawn(rng, view):
    """The name of a gesture, and its strokes."""
    title = POPUP if view.popup and rng.random() < 0.8 else view.title
    gestures = GESTURES.get(title, BOX)
    name = rng.choices(list(gestures), [weight for weight, _ in gestures.values()])[0]
    return name, gestures[name][1](Draw(rng, view))
