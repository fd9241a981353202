#pragma once

#include <QImage>
#include <QPointer>
#include <QQmlEngine>
#include <QQmlListProperty>
#include <QQuickItem>
#include <QRegion>
#include <QTimer>

/// Stands in for transparency on a desktop that cannot show a transparent window: as a frozen
/// picture of the screen, or by cutting the window to what it shows, so that the live desktop is
/// seen around it. Fills a full-screen window.
class ScreenGround : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    /// What the window is cut to: a painted item to the pixels that it shows, any other to the
    /// rectangles of its visible parts.
    Q_PROPERTY(QQmlListProperty<QQuickItem> outline READ outline CONSTANT FINAL)
    /// Whether this program's lasting windows belong into the picture. Its tips, flyouts and
    /// notices never do: they would seem to stay.
    Q_PROPERTY(bool showsOwnWindows MEMBER m_showsOwnWindows NOTIFY showsOwnWindowsChanged FINAL)

public:
    explicit ScreenGround(QQuickItem *parent = nullptr);
    ~ScreenGround() override;

    [[nodiscard]] QQmlListProperty<QQuickItem> outline() { return { this, &m_outline }; }

    /// Shows a picture of the screen. The windows that do not belong into it, with the item's own,
    /// vanish for the moment that the others need to repaint; then `frozen` is emitted. A picture
    /// that is shown already stays.
    Q_INVOKABLE void freeze();
    /// Drops the picture and leaves nothing of the window but the outline, also when it changes.
    Q_INVOKABLE void cut();
    /// The desktop shows transparent windows: neither is needed.
    Q_INVOKABLE void release();

signals:
    void showsOwnWindowsChanged();
    void frozen();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;

private:
    enum class State { Released, Freezing, Frozen, Cut };
    struct HiddenWindow {
        QPointer<QWindow> window;
        QRegion mask; ///< what it was cut to before
    };

    void leaveState();
    void takePicture();
    void setPicture(const QImage &picture);
    [[nodiscard]] bool mustHide(const QWindow *own) const;
    void showHiddenWindows();
    void followOutline();

    QList<QQuickItem *> m_outline;
    bool m_showsOwnWindows = false;
    State m_state = State::Released;
    QTimer m_repaintTimer; ///< runs while frozen windows have yet to repaint
    QList<HiddenWindow> m_hidden;
    QImage m_picture;
    bool m_pictureChanged = false;
};
