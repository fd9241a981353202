#pragma once

#include "canvas/mypainter.h"

#include <QList>
#include <QPoint>

#include <memory>

/// Canvases with ordinary marks on them, the same ones at every run.
namespace boards
{

inline constexpr QSize kFullHd(1920, 1080);

/// A stroke as a hand draws it: about 100 samples, some hundred pixels long, somewhere on the
/// canvas. Another number gives another stroke.
[[nodiscard]] QList<QPoint> strokePoints(quint32 number, int samples = 100);

/// Draws a stroke through these points with the tool in hand.
void draw(MyPainter &canvas, const QList<QPoint> &points);

/// A canvas without a window, with so many strokes, every fourth of them translucent.
[[nodiscard]] std::unique_ptr<MyPainter> withStrokes(int count);

/// Shows what the canvas looks like now, as a frame would.
void showFrame(MyPainter &canvas);

} // namespace boards
