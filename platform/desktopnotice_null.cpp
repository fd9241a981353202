#include "platform/desktopnotice.h"

void showDesktopNotice(const QString & /*title*/, const QString & /*text*/)
{
}
