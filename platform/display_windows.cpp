#include "platform/display.h"

#include <windows.h>

QString ownDisplay(const QStringList & /*arguments*/)
{
    DWORD session = 0;
    return ProcessIdToSessionId(GetCurrentProcessId(), &session) ? QString::number(session)
                                                                 : QString();
}

std::optional<QString> displayOfServer(qintptr socket)
{
    ULONG session = 0;
    if (!GetNamedPipeServerSessionId(reinterpret_cast<HANDLE>(socket), &session)) {
        return std::nullopt;
    }
    return QString::number(session);
}
