#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Opens the pages that come with the program in the system's browser. They are written afresh
/// each time, into a folder of the user that nobody else can read.
class HelpDesk : public QObject
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit HelpDesk(QObject *parent = nullptr);

    /// The sheet of tools and keys. Empty, or what went wrong and what to do.
    [[nodiscard]] Q_INVOKABLE QString openSheet() const;

    /// The full text of a licence, such as "LGPL-3.0". Empty, or what went wrong and what to do.
    [[nodiscard]] Q_INVOKABLE QString openLicence(const QString &name) const;
};
