#include "elements/freehandelement.h"

#include "elements/geometry.h"
#include "elements/strokepath.h"

#include <QPainter>
#include <QPainterPathStroker>

#include <algorithm>
#include <atomic>
#include <cmath>

namespace
{
/// Device pixels; the rasterizer cuts lines off at about twice as far.
constexpr QRectF kRasterRange(-16384, -16384, 32768, 32768);
constexpr std::size_t kMostPieces = 16;

/// Unlike Qt's union, it does not leave out a rectangle without width or height.
QRectF spanning(const QRectF &a, const QRectF &b)
{
    return { QPointF(std::min(a.left(), b.left()), std::min(a.top(), b.top())),
        QPointF(std::max(a.right(), b.right()), std::max(a.bottom(), b.bottom())) };
}
} // namespace

FreehandElement::FreehandElement(const QColor &penColor, int width, double penOpacity)
    : DrawingElement(Freehand, penColor, width, penOpacity)
{
}

void FreehandElement::paint(QPainter *painter) const
{
    if (points.isEmpty())
        return;
    const QPainter::CompositionMode mode = painter->compositionMode();
    if (isEraser) {
        setUpPen(painter, Qt::white);
        painter->setCompositionMode(QPainter::CompositionMode_Clear);
    } else {
        setUpPen(painter);
    }
    if (path.isEmpty() && points.size() > 1)
        buildPath();
    if (!path.isEmpty())
        drawPath(painter);
    else // all points are the same: a dot that was pressed without moving
        painter->drawPoint(points.first());
    painter->setCompositionMode(mode);
}

void FreehandElement::drawPath(QPainter *painter) const
{
    const QBrush &brush = painter->brush();
    const bool fills = brush.style() != Qt::NoBrush && brush.color().alpha() != 0;
    // An eraser only clears what it passes over, not what it goes around.
    if (fills && !isEraser) {
        painter->drawPath(path);
        return;
    }
    const QPainterPath visible = visiblePath(*painter);
    if (!visible.isEmpty())
        painter->strokePath(visible, painter->pen());
}

bool FreehandElement::isDivisible(const QTransform &transform) const
{
    // Lines of up to a device pixel are traced from end to end, quickly but so that their pixels
    // depend on where the trace began.
    const double width = std::max(penWidth, 0);
    const bool isTraced = std::abs(transform.determinant()) * width * width <= 1.0;
    // Of a line that leaves the range of the rasterizer all the other pixels change slightly.
    const QRectF extent = transform.mapRect(QRectF(paintedRect()));
    return !isTraced && kRasterRange.contains(extent);
}

QPainterPath FreehandElement::visiblePath(const QPainter &painter) const
{
    if (!painter.hasClipping() || !isDivisible(painter.combinedTransform()))
        return path;
    const double reach = penReach();
    return segmentsNear(
        path, stretches(), painter.clipBoundingRect().adjusted(-reach, -reach, reach, reach));
}

bool FreehandElement::contains(const QPoint &point, int tolerance) const
{
    const QPointF p(point);
    if (path.isEmpty()) {
        const double reach = double(penWidth) + tolerance;
        return std::any_of(points.cbegin(), points.cend(), [&](const QPoint &q) {
            return geometry::squaredLength(QPointF(q) - p) <= reach * reach;
        });
    }
    const double width = penWidth + 2.0 * tolerance;
    const double reach = std::max(width, 1.0);
    if (!pointsArea().adjusted(-reach, -reach, reach, reach).contains(p))
        return false;
    const QRectF around = QRectF(p, p).adjusted(-reach, -reach, reach, reach);
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    const QPainterPath nearby = segmentsNear(path, stretches(), around);
    return !nearby.isEmpty() && stroker.createStroke(nearby).contains(p);
}

void FreehandElement::move(const QPoint &offset)
{
    transformPoints([&](const QPoint &p) { return geometry::translated(p, offset); });
}

void FreehandElement::scale(double factor, const QPoint &center)
{
    FreehandElement::scaleAxes(factor, factor, center);
}

void FreehandElement::rotate(double angle, const QPoint &center)
{
    transformPoints([&](const QPoint &p) { return geometry::rotated(p, angle, center); });
}

void FreehandElement::scaleAxes(double factorX, double factorY, const QPoint &center)
{
    transformPoints([&](const QPoint &p) { return geometry::scaled(p, factorX, factorY, center); });
}

QRect FreehandElement::boundingRect() const
{
    if (points.isEmpty())
        return {};
    return geometry::framed(pointsArea(), penWidth / 2, penWidth);
}

QRect FreehandElement::paintedRect() const
{
    if (points.isEmpty())
        return {};
    return geometry::enclosingRect(pointsArea(), penReach());
}

std::vector<QRect> FreehandElement::paintedPieces() const
{
    if (path.isEmpty())
        return { paintedRect() };
    const std::vector<StretchIndex::Stretch> &all = stretches().stretches();
    const std::size_t perPiece = (all.size() + kMostPieces - 1) / kMostPieces;
    std::vector<QRect> pieces;
    for (std::size_t i = 0; i < all.size(); i += perPiece) {
        QRectF area = all[i].bounds;
        for (std::size_t j = i + 1; j < std::min(i + perPiece, all.size()); ++j)
            area = spanning(area, all[j].bounds);
        pieces.push_back(geometry::enclosingRect(area, penReach()));
    }
    return pieces;
}

bool FreehandElement::paintsInto(const QRect &area) const
{
    if (!paintedRect().intersects(area))
        return false;
    const std::vector<StretchIndex::Stretch> &all = stretches().stretches();
    return path.isEmpty()
        || std::any_of(all.begin(), all.end(), [&](const StretchIndex::Stretch &stretch) {
               return geometry::enclosingRect(stretch.bounds, penReach()).intersects(area);
           });
}

std::optional<PlainShape> FreehandElement::plainShape(qreal devicePixelRatio) const
{
    static std::atomic<quint64> lastOutline = 0;
    if (isEraser || path.isEmpty()
        || !isDivisible(QTransform::fromScale(devicePixelRatio, devicePixelRatio)))
        return std::nullopt;
    if (m_outline == 0)
        m_outline = ++lastOutline;
    return PlainShape{ m_outline, path.elementCount(), paintedColor() };
}

void FreehandElement::paintPlainShape(QPainter *painter, const QColor &fillColor) const
{
    setUpPen(painter, fillColor);
    painter->strokePath(path, painter->pen());
}

QRect FreehandElement::replacePoints(const QList<QPoint> &replacement)
{
    const QRect before = paintedRect();
    const qsizetype drawn = points.size();
    const bool grows = isGrownTo(replacement);
    if (grows)
        grow(replacement);
    else
        points = replacement;
    if (!grows)
        rebuildPath();
    m_growingCount = points.size();
    return grows ? paintedRectFrom(drawn) : before | paintedRect();
}

bool FreehandElement::isGrownTo(const QList<QPoint> &replacement) const
{
    const qsizetype drawn = points.size();
    return drawn > 1 && drawn == m_growingCount && !path.isEmpty() && drawn <= replacement.size()
        && points.constLast() == replacement.at(drawn - 1);
}

void FreehandElement::grow(const QList<QPoint> &replacement)
{
    const qsizetype drawn = points.size();
    points.append(replacement.sliced(drawn));
    m_outline = 0;
    extendSmoothedPath(path, points, drawn);
}

QRect FreehandElement::paintedRectFrom(qsizetype firstNewPoint) const
{
    // A hairline is traced in one go, and a stroke that leaves the range of the rasterizer is cut
    // off there; either may then differ anywhere. Pictures have up to four device pixels to one.
    constexpr QRect kRange(-8000, -8000, 16000, 16000);
    if (penWidth <= 1 || points.isEmpty() || !kRange.contains(paintedRect()))
        return paintedRect();
    // The curve used to end half way between the last two of the old points.
    const qsizetype first = std::clamp<qsizetype>(firstNewPoint - 2, 0, points.size() - 1);
    return geometry::enclosingRect(areaOfPoints(first), penReach());
}

void FreehandElement::rebuildPath()
{
    m_growingCount = 0;
    buildPath();
}

void FreehandElement::buildPath() const
{
    path = smoothedPath(points);
    m_stretches.clear();
    m_indexedElements = 0;
    m_areaCount = 0;
    m_outline = 0;
}

const StretchIndex &FreehandElement::stretches() const
{
    if (path.elementCount() < m_indexedElements)
        m_stretches.clear();
    m_stretches.extend(path);
    m_indexedElements = path.elementCount();
    return m_stretches;
}

QRectF FreehandElement::pointsArea() const
{
    if (path.isEmpty() || m_areaCount == 0 || m_areaCount > points.size())
        m_area = areaOfPoints(0);
    else if (m_areaCount < points.size())
        m_area = spanning(m_area, areaOfPoints(m_areaCount));
    m_areaCount = points.size();
    return m_area;
}

QRectF FreehandElement::areaOfPoints(qsizetype first) const
{
    const auto begin = points.cbegin() + first;
    const auto byX = [](const QPoint &a, const QPoint &b) { return a.x() < b.x(); };
    const auto byY = [](const QPoint &a, const QPoint &b) { return a.y() < b.y(); };
    const auto [left, right] = std::minmax_element(begin, points.cend(), byX);
    const auto [top, bottom] = std::minmax_element(begin, points.cend(), byY);
    return { QPointF(left->x(), top->y()), QPointF(right->x(), bottom->y()) };
}

template <typename Transform> void FreehandElement::transformPoints(Transform transform)
{
    std::transform(points.cbegin(), points.cend(), points.begin(), transform);
    rebuildPath();
}
