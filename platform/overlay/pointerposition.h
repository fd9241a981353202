#pragma once

#include <QCursor>
#include <QObject>
#include <QQmlEngine>

/// Where the pointer is on the desktop, in logical pixels. What moves along with the pointer needs
/// this one: positions within a window lag behind when the window itself is moved.
class PointerPosition : public QObject
{
    Q_OBJECT
    QML_ELEMENT

public:
    using QObject::QObject;

    Q_INVOKABLE static QPoint now() { return QCursor::pos(); }
};
