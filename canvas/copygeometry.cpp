#include "canvas/copygeometry.h"

#include "elements/circleelement.h"
#include "elements/numberedcircleelement.h"
#include "elements/textelement.h"
#include "elements/twopointelement.h"

namespace
{

template <typename Element, typename Copy>
bool copyAs(const DrawingElement &source, DrawingElement &target, Copy copy)
{
    const auto *from = dynamic_cast<const Element *>(&source);
    auto *to = dynamic_cast<Element *>(&target);
    if (from == nullptr || to == nullptr)
        return false;
    copy(*from, *to);
    return true;
}

} // namespace

void copyGeometry(const DrawingElement &source, DrawingElement &target)
{
    const auto points = [](const TwoPointElement &from, TwoPointElement &to) {
        to.start = from.start;
        to.end = from.end;
    };
    const auto circle = [](const CircleElement &from, CircleElement &to) {
        to.center = from.center;
        to.radius = from.radius;
    };
    const auto text = [](const TextElement &from, TextElement &to) {
        to.position = from.position;
        to.fontSize = from.fontSize;
    };
    const auto number = [](const NumberedCircleElement &from, NumberedCircleElement &to) {
        to.center = from.center;
    };
    static_cast<void>(copyAs<TwoPointElement>(source, target, points)
        || copyAs<CircleElement>(source, target, circle)
        || copyAs<TextElement>(source, target, text)
        || copyAs<NumberedCircleElement>(source, target, number));
}
