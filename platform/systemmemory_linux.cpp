#include "platform/systemmemory.h"

#include <QFile>

namespace
{
/// The value of a line such as "MemTotal:       16284672 kB", in bytes.
std::optional<quint64> bytesOf(const QByteArray &line)
{
    const QList<QByteArray> words = line.simplified().split(' ');
    if (words.size() < 2) {
        return std::nullopt;
    }
    bool isNumber = false;
    const quint64 kibibytes = words.at(1).toULongLong(&isNumber);
    return isNumber ? std::optional(kibibytes * 1024) : std::nullopt;
}
} // namespace

std::optional<SystemMemory> SystemMemory::query()
{
    QFile figures(QStringLiteral("/proc/meminfo"));
    if (!figures.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    std::optional<quint64> total;
    std::optional<quint64> available;
    // The kernel's files report no size, so the text is read whole instead of until atEnd().
    for (const QByteArray &line : figures.readAll().split('\n')) {
        if (line.startsWith("MemTotal:")) {
            total = bytesOf(line);
        } else if (line.startsWith("MemAvailable:")) {
            available = bytesOf(line);
        }
    }
    if (!total || !available) {
        return std::nullopt;
    }
    return SystemMemory{ *total, *available };
}
