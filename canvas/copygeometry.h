#pragma once

class DrawingElement;

/// Gives `target` the place and size of `source`, in place; look, id and text stay.
/// Freehand strokes, and a pair of different classes, are left as they are.
void copyGeometry(const DrawingElement &source, DrawingElement &target);
