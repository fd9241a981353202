#pragma once

#include <QRect>

#include <memory>

class QWindow;

/// What the drawing overlay asks of the desktop and Qt does not offer. One object per overlay.
/// The base class is the backend of a desktop that needs none of it: Qt's own means are enough.
class OverlayBackend
{
public:
    virtual ~OverlayBackend() = default;
    Q_DISABLE_COPY_MOVE(OverlayBackend)

    /// The backend for the windowing system that the program runs on. `window` must outlive it.
    static std::unique_ptr<OverlayBackend> create(QWindow *window);

    /// Tells the desktop what kind of window this is. The native window must exist; best called
    /// before it is first shown.
    virtual void prepareWindow() { }
    /// Lets every click, wheel step and touch through to what lies beneath, or takes them back,
    /// without unmapping the window. Takes effect at once.
    virtual void setInputTransparent(bool transparent);
    /// While the overlay takes clicks, those within this rectangle go to what lies beneath all the
    /// same. In the window's logical pixels; an empty rectangle takes it back.
    virtual void leaveOpen(const QRect &area) { Q_UNUSED(area) }
    /// Gives the keyboard to the overlay.
    virtual void takeFocus();
    /// Gives the keyboard back to the window that had it before, or to the topmost one beneath, and
    /// keeps the desktop from handing it to the overlay.
    virtual void returnFocus() { }
    /// Keeps another window of this program above the overlay, whichever of them is raised.
    virtual void keepAbove(QWindow *other) { Q_UNUSED(other) }

protected:
    explicit OverlayBackend(QWindow *window) : m_window(window) { }
    [[nodiscard]] QWindow *window() const { return m_window; }

private:
    /// The platform's own backend, or null when it has none for what the program runs on.
    static std::unique_ptr<OverlayBackend> createNative(QWindow *window);

    QWindow *m_window;
};
