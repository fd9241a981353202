#pragma once

#include <QImage>
#include <QSize>

class ElementList;

/// The picture that a canvas of this size must show: every element painted anew, in order, onto
/// nothing. The elements are not touched. Null for an empty size.
[[nodiscard]] QImage referencePicture(
    const ElementList &elements, const QSize &size, qreal devicePixelRatio = 1.0);
