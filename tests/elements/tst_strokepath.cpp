#include "elements/strokepath.h"
#include "tests/elements/samples.h"

#include <QPainterPathStroker>
#include <QRandomGenerator>
#include <QTest>

namespace
{
constexpr QSize kCanvas(400, 300);

/// Scribbles with the doubled points and the corners that a pointer makes.
QList<QPoint> scribble(quint32 seed, int count)
{
    QRandomGenerator random(seed);
    QList<QPoint> points{ QPoint(200, 150) };
    for (int i = 0; i < count; ++i) {
        const QPoint step(random.bounded(-30, 31), random.bounded(-30, 31));
        const QPoint next = points.last() + step;
        points.append(QRect(QPoint(), kCanvas).contains(next) ? next : QPoint(200, 150));
        if (i % 3)
            points.append(points.last());
    }
    return points;
}

/// The picture after clearing and painting anew what lies in `clip`.
QImage repainted(const DrawingElement &element, QImage picture, const QRect &clip)
{
    QPainter painter(&picture);
    painter.setClipRect(clip);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(clip, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    element.paint(&painter);
    return picture;
}

void addScribbles()
{
    QTest::addColumn<int>("seed");
    QTest::addColumn<int>("width");
    for (const int width : { 0, 1, 2, 5, 24 }) {
        for (const int seed : { 1, 2, 3, 4 })
            QTest::addRow("seed %d, width %d", seed, width) << seed << width;
    }
}
} // namespace

/// Leaving out what cannot be seen must not change what can be.
class TestStrokePath : public QObject
{
    Q_OBJECT

private slots:
    void clippedPaintingIsAPieceOfTheWhole_data() { addScribbles(); }
    void clippedPaintingIsAPieceOfTheWhole();
    void growingStrokesChangeOnlyTheirEnd_data() { addScribbles(); }
    void growingStrokesChangeOnlyTheirEnd();
    void hitsAreThoseOfTheWholeOutline_data() { addScribbles(); }
    void hitsAreThoseOfTheWholeOutline();
    void farSegmentsAreLeftOut();
};

void TestStrokePath::clippedPaintingIsAPieceOfTheWhole()
{
    QFETCH(int, seed);
    QFETCH(int, width);
    const samples::Pen pen{ Qt::blue, width, seed % 2 ? 1.0 : 0.4 };
    QList<QPoint> points = scribble(quint32(seed), 60);
    if (seed == 4)
        points.append({ points.first(), points.first() });
    const ElementPtr stroke = samples::freehand(points, pen);
    // Even edges stay whole pixels at this magnification.
    const QImage whole = samples::painted(*stroke, kCanvas, QPoint(), seed == 3 ? 1.5 : 1.0);

    QRandomGenerator random(quint32(seed) + 100);
    for (int i = 0; i < 40; ++i) {
        const QRect clip(2 * random.bounded(200), 2 * random.bounded(150),
            2 + 2 * random.bounded(60), 2 + 2 * random.bounded(45));
        QCOMPARE(repainted(*stroke, whole, clip), whole);
    }
}

void TestStrokePath::growingStrokesChangeOnlyTheirEnd()
{
    QFETCH(int, seed);
    QFETCH(int, width);
    FreehandElement stroke(Qt::blue, width, 0.4);
    QList<QPoint> points = scribble(quint32(seed), 30);
    // Passes its start exactly, where ends turn into a join and back.
    points.append({ points.first(), points.first(), points.first(), QPoint(20, 20), QPoint(9, 9) });
    QImage picture = samples::blank(kCanvas);
    while (stroke.points.size() < points.size()) {
        const qsizetype next = std::min(points.size(), stroke.points.size() + 1 + seed % 3);
        // Somebody moves the stroke while it is drawn, and it jumps back.
        if (next % 10 == 0) {
            stroke.scale(1.5, stroke.points.last()); // where it goes on stays as it is
            if (next % 20 == 0)
                stroke.move(QPoint(40, -30));
            picture = samples::painted(stroke, kCanvas);
        }
        const QRect changed = stroke.replacePoints(points.first(next));
        QCOMPARE(stroke.points, points.first(next));
        picture = repainted(stroke, picture, changed);
        QCOMPARE(picture, samples::painted(stroke, kCanvas));
    }
}

void TestStrokePath::hitsAreThoseOfTheWholeOutline()
{
    QFETCH(int, seed);
    QFETCH(int, width);
    const ElementPtr stroke =
        samples::freehand(scribble(quint32(seed), 60), { Qt::blue, width, 1.0 });
    stroke->move(QPoint());
    for (const int tolerance : { 0, 3, 10 }) {
        QPainterPathStroker stroker;
        stroker.setWidth(width + 2 * tolerance);
        const QPainterPath outline =
            stroker.createStroke(dynamic_cast<FreehandElement &>(*stroke).path);
        for (int y = 0; y < kCanvas.height(); y += 7) {
            for (int x = 0; x < kCanvas.width(); x += 7)
                QCOMPARE(
                    stroke->contains(QPoint(x, y), tolerance), outline.contains(QPointF(x, y)));
        }
    }
}

void TestStrokePath::farSegmentsAreLeftOut()
{
    QList<QPoint> points;
    for (int i = 0; i < 1000; ++i)
        points.append(QPoint(i, i % 5));
    const QPainterPath path = smoothedPath(points);
    StretchIndex index;
    index.extend(smoothedPath(points.first(400)));
    index.extend(path);
    QVERIFY(segmentsNear(path, index, QRectF(500, 0, 10, 10)).elementCount() < 60);
    QVERIFY(segmentsNear(path, index, QRectF(500, 50, 10, 10)).isEmpty());
    QCOMPARE(segmentsNear(path, index, path.boundingRect()), path);
    QVERIFY(segmentsNear(QPainterPath(), StretchIndex(), QRectF(0, 0, 10, 10)).isEmpty());
}

QTEST_MAIN(TestStrokePath)
#include "tst_strokepath.moc"
