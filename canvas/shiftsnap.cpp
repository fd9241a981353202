#include "canvas/shiftsnap.h"

#include "elements/geometry.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace
{

constexpr double kNoDistance = 1e-6;
constexpr double kDegreesPerStep = 45.0;
constexpr double kDegreesPerRadian = 57.29577951308232;
constexpr double kRadiansPerDegree = 0.017453292519943295;

double roundHalfAway(double value)
{
    return std::trunc(value >= 0 ? value + 0.5 : value - 0.5);
}

} // namespace

QPoint ShiftSnap::toEighthTurn(const QPoint &start, const QPoint &pos)
{
    const double dx = static_cast<double>(pos.x()) - start.x();
    const double dy = static_cast<double>(pos.y()) - start.y();
    if (std::abs(dx) < kNoDistance && std::abs(dy) < kNoDistance)
        return start;
    const double steps = std::atan2(dy, dx) * kDegreesPerRadian / kDegreesPerStep;
    const double angle = roundHalfAway(steps) * kDegreesPerStep * kRadiansPerDegree;
    const double length = std::sqrt(dx * dx + dy * dy);
    return { geometry::rounded(start.x() + std::cos(angle) * length),
        geometry::rounded(start.y() + std::sin(angle) * length) };
}

QPoint ShiftSnap::toSquare(const QPoint &start, const QPoint &pos)
{
    const double dx = static_cast<double>(pos.x()) - start.x();
    const double dy = static_cast<double>(pos.y()) - start.y();
    const double side = std::max(std::abs(dx), std::abs(dy));
    return { geometry::truncated(start.x() + (dx < 0 ? -side : side)),
        geometry::truncated(start.y() + (dy < 0 ? -side : side)) };
}
