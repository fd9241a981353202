#include "canvas/elementlist.h"

#include "elements/drawingelement.h"

#include <algorithm>

ElementList::ElementList() = default;
ElementList::~ElementList() = default;

DrawingElement *ElementList::at(int index) const
{
    return m_elements[static_cast<std::size_t>(index)].get();
}

int ElementList::indexOf(const QString &id) const
{
    for (int i = 0; i < size(); ++i) {
        if (at(i)->id == id)
            return i;
    }
    return kNotFound;
}

int ElementList::placeOf(const DrawingElement &element) const
{
    const auto place = std::find_if(m_elements.begin(), m_elements.end(),
        [&](const ElementPtr &owned) { return owned.get() == &element; });
    return static_cast<int>(place - m_elements.begin());
}

DrawingElement *ElementList::find(const QString &id) const
{
    const int index = indexOf(id);
    return index == kNotFound ? nullptr : at(index);
}

int ElementList::topmostAt(const QPoint &pos, int tolerance) const
{
    for (int i = size() - 1; i >= 0; --i) {
        if (at(i)->contains(pos, tolerance))
            return i;
    }
    return kNotFound;
}

DrawingElement *ElementList::append(ElementPtr element)
{
    return m_elements.emplace_back(std::move(element)).get();
}

ElementPtr ElementList::take(int index)
{
    const auto place = m_elements.begin() + index;
    ElementPtr element = std::move(*place);
    m_elements.erase(place);
    return element;
}

ElementPtr ElementList::take(const QString &id)
{
    const int index = indexOf(id);
    return index == kNotFound ? nullptr : take(index);
}

void ElementList::clear()
{
    m_elements.clear();
}
