#pragma once

#include "app/rendering.h"

/// Finds out, before the interface exists, whether OpenGL is accelerated. Asking needs an
/// application object, which stays for the rest of the process beside the main one; `argc` must do
/// so as well.
[[nodiscard]] Rendering probeRendering(int &argc, char **argv);
