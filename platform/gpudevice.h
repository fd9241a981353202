#pragma once

/// False when the system offers no graphics processor to programs, so that OpenGL can only be a
/// software implementation. True also where that cannot be told.
[[nodiscard]] bool gpuDeviceMayExist();
