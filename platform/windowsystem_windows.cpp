#include "platform/windowsystem.h"

void chooseWindowSystem()
{
}
