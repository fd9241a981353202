#include "platform/overlay/cursorscale.h"

qreal cursorHotSpotScale(qreal devicePixelRatio)
{
    return devicePixelRatio;
}
