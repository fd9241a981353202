#pragma once

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

/// Finds the drawing of an icon.
class FluIconCatalogue : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// The picture of a FluentIcons::Type; empty for 0 and for numbers without a drawing.
    Q_INVOKABLE [[nodiscard]] QUrl url(int icon) const;
};
