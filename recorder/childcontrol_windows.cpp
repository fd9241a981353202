#include "recorder/childcontrol.h"

#include <QProcess>

#include <qt_windows.h>

void ChildControl::prepare(QProcess *)
{
}

void ChildControl::adopt(QProcess *child)
{
    // The handle stays open until this process ends; with it ends the job, and with that the child.
    static const HANDLE job = CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof(limits));
    const HANDLE process = OpenProcess(
        PROCESS_SET_QUOTA | PROCESS_TERMINATE, FALSE, static_cast<DWORD>(child->processId()));
    if (process) {
        AssignProcessToJobObject(job, process);
        CloseHandle(process);
    }
}

void ChildControl::requestEnd(QProcess *child)
{
    // A console program without a window gets no close message; it listens to its keyboard.
    child->write("q");
}
