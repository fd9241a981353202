#include "platform/overlay/overlaybackend.h"

std::unique_ptr<OverlayBackend> OverlayBackend::createNative(QWindow *)
{
    return nullptr;
}
