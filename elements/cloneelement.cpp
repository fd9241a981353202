#include "elements/cloneelement.h"

#include "elements/arrowelement.h"
#include "elements/circleelement.h"
#include "elements/freehandelement.h"
#include "elements/lineelement.h"
#include "elements/numberedcircleelement.h"
#include "elements/rectangleelement.h"
#include "elements/textelement.h"

namespace
{
ElementPtr copyOfKind(const FreehandElement &source)
{
    auto copy = std::make_unique<FreehandElement>(source.color, source.penWidth, source.opacity);
    copy->points = source.points;
    copy->path = source.path;
    copy->isEraser = source.isEraser;
    return copy;
}

ElementPtr copyOfKind(const CircleElement &source)
{
    return std::make_unique<CircleElement>(
        source.center, source.radius, source.color, source.penWidth, source.opacity);
}

ElementPtr copyOfKind(const TextElement &source)
{
    auto copy = std::make_unique<TextElement>(source.position, source.text, source.fontSize,
        source.color, source.penWidth, source.opacity);
    copy->shareLayout(source);
    return copy;
}

ElementPtr copyOfKind(const NumberedCircleElement &source)
{
    return std::make_unique<NumberedCircleElement>(
        source.center, source.number, source.color, source.penWidth, source.opacity);
}

template <typename TwoPoint> ElementPtr copyOfKind(const TwoPoint &source)
{
    return std::make_unique<TwoPoint>(
        source.start, source.end, source.color, source.penWidth, source.opacity);
}

/// The copy as the first of these kinds that the source belongs to.
template <typename Kind, typename... Others> ElementPtr copyAsOneOf(const DrawingElement &source)
{
    if (const auto *element = dynamic_cast<const Kind *>(&source))
        return copyOfKind(*element);
    if constexpr (sizeof...(Others) > 0)
        return copyAsOneOf<Others...>(source);
    else
        return nullptr;
}
} // namespace

DrawingElement *cloneElement(const DrawingElement *source)
{
    if (!source)
        return nullptr;
    ElementPtr copy = copyAsOneOf<FreehandElement, LineElement, CircleElement, RectangleElement,
        ArrowElement, TextElement, NumberedCircleElement>(*source);
    if (copy)
        copy->id = source->id;
    return copy.release();
}
