#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QWindow>

#include <memory>

class FocusWatch;

/// Hands the keyboard back to the window that had it before `window`, be it this program's or
/// another's: for a window that people click while they type elsewhere. Does nothing where the
/// desktop does not tell which window is active.
class FocusReturn : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QWindow *window READ window WRITE setWindow NOTIFY windowChanged FINAL)

public:
    explicit FocusReturn(QObject *parent = nullptr);
    ~FocusReturn() override;

    [[nodiscard]] QWindow *window() const { return m_window; }
    /// `window` must outlive this object.
    void setWindow(QWindow *window);

    /// Hands the keyboard back at the end of the click that brought it, whether that click is still
    /// to come, under way or over: losing the keyboard earlier would end the gesture. Void when the
    /// window loses it before that.
    Q_INVOKABLE void giveBackAfterClick();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void windowChanged();

private:
    QWindow *m_window = nullptr;
    void giveBack();

    bool m_pending = false; ///< to be given back when the click ends
    bool m_buttonDown = false;
    bool m_clicked = false; ///< clicked since the pointer came, without the keyboard so far
    std::unique_ptr<FocusWatch> m_watch; ///< none where the desktop does not tell
};
