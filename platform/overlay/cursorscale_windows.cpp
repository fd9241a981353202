#include "platform/overlay/cursorscale.h"

qreal cursorHotSpotScale(qreal)
{
    return 1.0;
}
