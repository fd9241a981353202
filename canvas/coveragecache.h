#pragma once

#include "canvas/coverage.h"
#include "elements/drawingelement.h"

#include <QCache>
#include <QRect>

#include <optional>
#include <utility>

/// Keeps which pixels the marks of a board cover. Putting colour there again takes a small part of
/// the time that stroking a path does.
///
/// What has not been used for longest goes first when there is too much. A mark is recorded when it
/// is finished or when a second repaint asks for it, since one that changes all the time would be
/// recorded in vain, and only so many in one repaint, so that none takes much longer than the
/// painting it saves.
class CoverageCache
{
public:
    static constexpr qsizetype kMostBytes = 10 * 1024 * 1024;

    /// From here on it is another repaint, of a picture of such a size and ratio.
    void beginRepaint(const QSize &pixels, qreal ratio);
    /// Records a mark that will stay as it is for a while.
    void prepare(const DrawingElement &element);
    /// Paints the mark into these pixels, bit for bit as it paints itself. False, and nothing done,
    /// when it is no plain shape or not recorded yet.
    [[nodiscard]] bool paint(QImage &picture, const QRect &pixels, const DrawingElement &element);

private:
    struct Entry {
        quint64 seenIn; ///< repaint that asked first, or that recorded it
        std::optional<Coverage> coverage;
    };
    using Key = std::pair<quint64, int>; ///< outline and pen width

    /// Empty when no coverage can stand for the element.
    [[nodiscard]] std::optional<PlainShape> shapeOf(const DrawingElement &element) const;
    /// Null when nothing is recorded.
    const Coverage *find(const DrawingElement &element, const PlainShape &shape);
    /// Null when that would take too long now, or too much to be kept.
    const Entry *record(const DrawingElement &element, const PlainShape &shape);
    [[nodiscard]] static Coverage covered(
        const DrawingElement &element, const QRect &pixels, qreal ratio);
    /// Null when that is too much to be kept.
    const Entry *keep(const Key &key, Coverage coverage);
    /// The device pixels of the picture that the element may touch.
    [[nodiscard]] QRect pixelsOf(const DrawingElement &element) const;

    QCache<Key, Entry> m_entries{ kMostBytes };
    QRect m_picture; ///< device pixels
    qreal m_ratio = 0.0;
    quint64 m_repaint = 0;
    // What may still be recorded in this repaint.
    int m_pathElementsLeft = 0;
    qint64 m_pixelsLeft = 0;
};
