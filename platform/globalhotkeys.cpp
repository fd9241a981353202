#include "platform/globalhotkeys.h"

#include "platform/hotkeyregistry.h"

GlobalHotKey::GlobalHotKey(QObject *parent) : QObject(parent)
{
}

GlobalHotKey::~GlobalHotKey()
{
    unbind();
}

bool GlobalHotKey::bind(QKeyCombination keys)
{
    unbind();
    HotKeyRegistry *registry = HotKeyRegistry::instance();
    if (registry)
        registry->add(this, keys);
    return isRegistered();
}

void GlobalHotKey::unbind()
{
    if (HotKeyRegistry *registry = HotKeyRegistry::existing())
        registry->remove(this);
}

bool GlobalHotKey::isRegistered() const
{
    const HotKeyRegistry *registry = HotKeyRegistry::existing();
    return registry && registry->isRegistered(this);
}

GlobalHotKeySuspension::GlobalHotKeySuspension()
{
    if (HotKeyRegistry *registry = HotKeyRegistry::instance())
        registry->suspend();
}

GlobalHotKeySuspension::~GlobalHotKeySuspension()
{
    if (HotKeyRegistry *registry = HotKeyRegistry::existing())
        registry->resume();
}
