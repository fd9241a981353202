#pragma once

#include <QCursor>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QUrl>

/// The pointer's look over an item: a picture of its own or one of the desktop's shapes.
///
/// The picture becomes a real cursor, moved by the display itself: it never lags behind the
/// pointer and costs no repaint of the scene.
class PointerCursor : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *target MEMBER m_target WRITE setTarget NOTIFY changed FINAL)
    /// Used while `picture` is empty.
    Q_PROPERTY(Qt::CursorShape shape MEMBER m_shape WRITE setShape NOTIFY changed FINAL)
    /// A picture among the program's resources ("qrc:..."); its "@2x" and "@3x" variants are used
    /// on screens with more pixels.
    Q_PROPERTY(QUrl picture MEMBER m_picture WRITE setPicture NOTIFY changed FINAL)
    /// Side of the picture in logical pixels.
    Q_PROPERTY(int size MEMBER m_size WRITE setSize NOTIFY changed FINAL)
    /// Where the picture's centre lies, seen from the pointer, in logical pixels.
    Q_PROPERTY(QPointF offset MEMBER m_offset WRITE setOffset NOTIFY changed FINAL)

public:
    using QObject::QObject;

    /// The picture in the file or resource `path` as a cursor for a screen with `ratio` pixels per
    /// logical one; `size` and `offset` are those of the properties. The cross without a picture.
    [[nodiscard]] static QCursor pictureCursor(
        const QString &path, int size, QPointF offset, qreal ratio);

    void setTarget(QQuickItem *target);
    void setShape(Qt::CursorShape shape) { set(m_shape, shape); }
    void setPicture(const QUrl &picture) { set(m_picture, picture); }
    void setSize(int size) { set(m_size, size); }
    void setOffset(const QPointF &offset) { set(m_offset, offset); }

signals:
    void changed();

private:
    template <typename T> void set(T &member, const T &value)
    {
        if (member == value)
            return;
        member = value;
        apply();
        emit changed();
    }
    void apply();

    QPointer<QQuickItem> m_target;
    Qt::CursorShape m_shape = Qt::ArrowCursor;
    QUrl m_picture;
    int m_size = 32;
    QPointF m_offset;
};
