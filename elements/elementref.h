#pragma once

#include <memory>

class DrawingElement;

/// An element's only owner: the canvas list or one history entry.
using ElementPtr = std::unique_ptr<DrawingElement>;

/// Observes an element without owning it and can tell when the element is gone.
/// It follows the object, not its place: an element that moves from the canvas list into a history
/// entry is still observed.
class ElementRef
{
public:
    ElementRef() = default;
    explicit ElementRef(DrawingElement *element);

    /// The element, or null when none was set or it has been destroyed.
    [[nodiscard]] DrawingElement *get() const { return m_alive.expired() ? nullptr : m_element; }
    [[nodiscard]] explicit operator bool() const { return get() != nullptr; }
    DrawingElement *operator->() const { return get(); }
    void reset() { *this = ElementRef(); }

private:
    DrawingElement *m_element = nullptr;
    std::weak_ptr<const void> m_alive;
};
