"""Mouse, keyboard and eyes on a screen: X events by one connection."""
import select
import time

from Xlib import X, XK
from Xlib.display import Display
from Xlib.error import XError
from Xlib.protocol.event import ClientMessage

from screen import Rect

KEYS = {"ctrl": "Control_L", "alt": "Alt_L", "shift": "Shift_L"}
LETTERS = "Îéß€Ж"  # that the keyboard lacks; the last is not in the code page


def keysym_of(character):
    return ord(character) if ord(character) < 0x100 else 0x1000000 + ord(character)


class Hands:
    def __init__(self, name, size):
        self.display, self.size = Display(name), size
        self.display.set_error_handler(lambda *_: None)  # what was looked at may just have gone
        self.root = self.display.screen().root
        # The editor tells its answers to those who hear of the root itself.
        self.root.change_attributes(event_mask=X.SubstructureNotifyMask | X.StructureNotifyMask)
        self.pings = self.answer = 1 << 16  # beyond the numbers of the window manager's own
        self.popups = {}  # open lists and menus, the topmost last
        self.stirred = False  # windows have come or gone
        self.boxes = 0  # windows in a frame that have come up so far
        first = self.display.display.info.min_keycode
        rows = dict(enumerate(self.display.get_keyboard_mapping(first, 256 - first), first))
        for code, letter in zip([code for code in rows if not any(rows[code])], LETTERS):
            rows[code] = [keysym_of(letter)] * 2
            self.display.change_keyboard_mapping(code, [rows[code]])
        # The key for each keysym, and whether it takes the Shift key.
        self.keys = {rows[code][level]: (code, level) for level in (1, 0) for code in rows}

    def windows(self, name="_NET_CLIENT_LIST"):
        return [self.display.create_resource_object("window", number)
                for number in self.read(self.root, name) if number]

    def read(self, window, name):
        """A property, or nothing."""
        try:
            found = window.get_full_property(self.display.intern_atom(name), X.AnyPropertyType)
        except XError:
            found = None
        return found.value if found else []

    def title(self, window):
        return bytes(self.read(window, "_NET_WM_NAME")).decode()

    def place(self, window):
        """Its inside on the screen; None when it has gone."""
        try:
            size, at = window.get_geometry(), self.root.translate_coords(window, 0, 0)
        except XError:
            return None
        return Rect(at.x, at.y, size.width, size.height)

    def tell(self, window, receiver, kind, *data):
        message = ClientMessage(window=window, client_type=self.display.intern_atom(kind),
                                data=(32, [*data, 0, 0, 0, 0][:5]))
        mask = X.SubstructureRedirectMask if receiver == self.root else 0
        receiver.send_event(message, event_mask=mask)
        self.display.flush()

    def activate(self, window):
        self.tell(window, self.root, "_NET_ACTIVE_WINDOW", 2)

    def ping(self, window):
        """Asks as a window manager does. The answer may overtake what was played before; that of
        the next question does not."""
        self.pings += 1
        self.tell(window, window, "WM_PROTOCOLS", self.display.intern_atom("_NET_WM_PING"),
                  self.pings, window.id)

    def listen(self, seconds):
        """Takes note of what happens, and waits so long for it."""
        if not self.display.pending_events():
            select.select([self.display], [], [], seconds)
        while self.display.pending_events():
            event = self.display.next_event()
            self.stirred |= event.type in (X.MapNotify, X.UnmapNotify)
            if event.type == X.ClientMessage:
                if event.client_type == self.display.intern_atom("WM_PROTOCOLS"):
                    self.answer = max(self.answer, event.data[1][1])
            elif event.type == X.UnmapNotify:
                self.popups.pop(event.window.id, None)
            elif event.type == X.MapNotify and event.override:
                tip = self.display.intern_atom("_NET_WM_WINDOW_TYPE_TOOLTIP")
                if tip not in self.read(event.window, "_NET_WM_WINDOW_TYPE"):
                    self.popups[event.window.id] = event.window
            elif event.type == X.ReparentNotify and event.parent != self.root:
                self.boxes += 1

    def play(self, stroke, pause):
        """A stroke: key KEY+..., hold or free KEY, type TEXT, move X Y, press, let go or click a
        BUTTON, rest SECONDS."""
        what, _, rest = stroke.partition(" ")
        if what == "type":
            for character in rest:
                self.strike([keysym_of(character)], pause)
        elif what in ("key", "hold", "free"):
            self.strike([XK.string_to_keysym(KEYS.get(key, key)) for key in rest.split("+")],
                        pause, what != "free", what != "hold")
        elif what == "move":
            x, y = (min(max(int(at), 0), end - 1) for at, end in zip(rest.split(), self.size))
            self.event(pause, X.MotionNotify, x=x, y=y)
        elif what == "rest":
            self.event(float(rest))
        else:
            for kind in (X.ButtonPress,) * (what != "let") + (X.ButtonRelease,) * (what != "press"):
                self.event(pause, kind, int(rest))

    def strike(self, keysyms, pause, down=True, up=True):
        codes = []
        for code, shift in map(self.keys.get, keysyms):
            codes += [self.keys[XK.XK_Shift_L][0]] * shift + [code]
        for number, code in enumerate(codes * down, 1):
            self.event(pause / 2 * (number == len(codes)), X.KeyPress, code)
        for code in codes[::-1] * up:
            self.event(pause / 2 * (code == codes[0]), X.KeyRelease, code)

    def event(self, pause, *what, **where):
        if what:
            self.display.xtest_fake_input(*what, **where)
            self.display.flush()
        if pause:
            time.sleep(pause)
