#include "platform/hotkeyregistry.h"

#include "platform/globalhotkeys.h"
#include "platform/typingkeys.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPointer>

namespace
{

HotKeyRegistry *s_registry = nullptr;

void destroyRegistry()
{
    delete std::exchange(s_registry, nullptr);
}

void warnOfRefusal(QKeyCombination keys, HotKeyBackend::GrabResult result)
{
    const QString text = QKeySequence(keys).toString(QKeySequence::PortableText);
    if (result == HotKeyBackend::GrabResult::Taken)
        qWarning().noquote() << "Hot key" << text << "is held by another program";
    else if (result == HotKeyBackend::GrabResult::UnknownKey)
        qWarning().noquote() << "Hot key" << text << "has no key on this keyboard";
}

/// The combination as hot keys are compared: the part of the keyboard does not matter.
QKeyCombination normalized(Qt::KeyboardModifiers modifiers, Qt::Key key)
{
    constexpr auto kMeant =
        Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return QKeyCombination(modifiers & kMeant, key);
}

} // namespace

HotKeyRegistry::HotKeyRegistry(std::unique_ptr<HotKeyBackend> backend)
    : m_backend(std::move(backend)), m_editing(isTextEditorFocused())
{
    connect(m_backend.get(), &HotKeyBackend::pressed, this, &HotKeyRegistry::activate);
    connect(m_backend.get(), &HotKeyBackend::layoutChanged, this, &HotKeyRegistry::followLayout);
    connect(qGuiApp, &QGuiApplication::focusObjectChanged, this, &HotKeyRegistry::followFocus);
    qGuiApp->installEventFilter(this);
}

HotKeyRegistry *HotKeyRegistry::instance()
{
    if (!s_registry && qGuiApp) {
        s_registry = new HotKeyRegistry(createHotKeyBackend());
        qAddPostRoutine(destroyRegistry);
    }
    return s_registry;
}

HotKeyRegistry *HotKeyRegistry::existing()
{
    return s_registry;
}

void HotKeyRegistry::add(GlobalHotKey *owner, QKeyCombination wanted)
{
    const QKeyCombination keys = normalized(wanted.keyboardModifiers(), wanted.key());
    const auto [it, isNew] = m_bindings.try_emplace(keys.toCombined());
    Binding &binding = it->second;
    if (isNew || !binding.registered)
        tryGrab(keys, binding);
    binding.owners.append(owner);
}

void HotKeyRegistry::remove(GlobalHotKey *owner)
{
    const auto found = find(owner);
    if (found == m_bindings.cend())
        return;
    Binding &binding = m_bindings[found->first];
    binding.owners.removeAll(owner);
    if (!binding.owners.isEmpty())
        return;
    if (binding.held)
        m_backend->release(QKeyCombination::fromCombined(found->first));
    m_bindings.erase(found);
}

bool HotKeyRegistry::isRegistered(const GlobalHotKey *owner) const
{
    const auto found = find(owner);
    return found != m_bindings.cend() && found->second.registered;
}

void HotKeyRegistry::suspend()
{
    if (++m_suspensions == 1)
        applyToAll();
}

void HotKeyRegistry::resume()
{
    if (--m_suspensions == 0)
        applyToAll();
}

/// Finds out whether the combination is to be had, even if it is not to be held just now.
void HotKeyRegistry::tryGrab(QKeyCombination keys, Binding &binding)
{
    const bool before = binding.registered;
    if (isTypingKey(keys)) {
        binding.registered = true;
    } else {
        const HotKeyBackend::GrabResult result = m_backend->grab(keys);
        binding.held = result == HotKeyBackend::GrabResult::Grabbed;
        binding.registered = binding.held;
        if (!binding.held)
            warnOfRefusal(keys, result);
    }
    if (binding.held && !shouldHold(keys)) {
        m_backend->release(keys);
        binding.held = false;
    }
    if (binding.registered != before)
        announce(binding.owners, binding.registered);
}

void HotKeyRegistry::applyTo(QKeyCombination keys, Binding &binding)
{
    if (!binding.registered || binding.held == shouldHold(keys))
        return;
    if (binding.held) {
        m_backend->release(keys);
        binding.held = false;
    } else {
        tryGrab(keys, binding);
    }
}

void HotKeyRegistry::applyToAll()
{
    for (auto &[combined, binding] : m_bindings)
        applyTo(QKeyCombination::fromCombined(combined), binding);
}

void HotKeyRegistry::followLayout()
{
    for (auto &[combined, binding] : m_bindings)
        tryGrab(QKeyCombination::fromCombined(combined), binding);
}

void HotKeyRegistry::followFocus()
{
    const bool editing = isTextEditorFocused();
    if (editing == m_editing)
        return;
    m_editing = editing;
    applyToAll();
}

/// Queued, since a receiver may bind or unbind while the bindings are being walked over.
void HotKeyRegistry::announce(const QList<GlobalHotKey *> &owners, bool registered)
{
    for (GlobalHotKey *owner : owners) {
        const auto tell = [this, owner, registered] {
            if (isRegistered(owner) == registered)
                Q_EMIT owner->registeredChanged(registered);
        };
        QMetaObject::invokeMethod(owner, tell, Qt::QueuedConnection);
    }
}

void HotKeyRegistry::activate(QKeyCombination keys)
{
    const auto binding = m_bindings.find(keys.toCombined());
    if (binding == m_bindings.end())
        return;
    for (GlobalHotKey *owner : std::as_const(binding->second.owners)) {
        const auto fire = [this, owner, keys] {
            const auto now = m_bindings.find(keys.toCombined());
            if (now != m_bindings.end() && now->second.owners.contains(owner))
                Q_EMIT owner->activated();
        };
        QMetaObject::invokeMethod(owner, fire, Qt::QueuedConnection);
    }
}

bool HotKeyRegistry::eventFilter(QObject *watched, QEvent *event)
{
    const bool override = event->type() == QEvent::ShortcutOverride;
    if ((!override && event->type() != QEvent::KeyPress) || !watched->isWindowType())
        return false;
    const auto *press = static_cast<QKeyEvent *>(event);
    const QKeyCombination keys = normalized(press->modifiers(), Qt::Key(press->key()));
    const auto binding = m_bindings.find(keys.toCombined());
    if (binding == m_bindings.end() || binding->second.held || m_suspensions > 0)
        return false;
    if (isEditingKey(keys) && isTextEditorFocused())
        return false;
    if (isTypingKey(keys)) {
        if (!override && !press->isAutoRepeat())
            activate(keys);
        return false;
    }
    // Like a combination held on the desktop, this one reaches neither shortcuts nor items.
    if (!override && !press->isAutoRepeat())
        activate(keys);
    event->accept();
    return true;
}

bool HotKeyRegistry::shouldHold(QKeyCombination keys) const
{
    return m_suspensions == 0 && !isTypingKey(keys) && !(m_editing && isEditingKey(keys));
}

HotKeyRegistry::Bindings::const_iterator HotKeyRegistry::find(const GlobalHotKey *owner) const
{
    return std::find_if(m_bindings.cbegin(), m_bindings.cend(), [owner](const auto &entry) {
        return entry.second.owners.contains(const_cast<GlobalHotKey *>(owner));
    });
}
