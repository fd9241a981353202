#include "platform/display.h"

#include <QFileInfo>

#include <array>
#include <windows.h>

namespace
{

/// The name of the file that a process runs; empty where the system does not tell.
QString programOf(HANDLE process)
{
    std::array<wchar_t, 32768> path{};
    auto size = static_cast<DWORD>(path.size());
    return process && QueryFullProcessImageNameW(process, 0, path.data(), &size)
        ? QFileInfo(QString::fromWCharArray(path.data(), static_cast<qsizetype>(size))).fileName()
        : QString();
}

bool runsThisProgram(ULONG process)
{
    const HANDLE handle = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process);
    const QString program = programOf(handle);
    if (handle) {
        CloseHandle(handle);
    }
    return program.compare(programOf(GetCurrentProcess()), Qt::CaseInsensitive) == 0;
}

} // namespace

QString ownDisplay(const QStringList & /*arguments*/)
{
    DWORD session = 0;
    return ProcessIdToSessionId(GetCurrentProcessId(), &session) ? QString::number(session)
                                                                 : QString();
}

std::optional<QString> displayOfServer(qintptr socket)
{
    const auto pipe = reinterpret_cast<HANDLE>(socket);
    ULONG process = 0;
    ULONG session = 0;
    if (!GetNamedPipeServerProcessId(pipe, &process) || !runsThisProgram(process)
        || !GetNamedPipeServerSessionId(pipe, &session)) {
        return std::nullopt;
    }
    return QString::number(session);
}
