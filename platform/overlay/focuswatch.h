#pragma once

#include <QtGlobal>

#include <memory>

class QWindow;

/// Notes which window of the desktop had the keyboard before a window of this program.
class FocusWatch
{
public:
    /// Null where the desktop does not tell which window is active. `window` must outlive it.
    static std::unique_ptr<FocusWatch> create(QWindow *window);
    virtual ~FocusWatch() = default;

    /// Gives the keyboard to the window that had it before.
    virtual void giveBack() const = 0;

protected:
    FocusWatch() = default;
    Q_DISABLE_COPY_MOVE(FocusWatch)
};
