"""Windows as the window manager and a person know them."""

from collections import namedtuple

from Xlib import X, Xatom, error
from Xlib.protocol import event

Rect = namedtuple("Rect", "x y width height")

SHAPE_INPUT = 2
MOTIF_DECORATIONS = 1 << 1


class Window:
    """A client's top-level window. Every property is read anew from the server."""

    def __init__(self, display, xid):
        self._display = display
        self.id = xid
        self.handle = display.create_resource_object("window", xid)

    def __repr__(self):
        try:
            return f"<window 0x{self.id:x} {self.title!r} {tuple(self.geometry)} pid {self.pid}>"
        except (error.BadWindow, error.BadDrawable):
            return f"<window 0x{self.id:x}, closed>"

    def __eq__(self, other):
        return isinstance(other, Window) and other.id == self.id

    def __hash__(self):
        return self.id

    def raw(self, name, kind=X.AnyPropertyType):
        """The raw value of a property, or None."""
        reply = self.handle.get_full_property(self._display.get_atom(name), kind)
        return None if reply is None else reply.value

    def atoms(self, name):
        """The names of the atoms that a property lists."""
        return {self._display.get_atom_name(atom)
                for atom in self.raw(name, Xatom.ATOM) or []}

    @property
    def title(self):
        for name in ("_NET_WM_NAME", "WM_NAME"):
            value = self.raw(name)
            if value:
                return value.decode("utf-8", "replace") if isinstance(value, bytes) else value
        return ""

    @property
    def wm_class(self):
        value = self.raw("WM_CLASS") or b""
        return tuple(part.decode() for part in value.split(b"\0") if part)

    @property
    def role(self):
        return (self.raw("WM_WINDOW_ROLE") or b"").decode()

    @property
    def pid(self):
        value = self.raw("_NET_WM_PID", Xatom.CARDINAL)
        return value[0] if value else None

    @property
    def states(self):
        return self.atoms("_NET_WM_STATE")

    @property
    def types(self):
        return self.atoms("_NET_WM_WINDOW_TYPE")

    @property
    def opacity(self):
        """0.0 to 1.0, as the compositor applies it to the whole window."""
        value = self.raw("_NET_WM_WINDOW_OPACITY", Xatom.CARDINAL)
        return value[0] / 0xFFFFFFFF if value else 1.0

    @property
    def geometry(self):
        """The window without its frame, in pixels of the desktop."""
        own = self.handle.get_geometry()
        origin = self.handle.translate_coords(own.root, 0, 0)
        return Rect(-origin.x, -origin.y, own.width, own.height)

    @property
    def depth(self):
        return self.handle.get_geometry().depth

    @property
    def visible(self):
        return self.handle.get_attributes().map_state == X.IsViewable

    @property
    def minimised(self):
        return "_NET_WM_STATE_HIDDEN" in self.states

    @property
    def on_top(self):
        return "_NET_WM_STATE_ABOVE" in self.states

    @property
    def frameless(self):
        """Neither asked for decorations nor got any."""
        hints = self.raw("_MOTIF_WM_HINTS")
        asks_for_none = bool(hints) and hints[0] & MOTIF_DECORATIONS and hints[2] == 0
        extents = self.raw("_NET_FRAME_EXTENTS", Xatom.CARDINAL)
        return bool(asks_for_none) and not any(extents or [])

    @property
    def input_area(self):
        """The rectangles, in window pixels, in which the window takes the pointer."""
        reply = self.handle.shape_get_rectangles(SHAPE_INPUT)
        return [Rect(r.x, r.y, r.width, r.height) for r in reply.rectangles]

    @property
    def takes_pointer(self):
        return bool(self.input_area) and self.visible

    def at(self, x, y):
        """Desktop coordinates of a point given in window pixels."""
        rect = self.geometry
        return rect.x + round(x), rect.y + round(y)

    @property
    def centre(self):
        rect = self.geometry
        return rect.x + rect.width // 2, rect.y + rect.height // 2


class Windows:
    """Looks windows up."""

    def __init__(self, display):
        self._display = display
        self._root = display.screen().root

    def all(self, visible=True, **wanted):
        """Every named or owned window whose properties equal the wanted ones, lowest first.

        `all(title="...", pid=...)`; a callable value is asked instead of compared."""
        found = []
        for xid in self._walk(self._root):
            window = Window(self._display, xid)
            try:
                if (not visible or window.visible) and self._matches(window, wanted):
                    found.append(window)
            except (error.BadWindow, error.BadDrawable):
                continue  # closed while we looked
        return found

    def find(self, visible=True, **wanted):
        """The one window that matches; LookupError says what there is otherwise."""
        found = self.all(visible, **wanted)
        if len(found) != 1:
            raise LookupError(f"{len(found)} windows match {wanted}; there are "
                              f"{self.all(visible)}")
        return found[0]

    @property
    def active(self):
        """The window that has the keyboard, as the window manager tells, or None."""
        value = self._root_list("_NET_ACTIVE_WINDOW")
        return Window(self._display, value[0]) if value and value[0] else None

    def activate(self, window):
        """Gives the keyboard to a window, as the window switcher does."""
        from_pager = 2
        self._ask("_NET_ACTIVE_WINDOW", window, (from_pager, X.CurrentTime, 0, 0, 0))

    def close(self, window):
        """Asks a window to close, as Alt+F4 and a task bar do."""
        from_pager = 2
        self._ask("_NET_CLOSE_WINDOW", window, (X.CurrentTime, from_pager, 0, 0, 0))

    def _ask(self, what, window, data):
        message = event.ClientMessage(
            window=window.id, client_type=self._display.get_atom(what), data=(32, data))
        self._root.send_event(
            message, event_mask=X.SubstructureRedirectMask | X.SubstructureNotifyMask)
        self._display.sync()

    @property
    def stacking(self):
        """Managed windows from the lowest to the topmost."""
        return [Window(self._display, xid)
                for xid in self._root_list("_NET_CLIENT_LIST_STACKING")]

    def at(self, x, y):
        """The named or owned window that would get a click at that point, or None."""
        window, found = self._root, None
        while True:
            child = window.translate_coords(self._root, int(x), int(y)).child
            if not child:
                return found
            window = self._display.create_resource_object("window", child.id)
            candidate = Window(self._display, child.id)
            if candidate.wm_class or candidate.pid:
                found = candidate

    def _root_list(self, name):
        reply = self._root.get_full_property(self._display.get_atom(name), X.AnyPropertyType)
        return list(reply.value) if reply else []

    def _walk(self, window):
        try:
            children = window.query_tree().children
        except error.BadWindow:
            return
        for child in children:
            candidate = Window(self._display, child.id)
            try:
                if candidate.wm_class or candidate.pid or candidate.title:
                    yield child.id
            except error.BadWindow:
                continue
            yield from self._walk(child)

    @staticmethod
    def _matches(window, wanted):
        return all(value(getattr(window, name)) if callable(value)
                   else getattr(window, name) == value for name, value in wanted.items())
