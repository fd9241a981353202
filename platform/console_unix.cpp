#include "platform/console.h"

void attachConsole()
{
}
