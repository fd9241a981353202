#include "platform/display.h"

QString ownDisplay(const QStringList & /*arguments*/)
{
    return QStringLiteral("desktop");
}

std::optional<QString> displayOfServer(qintptr /*socket*/)
{
    return std::nullopt;
}
