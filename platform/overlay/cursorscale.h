#pragma once

#include <QtGlobal>

/// What a cursor's hot spot is multiplied with on this platform: X11 counts it in the picture's own
/// pixels, Windows in logical ones.
[[nodiscard]] qreal cursorHotSpotScale(qreal devicePixelRatio);
