#include "recorder/dshowdevices.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace
{

bool playsBackTheSystem(const QString &name)
{
    static const std::array kNames{
        QStringLiteral("stereo mix"),
        QStringLiteral("立体声混音"),
        QStringLiteral("what u hear"),
        QStringLiteral("wave out mix"),
        QStringLiteral("virtual-audio-capturer"),
    };
    return std::any_of(kNames.begin(), kNames.end(),
        [&](const QString &known) { return name.contains(known, Qt::CaseInsensitive); });
}

} // namespace

DshowDevices DshowDevices::fromListing(const QByteArray &listing)
{
    static const QRegularExpression kDevice(QStringLiteral("\"([^\"]+)\" \\(audio\\)"));
    DshowDevices devices;
    auto match = kDevice.globalMatch(QString::fromUtf8(listing));
    while (match.hasNext()) {
        const QString name = match.next().captured(1);
        QString &role = playsBackTheSystem(name) ? devices.systemSound : devices.microphone;
        if (role.isEmpty())
            role = name;
    }
    return devices;
}
