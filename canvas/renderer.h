#pragma once

#include "canvas/coveragecache.h"
#include "canvas/damage.h"
#include "canvas/savedtiles.h"
#include "canvas/tilerevisions.h"

#include <QImage>
#include <QRect>
#include <QSize>

#include <limits>

class DrawingElement;
class ElementList;
class QPainter;

/// Owns the cached picture of the element list.
///
/// It is told which area of the canvas looks different now, and from which element on, and
/// guarantees that `picture()` is bit for bit what a full repaint of the list would give. Only
/// after a resize the picture is the old one, cropped or extended, until the next change of
/// content. Changes are gathered and painted when the picture is next asked for, so several
/// changes between two frames cost one repaint.
///
/// What a repaint costs depends on what changed: only elements that meet the area are painted, and
/// only there. While nothing but the topmost element changes, as a pen gesture or the pulse of the
/// newest mark does, what lies beneath is kept in the places where it was painted, and only the
/// topmost element is painted anew. What is kept is never more than one picture. Where marks lie
/// over or under what changed, those that are plain shapes are filled from their recorded coverage,
/// which takes a few megabytes at most, in place of being stroked again.
///
/// Areas and sizes are canvas coordinates; the picture has `devicePixelRatio` pixels for each.
class Renderer
{
public:
    explicit Renderer(const ElementList &elements) : m_elements(elements) { }

    /// The list now paints differently where `damage`, which may be empty, tells; the elements
    /// below index `lowest` paint as before. `size` is the canvas's.
    void contentChanged(const Damage &damage, int lowest, const QSize &size);
    /// Everything may look different.
    void rebuild(const QSize &size);
    /// Gives the picture a new size without painting the elements anew.
    void resize(const QSize &size);
    /// True when it is another ratio than before; it takes effect with the next rebuild.
    bool setDevicePixelRatio(qreal ratio);

    /// Null until the first change of content or resize.
    [[nodiscard]] const QImage &picture();
    /// Where the last `picture()` has been painted, for whoever shows it.
    [[nodiscard]] const TileRevisions &revisions() const { return m_revisions; }

    /// Paints every element in list order.
    static void paintElements(QPainter &painter, const ElementList &elements);
    /// Makes every renderer compare each repaint of an area with a full one, and complain on the
    /// log when they differ. For tests: it is as slow as full repaints.
    static void checkRepaints(bool on);

private:
    [[nodiscard]] QImage emptyPicture(const QSize &size) const;
    void repaintAll();
    void repaintDamage();
    void repaintArea(const QRect &area);
    /// The painter paints into these pixels of the picture only.
    void paintElementInto(QPainter &painter, const QRect &pixels, int index);
    /// Paints the elements `first` to `last`, both included, into these pixels of the picture.
    void paintInto(const QRect &pixels, int first, int last);
    /// The same onto nothing.
    void repaint(const QRect &pixels, int last);
    void repaintTopmost(const QRect &pixels);
    void forgetBeneath();
    void checkPicture() const;

    const ElementList &m_elements;
    QImage m_picture;
    TileRevisions m_revisions;
    qreal m_ratio = 1.0;
    QSize m_size; ///< of the canvas at the last change of content
    Damage m_damage;
    int m_lowest = std::numeric_limits<int>::max(); ///< the lowest element that may have changed
                                                    ///< since the last repaint
    int m_paintedCount = 0; ///< elements at the last repaint
    bool m_rebuildPending = false;
    bool m_staleAfterResize = false;

    CoverageCache m_coverages; ///< of the marks below the topmost
    SavedTiles m_beneath; ///< what the lowest `m_beneathCount` elements look like
    int m_beneathCount = -1;
    bool m_picturesBeneath = false; ///< and so does the picture, where no tile is kept
};
