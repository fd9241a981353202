#pragma once

#include "elements/drawingelement.h"

/// Copies an element: same kind, same id, same look. The caller owns the copy.
/// A null source, or one of an unknown class, gives null.
[[nodiscard]] DrawingElement *cloneElement(const DrawingElement *source);

/// The same, with the ownership in the type.
[[nodiscard]] inline ElementPtr copyOf(const DrawingElement *source)
{
    return ElementPtr(cloneElement(source));
}
