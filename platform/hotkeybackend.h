#pragma once

#include <QKeyCombination>
#include <QObject>

#include <memory>

/// Takes key combinations from the whole desktop, one implementation for each window system.
/// It knows nothing of who wants a combination or why: HotKeyRegistry decides that.
class HotKeyBackend : public QObject
{
    Q_OBJECT

public:
    enum class GrabResult {
        Grabbed,
        Taken, ///< another program holds the combination
        UnknownKey, ///< the keyboard has no such key
        Unsupported, ///< this window system gives no keys to programs in the background
    };

    using QObject::QObject;

    /// Takes the combination from all programs. Calling it again for a held combination follows
    /// a changed keyboard layout; it costs nothing when the keys are still the same.
    virtual GrabResult grab(QKeyCombination keys) = 0;
    /// Gives the combination back; does nothing when it is not held.
    virtual void release(QKeyCombination keys) = 0;

Q_SIGNALS:
    /// A held combination was pressed; once for each physical press.
    void pressed(QKeyCombination keys);
    /// Keys may sit elsewhere now: every combination should be grabbed again.
    void layoutChanged();
};

/// The back end of the window system that the program runs on; never null.
std::unique_ptr<HotKeyBackend> createHotKeyBackend();

/// A back end for systems without global keys: every grab is Unsupported.
std::unique_ptr<HotKeyBackend> createNullHotKeyBackend();
