#pragma once

#include <QRect>

/// The part of `wanted` that can be recorded: it lies on the screen and both sides are even, as
/// the encoder's colour planes have half the picture's size. Empty when less than two pixels
/// remain. Physical pixels.
[[nodiscard]] QRect encodableArea(const QRect &wanted, const QRect &screen);
