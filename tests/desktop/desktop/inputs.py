"""Real pointer and key events, injected through the X server's test extension."""

import time

from Xlib import X, XK
from Xlib.ext import xtest

from .manager import WindowManagerQueue

MODIFIER_KEYSYMS = {
    "Ctrl": "Control_L", "Shift": "Shift_L", "Alt": "Alt_L", "Meta": "Super_L",
}
KEY_NAMES = {"Esc": "Escape", "Enter": "Return", "Space": "space", "Del": "Delete"}
LEFT, MIDDLE, RIGHT, WHEEL_UP, WHEEL_DOWN = 1, 2, 3, 4, 5

# A hand reports its position about every 4 ms; the pace of an injected drag.
SAMPLE_INTERVAL_S = 0.004


class Keyboard:
    """Presses keys by name: "a", "Return", "F5", or a chord such as "Ctrl+Shift+Z"."""

    def __init__(self, display):
        self._display = display
        self._down = []
        self._spare = []

    def press(self, key):
        for code in self._codes(key):
            self._send(X.KeyPress, code)
            self._down.append(code)

    def release(self, key):
        for code in reversed(self._codes(key)):
            self._send(X.KeyRelease, code)
            if code in self._down:
                self._down.remove(code)

    def tap(self, *keys):
        """Presses and releases each key or chord in turn."""
        for key in keys:
            self.press(key)
            self.release(key)

    def type(self, text):
        """Types the text character by character, Chinese included."""
        for character in text:
            keysym = {"\n": XK.XK_Return, "\t": XK.XK_Tab}.get(character)
            if keysym is None:
                keysym = ord(character) if ord(character) < 256 else 0x01000000 | ord(character)
            codes = self._codes_of_keysym(keysym)
            for code in codes:
                self._send(X.KeyPress, code)
            for code in reversed(codes):
                self._send(X.KeyRelease, code)

    def release_all(self):
        while self._down:
            self._send(X.KeyRelease, self._down.pop())

    def _send(self, kind, code):
        xtest.fake_input(self._display, kind, code)
        self._display.sync()

    def _codes(self, chord):
        *modifiers, key = chord.split("+") if chord != "+" else ["plus"]
        codes = [self._code(MODIFIER_KEYSYMS[name]) for name in modifiers]
        keysym = XK.string_to_keysym(MODIFIER_KEYSYMS.get(key, KEY_NAMES.get(key, key)))
        if keysym == X.NoSymbol:
            raise ValueError(f"no such key: {key}")
        # In a chord the letter's case says nothing: "Ctrl+Z" has no Shift in it.
        if modifiers and len(key) == 1:
            keysym = XK.string_to_keysym(key.lower()) or keysym
        for code in self._codes_of_keysym(keysym):
            if code not in codes:
                codes.append(code)
        return codes

    def _code(self, name):
        return self._display.keysym_to_keycode(XK.string_to_keysym(name))

    def _codes_of_keysym(self, keysym):
        for code, level in self._display.keysym_to_keycodes(keysym):
            if level == 0:
                return [code]
            if level == 1:
                return [self._code("Shift_L"), code]
        return [self._lend_key_to(keysym)]

    def _lend_key_to(self, keysym):
        """Gives a key that the layout leaves empty to a character that it does not have."""
        if not self._spare:
            self._spare = self._empty_keys()
        code = self._spare.pop()
        self._display.change_keyboard_mapping(code, [[keysym] * 2])
        self._display.sync()
        return code

    def _empty_keys(self):
        info = self._display.display.info
        mapping = self._display.get_keyboard_mapping(
            info.min_keycode, info.max_keycode - info.min_keycode + 1)
        return [info.min_keycode + i for i, symbols in enumerate(mapping) if not any(symbols)]


class Pointer:
    """Moves and clicks in pixels of the whole desktop."""

    def __init__(self, display, keyboard):
        self._display = display
        self._keyboard = keyboard
        self._manager = WindowManagerQueue(display)
        self._down = []

    @property
    def position(self):
        reply = self._display.screen().root.query_pointer()
        return reply.root_x, reply.root_y

    def move(self, x, y):
        xtest.fake_input(self._display, X.MotionNotify, x=int(x), y=int(y))
        self._display.sync()

    def sweep(self, points):
        """Moves along the points as quickly as the server takes them."""
        for x, y in points:
            xtest.fake_input(self._display, X.MotionNotify, x=int(x), y=int(y))
        self._display.sync()

    def press(self, button=LEFT):
        xtest.fake_input(self._display, X.ButtonPress, button)
        self._display.sync()
        self._down.append(button)
        self._manager.drain()

    def release(self, button=LEFT):
        xtest.fake_input(self._display, X.ButtonRelease, button)
        self._display.sync()
        if button in self._down:
            self._down.remove(button)

    def click(self, x, y, button=LEFT, times=1):
        """Goes there as a hand does, with a last small motion, and clicks."""
        self.move(x - 1, y)
        self.move(x, y)
        for _ in range(times):
            self.press(button)
            self.release(button)

    def scroll(self, notches):
        """Turns the wheel; positive is up, away from the hand."""
        for _ in range(abs(notches)):
            button = WHEEL_UP if notches > 0 else WHEEL_DOWN
            self.press(button)
            self.release(button)

    def glide(self, points, samples=20, interval=SAMPLE_INTERVAL_S):
        """Moves along the points with `samples` motion events per leg."""
        points = list(points)
        self.move(*points[0])
        for (x0, y0), (x1, y1) in zip(points, points[1:]):
            for i in range(1, samples + 1):
                self.move(round(x0 + (x1 - x0) * i / samples), round(y0 + (y1 - y0) * i / samples))
                time.sleep(interval)

    def drag(self, points, button=LEFT, samples=20, modifiers="", interval=SAMPLE_INTERVAL_S):
        """Presses at the first point, glides along all of them, releases at the last."""
        points = list(points)
        self.move(*points[0])
        if modifiers:
            self._keyboard.press(modifiers)
        self.press(button)
        self.glide(points, samples, interval)
        self.release(button)
        if modifiers:
            self._keyboard.release(modifiers)

    def release_all(self):
        while self._down:
            self.release(self._down[-1])
