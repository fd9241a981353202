#include "platform/systemmemory.h"

std::optional<SystemMemory> SystemMemory::query()
{
    return std::nullopt;
}
