#include "platform/console.h"

#include <QProcess>

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

void leaveConsole(QProcess &process)
{
    process.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments *arguments) {
        arguments->flags |= DETACHED_PROCESS | CREATE_NEW_PROCESS_GROUP;
        arguments->flags &= ~static_cast<unsigned long>(CREATE_NO_WINDOW);
    });
}
