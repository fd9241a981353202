#include "platform/systemmemory.h"

#include <qt_windows.h>

std::optional<SystemMemory> SystemMemory::query()
{
    MEMORYSTATUSEX status{};
    status.dwLength = sizeof(status);
    static_assert(sizeof(MEMORYSTATUSEX) == 64);
    if (!GlobalMemoryStatusEx(&status)) {
        return std::nullopt;
    }
    return SystemMemory{ status.ullTotalPhys, status.ullAvailPhys };
}
