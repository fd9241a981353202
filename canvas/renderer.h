#pragma once

#include <QImage>
#include <QRect>
#include <QSize>

class ElementList;
class QPainter;

/// Owns the cached picture of the element list.
///
/// It is told which area of the canvas looks different now, and guarantees that `picture()` is bit
/// for bit what a full repaint of the list would give. Only after a resize the picture is the old
/// one, cropped or extended, until the next change of content. Changes are gathered and painted
/// when the picture is next asked for, so several changes between two frames cost one repaint.
///
/// Areas and sizes are canvas coordinates; the picture has `devicePixelRatio` pixels for each.
class Renderer
{
public:
    explicit Renderer(const ElementList &elements) : m_elements(elements) { }

    /// The list now paints differently inside `area`, which may be empty; `size` is the canvas's.
    void contentChanged(const QRect &area, const QSize &size);
    /// Everything may look different.
    void rebuild(const QSize &size);
    /// Gives the picture a new size without painting the elements anew.
    void resize(const QSize &size);
    /// True when it is another ratio than before; it takes effect with the next rebuild.
    bool setDevicePixelRatio(qreal ratio);

    /// Null until the first change of content or resize.
    [[nodiscard]] const QImage &picture();

    /// Paints every element in list order.
    static void paintElements(QPainter &painter, const ElementList &elements);

private:
    [[nodiscard]] QImage emptyPicture(const QSize &size) const;
    void repaintAll();
    void repaintDamage();

    const ElementList &m_elements;
    QImage m_picture;
    qreal m_ratio = 1.0;
    QSize m_size; ///< of the canvas at the last change of content
    QRect m_damage;
    bool m_rebuildPending = false;
    bool m_staleAfterResize = false;
};
