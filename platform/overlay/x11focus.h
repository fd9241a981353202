#pragma once

#include "platform/overlay/x11connection.h"

/// Remembers which window of another program had the keyboard last and hands it back.
class X11Focus
{
public:
    explicit X11Focus(X11Connection x11);

    /// To be told of every change of a property on the root window.
    void noteRootProperty(xcb_atom_t property);
    /// Makes `window` the active one, as a direct wish of the user: window managers do not hold it
    /// back as stolen focus.
    void activate(xcb_window_t window) const;
    /// Activates the window that was active before this program's own, or the topmost one that can
    /// be; with none the keyboard goes to no window in particular.
    void giveBack() const;
    /// Whether the window manager may give the keyboard to `window` at all.
    void setAccepted(xcb_window_t window, bool accepted) const;

private:
    void noteActiveWindow();
    [[nodiscard]] bool canTakeFocus(xcb_window_t window) const;

    X11Connection m_x11;
    struct {
        xcb_atom_t activeWindow, stacking, windowType, typeDesktop, typeDock, state, hidden;
        xcb_atom_t currentDesktop, windowDesktop;
    } m_atoms;
    xcb_window_t m_lastForeign = XCB_WINDOW_NONE;
};
