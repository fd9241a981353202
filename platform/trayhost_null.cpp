#include "platform/trayhost.h"

bool trayHostIsPresent()
{
    return true;
}
