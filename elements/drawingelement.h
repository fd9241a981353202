#pragma once

#include "elements/elementref.h"

#include <QColor>
#include <QPoint>
#include <QRect>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class QPainter;

/// What a mark paints that fills one shape with one colour, and does nothing else.
struct PlainShape {
    quint64 outline; ///< as long as it and the pen's width stay, the same pixels are covered
    int pathElements; ///< how long the outline is
    QColor color;
};

/// One mark on the canvas. It paints itself, answers hit tests, reports its bounds and is moved,
/// scaled and rotated in place.
///
/// All coordinates are whole pixels in the canvas item's space; every transform rounds back to
/// whole pixels, halves away from zero. Coordinates saturate at the limits of `int`.
/// Elements are open data: the canvas reads and writes the public fields under these very names.
class DrawingElement
{
public:
    /// The element kinds; the same numbers are the canvas's draw modes.
    enum Kind { Freehand, Line, Circle, Rectangle, Arrow, Text, NumberedCircle };

    virtual ~DrawingElement();
    DrawingElement(const DrawingElement &) = delete;
    DrawingElement &operator=(const DrawingElement &) = delete;

    /// Paints with the painter as it stands; the caller has set any transform.
    virtual void paint(QPainter *painter) const = 0;
    /// Hit test on the drawn outline, widened by `tolerance` pixels.
    virtual bool contains(const QPoint &point, int tolerance) const = 0;
    virtual void move(const QPoint &offset) = 0;
    /// Scales every stored point about `center`; lengths are multiplied and truncated.
    virtual void scale(double factor, const QPoint &center) = 0;
    /// Rotates every stored point about `center`, clockwise on screen, in degrees.
    virtual void rotate(double angle, const QPoint &center) = 0;
    /// The nominal rectangle that selection frames show; half the pen width is included.
    virtual QRect boundingRect() const = 0;

    /// Scales each axis by its own factor; a length takes the mean of the two, truncated.
    /// Unless a kind knows better, it is scaled evenly by that mean.
    virtual void scaleAxes(double factorX, double factorY, const QPoint &center);
    /// Every pixel that `paint` may touch lies inside this rectangle: pen width, arrow heads,
    /// glyph overhang and antialiasing included.
    /// Cheap enough to ask of every element of a full canvas on each change.
    virtual QRect paintedRect() const;
    /// A few rectangles that, together, hold every pixel that `paint` may touch. They leave out
    /// what a winding mark goes around.
    virtual std::vector<QRect> paintedPieces() const;
    /// Whether `paint` may touch a pixel of `area`; cheaper than painting to find out.
    virtual bool paintsInto(const QRect &area) const;

    /// Empty when `paint` may do more than fill a plain shape on a canvas of this many device
    /// pixels to one, or not exactly the same wherever the painter's clip is.
    virtual std::optional<PlainShape> plainShape(qreal devicePixelRatio) const;
    /// Fills that shape with a colour, taken as it stands.
    virtual void paintPlainShape(QPainter *painter, const QColor &fillColor) const;

    QString id; ///< braced UUID; copies keep the id of their source
    qint32 type; ///< a `Kind`
    QColor color;
    qint32 penWidth; ///< device-independent pixels
    double opacity; ///< 0.0 to 1.0, applied at paint time
    bool isEraser = false; ///< only freehand strokes paint differently because of it

protected:
    DrawingElement(qint32 kind, const QColor &penColor, int width, double penOpacity);

    /// Gives the painter the solid, round pen of an outline in the element's colour and opacity,
    /// and switches antialiasing on.
    void setUpPen(QPainter *painter) const;
    /// The same in another colour, taken as it stands.
    void setUpPen(QPainter *painter, const QColor &penColor) const;
    /// The element's colour and opacity in one.
    QColor paintedColor() const;
    /// How far the pen can touch pixels beside the line that it follows.
    double penReach() const;

private:
    friend class ElementRef;
    std::shared_ptr<const void> m_alive;
};
