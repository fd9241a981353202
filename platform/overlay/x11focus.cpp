#include "platform/overlay/x11focus.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>

namespace
{
constexpr quint32 kFromPager = 2; // _NET_ACTIVE_WINDOW's source indication for the user's own wish
constexpr quint32 kAllDesktops = 0xffffffff;
constexpr quint32 kInputHint = 1; // first bit of the flags of WM_HINTS; the field follows them
constexpr qsizetype kHintsLength = 9;

bool isOwnWindow(xcb_window_t window)
{
    const auto windows = QGuiApplication::topLevelWindows();
    return std::any_of(windows.begin(), windows.end(),
        [window](const QWindow *own) { return own->handle() && own->winId() == window; });
}
} // namespace

X11Focus::X11Focus(X11Connection x11)
    : m_x11(x11), m_atoms{ x11.atom("_NET_ACTIVE_WINDOW"), x11.atom("_NET_CLIENT_LIST_STACKING"),
          x11.atom("_NET_WM_WINDOW_TYPE"), x11.atom("_NET_WM_WINDOW_TYPE_DESKTOP"),
          x11.atom("_NET_WM_WINDOW_TYPE_DOCK"), x11.atom("_NET_WM_STATE"),
          x11.atom("_NET_WM_STATE_HIDDEN"), x11.atom("_NET_CURRENT_DESKTOP"),
          x11.atom("_NET_WM_DESKTOP") }
{
    noteActiveWindow();
}

void X11Focus::noteRootProperty(xcb_atom_t property)
{
    if (property == m_atoms.activeWindow)
        noteActiveWindow();
}

void X11Focus::noteActiveWindow()
{
    const auto active = m_x11.property(m_x11.root(), m_atoms.activeWindow);
    if (!active.isEmpty() && active.first() != XCB_WINDOW_NONE && !isOwnWindow(active.first()))
        m_lastForeign = active.first();
}

bool X11Focus::canTakeFocus(xcb_window_t window) const
{
    const auto type = m_x11.property(window, m_atoms.windowType);
    if (isOwnWindow(window) || type.contains(m_atoms.typeDesktop) || type.contains(m_atoms.typeDock)
        || m_x11.property(window, m_atoms.state).contains(m_atoms.hidden))
        return false;
    const auto current = m_x11.property(m_x11.root(), m_atoms.currentDesktop);
    const auto desktop = m_x11.property(window, m_atoms.windowDesktop);
    return current.isEmpty() || desktop.isEmpty() || desktop.first() == kAllDesktops
        || desktop.first() == current.first();
}

void X11Focus::activate(xcb_window_t window) const
{
    m_x11.askWindowManager(
        window, m_atoms.activeWindow, { kFromPager, XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0 });
    m_x11.flush();
}

void X11Focus::giveBack() const
{
    const auto windows = m_x11.property(m_x11.root(), m_atoms.stacking);
    if (windows.contains(m_lastForeign) && canTakeFocus(m_lastForeign))
        return activate(m_lastForeign);
    const auto topmost = std::find_if(
        windows.rbegin(), windows.rend(), [this](quint32 window) { return canTakeFocus(window); });
    if (topmost != windows.rend())
        return activate(*topmost);
    xcb_set_input_focus(
        m_x11.get(), XCB_INPUT_FOCUS_POINTER_ROOT, XCB_INPUT_FOCUS_POINTER_ROOT, XCB_CURRENT_TIME);
    m_x11.flush();
}

void X11Focus::setAccepted(xcb_window_t window, bool accepted) const
{
    auto hints = m_x11.property(window, XCB_ATOM_WM_HINTS);
    hints.resize(kHintsLength);
    hints[0] |= kInputHint;
    hints[1] = accepted ? 1 : 0;
    m_x11.setProperty(window, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, hints);
}
