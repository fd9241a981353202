#pragma once

#include "elements/elementref.h"

#include <QPoint>
#include <QString>

#include <cstddef>
#include <vector>

/// The visible elements in drawing order: index 0 is painted first, the last one is on top.
/// Owns what is in it; taking an element out hands the ownership to the caller.
class ElementList
{
public:
    static constexpr int kNotFound = -1;

    ElementList();
    ~ElementList();
    Q_DISABLE_COPY_MOVE(ElementList)

    [[nodiscard]] int size() const { return static_cast<int>(m_elements.size()); }
    [[nodiscard]] bool isEmpty() const { return m_elements.empty(); }
    [[nodiscard]] bool isValid(int index) const { return index >= 0 && index < size(); }
    /// The element at a valid index; the list keeps it.
    [[nodiscard]] DrawingElement *at(int index) const;
    [[nodiscard]] DrawingElement *last() const { return at(size() - 1); }

    /// The first index whose element has this id, or `kNotFound`.
    [[nodiscard]] int indexOf(const QString &id) const;
    /// The index of this very object; `size()` when the list does not own it.
    [[nodiscard]] int placeOf(const DrawingElement &element) const;
    [[nodiscard]] bool contains(const QString &id) const { return indexOf(id) != kNotFound; }
    [[nodiscard]] DrawingElement *find(const QString &id) const;
    /// The index of the topmost element hit at `pos` within `tolerance` pixels, or `kNotFound`.
    [[nodiscard]] int topmostAt(const QPoint &pos, int tolerance) const;

    /// Puts the element on top of all others and returns it.
    DrawingElement *append(ElementPtr element);
    [[nodiscard]] ElementPtr take(int index);
    /// Null when no element has this id.
    [[nodiscard]] ElementPtr take(const QString &id);
    void clear();

    [[nodiscard]] auto begin() const { return m_elements.begin(); }
    [[nodiscard]] auto end() const { return m_elements.end(); }

private:
    std::vector<ElementPtr> m_elements;
};
