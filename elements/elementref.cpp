#include "elements/elementref.h"

#include "elements/drawingelement.h"

ElementRef::ElementRef(DrawingElement *element) : m_element(element)
{
    if (!element)
        return;
    // Most elements are never observed, so the token is only made when somebody asks.
    if (!element->m_alive)
        element->m_alive = std::make_shared<char>();
    m_alive = element->m_alive;
}
