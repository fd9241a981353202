#pragma once

#include <QRect>

#include <vector>

class DrawingElement;

/// Where the canvas looks different now: a few rectangles in canvas coordinates, which may overlap.
class Damage
{
public:
    Damage() = default;
    /*implicit*/ Damage(const QRect &area) { add(area); }

    void add(const QRect &area);
    void add(const Damage &other);
    /// Everything that the element paints.
    void add(const DrawingElement &element);
    void clear() { m_areas.clear(); }
    [[nodiscard]] const std::vector<QRect> &areas() const { return m_areas; }

private:
    std::vector<QRect> m_areas;
};
