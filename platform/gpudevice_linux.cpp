#include "platform/gpudevice.h"

#include <QDir>
#include <QFile>

bool gpuDeviceMayExist()
{
    // The kernel's own drivers; NVIDIA's; the one of a Linux that runs inside Windows.
    return !QDir(QStringLiteral("/dev/dri"))
                .isEmpty(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
        || QFile::exists(QStringLiteral("/dev/nvidiactl"))
        || QFile::exists(QStringLiteral("/dev/dxg"));
}
