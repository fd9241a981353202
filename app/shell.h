#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// What the interface asks about the program around it.
class Shell : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// The version that people know, of the program and of its packages.
    Q_PROPERTY(QString version READ version CONSTANT FINAL)

public:
    using QObject::QObject;

    [[nodiscard]] static QString version();

    /// Whether a hidden palette can be brought back with the notification area, now.
    Q_INVOKABLE static bool hasTray();
};
