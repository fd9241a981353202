#pragma once

#include <QImage>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickPaintedItem>
#include <QTimer>

/// Stands in for transparency on a desktop that cannot show a transparent window: as a frozen
/// picture of the screen to draw on, or by cutting the window to the marks, so that the live
/// desktop is seen between them. Fills the overlay's window.
class ScreenGround : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    /// What the window is cut to; must fill the window.
    Q_PROPERTY(QQuickPaintedItem *marks MEMBER m_marks NOTIFY marksChanged FINAL)

public:
    explicit ScreenGround(QQuickItem *parent = nullptr);

    /// Shows a picture of the screen without this program's own windows. They vanish for the moment
    /// that the others need to repaint; then `frozen` is emitted. A picture that is shown already
    /// stays.
    Q_INVOKABLE void freeze();
    /// Drops the picture and leaves nothing of the window but the marks, also when they change.
    Q_INVOKABLE void cutToMarks();
    /// The desktop shows transparent windows: neither is needed.
    Q_INVOKABLE void release();

signals:
    void marksChanged();
    void frozen();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;

private:
    enum class State { Released, Freezing, Frozen, Cut };

    void leaveState();
    void takePicture();
    void setPicture(const QImage &picture);
    void showHiddenWindows();
    void followMarks();

    QPointer<QQuickPaintedItem> m_marks;
    State m_state = State::Released;
    QTimer m_repaintTimer; ///< runs while frozen windows have yet to repaint
    QList<QPointer<QWindow>> m_hidden;
    QImage m_picture;
    bool m_pictureChanged = false;
};
