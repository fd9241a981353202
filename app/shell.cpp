#include "app/shell.h"

#include <QSystemTrayIcon>

QString Shell::version()
{
    return QStringLiteral(DRAVELIN_VERSION);
}

bool Shell::hasTray()
{
    return QSystemTrayIcon::isSystemTrayAvailable();
}
