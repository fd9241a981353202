#include "canvas/damage.h"

#include "elements/drawingelement.h"

#include <algorithm>
#include <numeric>

namespace
{

/// With more than this, one rectangle around all of them is cheaper than looking at each.
constexpr std::size_t kMostAreas = 48;

double pixelsIn(const QRect &area)
{
    return double(area.width()) * area.height();
}

} // namespace

void Damage::add(const QRect &area)
{
    if (area.isEmpty())
        return;
    QRect grown = area;
    // Areas that overlap much are repainted together.
    const auto joins = [&grown](const QRect &other) {
        const QRect both = grown | other;
        if (pixelsIn(both) > pixelsIn(grown) + pixelsIn(other))
            return false;
        grown = both;
        return true;
    };
    m_areas.erase(std::remove_if(m_areas.begin(), m_areas.end(), joins), m_areas.end());
    m_areas.push_back(grown);
    if (m_areas.size() <= kMostAreas)
        return;
    const QRect all = std::accumulate(m_areas.begin(), m_areas.end(), QRect(), std::bit_or<>());
    m_areas = { all };
}

void Damage::add(const Damage &other)
{
    for (const QRect &area : other.areas())
        add(area);
}

void Damage::add(const DrawingElement &element)
{
    for (const QRect &piece : element.paintedPieces())
        add(piece);
}
