#include "platform/hotkeybackend.h"

#include "platform/windowsvirtualkeys.h"

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>

#include <algorithm>
#include <map>

#include <windows.h>

namespace
{

UINT modifierFlags(Qt::KeyboardModifiers modifiers)
{
    return MOD_NOREPEAT | (modifiers & Qt::ShiftModifier ? MOD_SHIFT : 0U)
        | (modifiers & Qt::ControlModifier ? MOD_CONTROL : 0U)
        | (modifiers & Qt::AltModifier ? MOD_ALT : 0U)
        | (modifiers & Qt::MetaModifier ? MOD_WIN : 0U);
}

/// Hot keys of the GUI thread: the system posts their presses to its message queue.
class WindowsHotKeyBackend : public HotKeyBackend, public QAbstractNativeEventFilter
{
public:
    WindowsHotKeyBackend() { qGuiApp->installNativeEventFilter(this); }

    ~WindowsHotKeyBackend() override
    {
        for (const auto &[id, held] : m_held)
            UnregisterHotKey(nullptr, id);
    }

    GrabResult grab(QKeyCombination keys) override
    {
        const WindowsKey wanted = windowsKey(keys);
        const auto held = findHeld(keys);
        if (held != m_held.end() && held->second.key == wanted)
            return GrabResult::Grabbed;
        release(keys);
        if (wanted.virtualKey == 0)
            return GrabResult::UnknownKey;
        const int id = freeId();
        if (!RegisterHotKey(nullptr, id, modifierFlags(wanted.modifiers), wanted.virtualKey))
            return GrabResult::Taken;
        m_held.emplace(id, Held{ keys, wanted });
        return GrabResult::Grabbed;
    }

    void release(QKeyCombination keys) override
    {
        const auto held = findHeld(keys);
        if (held == m_held.end())
            return;
        UnregisterHotKey(nullptr, held->first);
        m_held.erase(held);
    }

    bool nativeEventFilter(const QByteArray &, void *message, qintptr *) override
    {
        const auto *native = static_cast<const MSG *>(message);
        if (native->message == WM_HOTKEY) {
            const auto held = m_held.find(int(native->wParam));
            if (held != m_held.end())
                Q_EMIT pressed(held->second.keys);
        } else if (native->message == WM_INPUTLANGCHANGE) {
            Q_EMIT layoutChanged();
        }
        return false;
    }

private:
    struct Held {
        QKeyCombination keys;
        WindowsKey key;
    };

    std::map<int, Held>::iterator findHeld(QKeyCombination keys)
    {
        return std::find_if(m_held.begin(), m_held.end(),
            [keys](const auto &entry) { return entry.second.keys == keys; });
    }

    [[nodiscard]] int freeId() const { return m_held.empty() ? 1 : m_held.rbegin()->first + 1; }

    std::map<int, Held> m_held;
};

} // namespace

std::unique_ptr<HotKeyBackend> createHotKeyBackend()
{
    return std::make_unique<WindowsHotKeyBackend>();
}
