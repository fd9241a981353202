#pragma once

#include "platform/hotkeybackend.h"

#include <QList>

#include <map>

class GlobalHotKey;

/// Who wants which combination, and which of them is to be held at this moment. One registry lives
/// from the first hot key to the end of the QGuiApplication.
class HotKeyRegistry : public QObject
{
    Q_OBJECT

public:
    explicit HotKeyRegistry(std::unique_ptr<HotKeyBackend> backend);

    /// Made on first use; null once the application object is gone.
    static HotKeyRegistry *instance();
    /// The same without making one.
    static HotKeyRegistry *existing();

    /// @p owner must have no combination; it is observed and must be removed before it goes.
    void add(GlobalHotKey *owner, QKeyCombination wanted);
    void remove(GlobalHotKey *owner);
    [[nodiscard]] bool isRegistered(const GlobalHotKey *owner) const;

    /// Calls nest: the last resume() takes the combinations again.
    void suspend();
    void resume();

    /// Presses of combinations that are not held, in the program's own windows.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Binding {
        QList<GlobalHotKey *> owners;
        bool registered = false;
        bool held = false; ///< grabbed at this moment
    };
    using Bindings = std::map<int, Binding>; ///< by QKeyCombination::toCombined()

    void tryGrab(QKeyCombination keys, Binding &binding);
    void applyTo(QKeyCombination keys, Binding &binding);
    void applyToAll();
    void followLayout();
    void followFocus();
    void announce(const QList<GlobalHotKey *> &owners, bool registered);
    void activate(QKeyCombination keys);
    [[nodiscard]] bool shouldHold(QKeyCombination keys) const;
    [[nodiscard]] Bindings::const_iterator find(const GlobalHotKey *owner) const;

    std::unique_ptr<HotKeyBackend> m_backend;
    Bindings m_bindings;
    int m_suspensions = 0;
    bool m_editing = false;
};
