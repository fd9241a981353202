#include "platform/console.h"

#include <cstdio>
#include <windows.h>

void attachConsole()
{
    // What was redirected to a file or a pipe stays so.
    const bool redirected = GetStdHandle(STD_OUTPUT_HANDLE) != nullptr;
    if (!redirected && AttachConsole(ATTACH_PARENT_PROCESS)) {
        std::freopen("CONOUT$", "w", stdout);
        std::freopen("CONOUT$", "w", stderr);
    }
}
