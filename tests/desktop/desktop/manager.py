"""Waits for the window manager, which looks at every press before its window gets it."""

from Xlib import X
from Xlib.protocol import event

from .waiting import wait_for

ANSWER = "_NET_FRAME_EXTENTS"


class WindowManagerQueue:
    """Tells when the window manager has handled all that happened so far.

    It holds the pointer while it looks at a press. What follows in the same instant, far quicker
    than any hand, the server then reports at the wrong place, or not at all."""

    def __init__(self, display):
        self._display = display
        self._root = display.screen().root
        self._asking = self._root.create_window(-9, -9, 1, 1, 0, 0, X.InputOnly, X.CopyFromParent)

    def drain(self):
        """Asks something harmless and waits for the answer; it comes after all that came before."""
        if not self._root.get_full_property(self._atom("_NET_SUPPORTING_WM_CHECK"),
                                            X.AnyPropertyType):
            return
        self._asking.delete_property(self._atom(ANSWER))
        question = event.ClientMessage(
            window=self._asking, client_type=self._atom("_NET_REQUEST_FRAME_EXTENTS"),
            data=(32, (0, 0, 0, 0, 0)))
        self._root.send_event(
            question, event_mask=X.SubstructureRedirectMask | X.SubstructureNotifyMask)
        wait_for(lambda: self._asking.get_full_property(self._atom(ANSWER), X.AnyPropertyType),
                 "the window manager to have seen the press", interval=0.001)

    def _atom(self, name):
        return self._display.get_atom(name)
