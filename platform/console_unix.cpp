#include "platform/console.h"

#include <QProcess>

#include <unistd.h>

void attachConsole()
{
}

void leaveConsole(QProcess &process)
{
    process.setChildProcessModifier([] { ::setsid(); });
}
