#include "platform/overlay/focuswatch.h"

std::unique_ptr<FocusWatch> FocusWatch::create(QWindow *)
{
    return nullptr;
}
