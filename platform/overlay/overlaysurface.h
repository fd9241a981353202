#pragma once

#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QWindow>

#include <functional>
#include <memory>

class OverlayBackend;
class QScreen;

/// The drawing overlay as a window of the desktop: which monitor it covers, whether the pointer
/// goes through it, who has the keyboard, and what stays above it. Everything is in place without
/// unmapping the window, so nothing flickers.
class OverlaySurface : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The overlay's own window; set once.
    Q_PROPERTY(QWindow *window READ window WRITE setWindow NOTIFY windowChanged FINAL)
    /// The window whose monitor is covered; without one it is the monitor under the pointer.
    Q_PROPERTY(QWindow *anchor READ anchor WRITE setAnchor NOTIFY anchorChanged FINAL)
    /// Whether clicks and keys go to what lies beneath. While a button is held down on the overlay
    /// the gesture is finished first: the desktop would see its release without the press.
    Q_PROPERTY(
        bool passThrough READ passThrough WRITE setPassThrough NOTIFY passThroughChanged FINAL)

    /// Whether the desktop is seen through the window.
    Q_PROPERTY(bool seeThrough READ seeThrough WRITE setSeeThrough NOTIFY seeThroughChanged FINAL)

    /// Whether the gesture under way, or the last one, is made with the eraser end of a tablet pen.
    Q_PROPERTY(bool eraserTip READ eraserTip NOTIFY eraserTipChanged FINAL)

public:
    explicit OverlaySurface(QObject *parent = nullptr);
    ~OverlaySurface() override;

    [[nodiscard]] QWindow *window() const { return m_window; }
    void setWindow(QWindow *window);
    [[nodiscard]] QWindow *anchor() const { return m_anchor; }
    void setAnchor(QWindow *anchor);
    [[nodiscard]] bool passThrough() const { return m_passThrough; }
    void setPassThrough(bool passThrough);
    [[nodiscard]] bool seeThrough() const { return m_seeThrough; }
    void setSeeThrough(bool seeThrough);
    [[nodiscard]] bool eraserTip() const { return m_eraserTip; }

    /// `area` tells where on the desktop something of this program is to be reached through every
    /// overlay that shows the desktop, though it lies beneath: its icon in a panel.
    static void setReachable(std::function<QRect()> area);

    /// Shows the window over the whole monitor of the anchor, panels included.
    Q_INVOKABLE void cover();
    /// The two halves of `cover`, for a document that shows the window in its own way: before
    /// showing it, brings it to the monitor of the anchor, ...
    Q_INVOKABLE void moveToAnchor();
    /// ... and afterwards keeps this program's other windows above it and takes the keyboard.
    Q_INVOKABLE void takeOver();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void windowChanged();
    void anchorChanged();
    void passThroughChanged();
    void seeThroughChanged();
    void eraserTipChanged();

private:
    void watchScreens();
    void coverAgain();
    [[nodiscard]] QScreen *screenToCover() const;
    void followPointer(const QEvent *event);
    void inheritFocus();
    [[nodiscard]] bool hadFocusUntilNow(const QObject *hidden) const;
    void loseKeyboard();
    void setEraserTip(bool eraserTip);
    void stackOther(QWindow *other);
    void applyPassThrough();
    [[nodiscard]] QRect reachableArea() const;
    /// Tells the backend when the area has changed.
    void leaveReachableOpen();

    QPointer<QWindow> m_window;
    QPointer<QWindow> m_anchor;
    QPointer<QWindow> m_lastFocused; ///< this program's window that had the keyboard last
    std::unique_ptr<OverlayBackend> m_backend;
    QList<QPointer<const QObject>> m_stackedAbove; ///< a later window may get an old address
    bool m_passThrough = false;
    bool m_applied = false; ///< what the window's input shape is now
    bool m_seeThrough = true;
    QRect m_open; ///< where clicks go to what lies beneath, in the window's logical pixels
    bool m_covering = false;
    bool m_buttonDown = false; ///< on the overlay's window
    bool m_lostKeyboard = false; ///< amid a gesture, which goes on
    bool m_eraserTip = false;
    bool m_penErases = false; ///< a tablet pen is down with its eraser end
};
