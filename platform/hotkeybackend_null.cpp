#include "platform/hotkeybackend.h"

std::unique_ptr<HotKeyBackend> createHotKeyBackend()
{
    return createNullHotKeyBackend();
}
