#include "settings/systeminfo.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStringList>
#include <QSysInfo>

namespace
{

QStringList screenLines()
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    QStringList lines{ QStringLiteral("屏幕数量: %1").arg(screens.size()) };
    int number = 0;
    for (const QScreen *screen : screens) {
        const QSize size = screen->geometry().size();
        lines << QStringLiteral("屏幕 %1: %2x%3, %4 DPI")
                     .arg(++number)
                     .arg(size.width())
                     .arg(size.height())
                     .arg(screen->physicalDotsPerInch(), 0, 'f', 1);
    }
    return lines;
}

QString memoryLine(const QString &format, quint64 bytes)
{
    const quint64 mebibytes = bytes >> 20;
    return format.arg(mebibytes).arg(static_cast<double>(mebibytes) / 1024.0, 0, 'f', 2);
}

} // namespace

QString systemDescription()
{
    QStringList lines{
        QStringLiteral("操作系统: %1 %2")
            .arg(QSysInfo::prettyProductName(), QSysInfo::productVersion()),
        QStringLiteral("内核类型: %1").arg(QSysInfo::kernelType()),
        QStringLiteral("内核版本: %1").arg(QSysInfo::kernelVersion()),
        QStringLiteral("CPU架构: %1").arg(QSysInfo::currentCpuArchitecture()),
        QStringLiteral("主机名: %1").arg(QSysInfo::machineHostName()),
    };
    lines << screenLines();
    if (const std::optional<SystemMemory> memory = SystemMemory::query()) {
        lines << memoryDescription(*memory);
    }
    return lines.join(QLatin1Char('|'));
}

QStringList memoryDescription(const SystemMemory &memory)
{
    return {
        memoryLine(QStringLiteral("总内存: %1 MB (%2 GB)"), memory.totalBytes),
        memoryLine(QStringLiteral("可用内存: %1 MB (%2 GB)"), memory.availableBytes),
    };
}
