#pragma once

#include <QObject>

/// Ends the event loop as soon as the program is asked to quit. Qt would close the windows one by
/// one first and stay if one of them refused, as they all do: closing a single window must not lose
/// what was drawn.
class QuitFilter : public QObject
{
    Q_OBJECT

public:
    /// Watches the application object, which must exist.
    QuitFilter();

    bool eventFilter(QObject *watched, QEvent *event) override;
};
