#include "platform/gpudevice.h"

bool gpuDeviceMayExist()
{
    return true;
}
