#include "elements/cloneelement.h"
#include "tests/elements/samples.h"

#include <QTest>
#include <QUuid>

#include <cmath>

namespace
{
/// Everything that a transform may change, as text that can be compared and read.
QString geometryOf(const DrawingElement &element)
{
    const auto at = [](const QPoint &p) { return QStringLiteral("%1,%2").arg(p.x()).arg(p.y()); };
    if (const auto *pair = dynamic_cast<const TwoPointElement *>(&element))
        return at(pair->start) + QLatin1Char(' ') + at(pair->end);
    if (const auto *circle = dynamic_cast<const CircleElement *>(&element))
        return at(circle->center) + QStringLiteral(" r%1").arg(circle->radius);
    if (const auto *text = dynamic_cast<const TextElement *>(&element))
        return at(text->position) + QStringLiteral(" pt%1").arg(text->fontSize);
    if (const auto *number = dynamic_cast<const NumberedCircleElement *>(&element))
        return at(number->center) + QStringLiteral(" #%1").arg(number->number);
    QStringList points;
    for (const QPoint &p : dynamic_cast<const FreehandElement &>(element).points)
        points.append(at(p));
    return points.join(QLatin1Char(' '));
}

template <typename Shape> ElementPtr shape(const QPoint &start, const QPoint &end, int width)
{
    return std::make_unique<Shape>(start, end, Qt::red, width, 1.0);
}

ElementPtr circle(const QPoint &center, int radius, int width)
{
    return std::make_unique<CircleElement>(center, radius, Qt::red, width, 1.0);
}

ElementPtr text(const QPoint &position, const QString &content, int size)
{
    return std::make_unique<TextElement>(position, content, size, Qt::red, 5, 1.0);
}

ElementPtr number(const QPoint &center, int width)
{
    return std::make_unique<NumberedCircleElement>(center, 12, Qt::red, width, 1.0);
}

/// A stroke whose path has been built, as after its first painting.
ElementPtr drawn(const QList<QPoint> &points, int width)
{
    ElementPtr stroke = samples::freehand(points, { Qt::red, width, 1.0 });
    stroke->move(QPoint());
    return stroke;
}

/// A kind that knows no more than it must.
class Square : public DrawingElement
{
public:
    Square() : DrawingElement(42, Qt::red, 7, 1.0) { }
    void paint(QPainter *) const override { }
    bool contains(const QPoint &, int) const override { return false; }
    void move(const QPoint &) override { }
    void scale(double factor, const QPoint &) override { scaledBy = factor; }
    void rotate(double, const QPoint &) override { }
    QRect boundingRect() const override { return { 10, 10, 20, 20 }; }

    double scaledBy = 0.0;
};

using Change = void (*)(DrawingElement &);
} // namespace

class TestDrawingElement : public QObject
{
    Q_OBJECT

private slots:
    void identities();
    void referencesFollowTheObject();
    void copies();
    void unknownKinds();
    void transforms();
    void bounds();
    void hits();
    void strokesStartStraightAndEndHalfWay();
};

void TestDrawingElement::identities()
{
    const ElementPtr one = number(QPoint(), 5);
    const ElementPtr other = number(QPoint(), 5);
    QVERIFY(one->id != other->id);
    QCOMPARE(QUuid(one->id).toString(), one->id);
    QVERIFY(!one->isEraser);
}

void TestDrawingElement::referencesFollowTheObject()
{
    QVERIFY(!ElementRef());
    QVERIFY(!ElementRef(nullptr));
    ElementPtr owner = number(QPoint(), 5);
    const ElementRef first(owner.get());
    const ElementRef second(owner.get());
    ElementPtr elsewhere = std::move(owner);
    QCOMPARE(first.get(), elsewhere.get());
    QCOMPARE(copyOf(elsewhere.get())->id, second->id);
    elsewhere.reset();
    QVERIFY(!first);
    QVERIFY(!second.get());
}

void TestDrawingElement::copies()
{
    const samples::Pen pen{ QColor(10, 20, 30, 200), 9, 0.6 };
    for (const DrawingElement::Kind kind : samples::kAllKinds) {
        const ElementPtr source = samples::make(kind, QPoint(30, 20), QPoint(90, 70), pen);
        source->isEraser = kind == DrawingElement::Freehand;
        const ElementPtr copy = copyOf(source.get());
        QCOMPARE(copy->type, qint32(kind));
        QCOMPARE(copy->id, source->id);
        QCOMPARE(copy->isEraser, source->isEraser);
        QCOMPARE(geometryOf(*copy), geometryOf(*source));
        const QSize size(200, 150);
        QCOMPARE(samples::painted(*copy, size), samples::painted(*source, size));

        const QString before = geometryOf(*source);
        copy->move(QPoint(5, 5));
        QVERIFY(geometryOf(*copy) != before);
        QCOMPARE(geometryOf(*source), before);
    }
}

void TestDrawingElement::unknownKinds()
{
    QVERIFY(!copyOf(nullptr));
    Square square;
    QVERIFY(!copyOf(&square));
    square.scaleAxes(1.0, 2.0, QPoint());
    QCOMPARE(square.scaledBy, 1.5);
    QVERIFY(square.paintedRect().contains(QRect(3, 3, 34, 34)));
}

void TestDrawingElement::transforms()
{
    struct Row {
        ElementPtr element;
        Change change;
        const char *expected;
    };
    const auto square = [] { return shape<RectangleElement>({ 0, 0 }, { 10, 10 }, 3); };
    const auto ring = [] { return circle(QPoint(3, -5), 5, 3); };
    const auto words = [] { return text(QPoint(4, 8), "a", 20); };
    const auto stroke = [] { return drawn({ { 1, 1 }, { 4, 3 }, { -4, -3 } }, 3); };
    const Row rows[] = {
        { square(), [](auto &e) { e.move(QPoint(-3, 4)); }, "-3,4 7,14" },
        { square(), [](auto &e) { e.scale(0.25, QPoint(0, 10)); }, "0,8 3,10" },
        { square(), [](auto &e) { e.scaleAxes(2, 0.5, QPoint(5, 5)); }, "-5,3 15,8" },
        // A rectangle stays upright.
        { square(), [](auto &e) { e.rotate(45, QPoint(5, 5)); }, "5,-2 5,12" },
        // A radius is cut off, a centre is rounded.
        { ring(), [](auto &e) { e.scale(0.5, QPoint()); }, "2,-3 r2" },
        { ring(), [](auto &e) { e.scaleAxes(2, 1, QPoint()); }, "6,-5 r7" },
        { ring(), [](auto &e) { e.rotate(90, QPoint()); }, "5,3 r5" },
        { words(), [](auto &e) { e.scale(0.55, QPoint(4, 8)); }, "4,8 pt11" },
        { words(), [](auto &e) { e.scaleAxes(1, 1.65, QPoint()); }, "4,13 pt26" },
        { words(), [](auto &e) { e.rotate(-90, QPoint()); }, "8,-4 pt20" },
        { number(QPoint(10, 20), 3), [](auto &e) { e.scale(3, QPoint()); }, "30,60 #12" },
        { stroke(), [](auto &e) { e.scale(2, QPoint(1, 1)); }, "1,1 7,5 -9,-7" },
        { stroke(), [](auto &e) { e.scaleAxes(1, 0.5, QPoint()); }, "1,1 4,2 -4,-2" },
        { stroke(), [](auto &e) { e.rotate(180, QPoint()); }, "-1,-1 -4,-3 4,3" },
        { stroke(), [](auto &e) { e.rotate(NAN, QPoint()); }, "1,1 4,3 -4,-3" },
    };
    for (const auto &[element, change, expected] : rows) {
        const int width = element->penWidth;
        change(*element);
        QCOMPARE(geometryOf(*element), expected);
        QCOMPARE(element->penWidth, width);
        // What is painted follows the stored numbers, whatever was cached before.
        const ElementPtr copy = copyOf(element.get());
        if (auto *freehand = dynamic_cast<FreehandElement *>(copy.get()))
            freehand->path = {};
        const QSize size(120, 120);
        QCOMPARE(samples::painted(*element, size, QPoint(-30, -30)),
            samples::painted(*copy, size, QPoint(-30, -30)));
    }
}

void TestDrawingElement::bounds()
{
    const QPoint origin;
    QCOMPARE(shape<LineElement>({ 30, 5 }, { 10, 25 }, 5)->boundingRect(), QRect(8, 3, 25, 25));
    QCOMPARE(shape<RectangleElement>(origin, { 10, 20 }, 4)->boundingRect(), QRect(-2, -2, 14, 24));
    QCOMPARE(circle({ 50, 60 }, 20, 5)->boundingRect(), QRect(28, 38, 44, 44));
    QCOMPARE(shape<ArrowElement>(origin, { 40, 0 }, 7)->boundingRect(), QRect(-18, -18, 76, 36));
    QCOMPARE(shape<ArrowElement>(origin, { 40, 0 }, 8)->boundingRect(), QRect(-20, -20, 80, 40));
    QCOMPARE(number({ 50, 50 }, 5)->boundingRect(), QRect(36, 36, 30, 30));
    QCOMPARE(drawn({ { 5, 9 }, { -5, 1 }, { 0, 4 } }, 5)->boundingRect(), QRect(-7, -1, 15, 13));
    QCOMPARE(drawn({}, 5)->boundingRect(), QRect());
    QCOMPARE(text({ 20, 30 }, QString(), 20)->boundingRect(), QRect(15, 25, 10, 10));
}

void TestDrawingElement::hits()
{
    struct Row {
        const char *name;
        ElementPtr element;
        int tolerance;
        QList<QPoint> inside;
        QList<QPoint> outside;
    };
    const QPoint origin;
    const Row rows[] = {
        { "line", shape<LineElement>(origin, { 100, 0 }, 2), 10,
            { { 50, 12 }, { -12, 0 }, { 112, 0 } }, { { 50, 13 }, { -13, 0 }, { 109, 9 } } },
        { "a slanted line runs ahead", shape<LineElement>(origin, { 1, 1 }, 1), 0,
            { { 1, 1 }, { 2, 1 } }, { { 2, 2 }, { 0, -2 } } },
        { "line without length", shape<LineElement>({ 5, 5 }, { 5, 5 }, 9), 100, {}, { { 5, 5 } } },
        { "rectangle, whatever its width", shape<RectangleElement>({ 100, 80 }, origin, 20), 3,
            { { -3, -3 }, { 50, 3 }, { 50, 77 }, { 103, 83 }, { 97, 40 } },
            { { 50, 40 }, { -4, 0 }, { 50, 4 }, { 50, 84 }, { 96, 40 } } },
        { "circle", circle(origin, 50, 4), 3, { { 57, 0 }, { 0, -43 }, { 30, 40 } },
            { { 58, 0 }, { 0, 42 }, origin } },
        { "small circle", circle(origin, 5, 4), 3, { origin, { 12, 0 } }, { { 13, 0 } } },
        { "arrow head beside its shaft", shape<ArrowElement>(origin, { 100, 0 }, 1), 0,
            { { 86, 6 }, { 100, 0 }, { 50, 1 }, { 85, 7 } },
            { { 86, 8 }, { 82, 1 }, { 82, 0 }, { 98, 3 }, { 80, 2 } } },
        { "arrow head with tolerance", shape<ArrowElement>(origin, { 100, 0 }, 8), 2,
            { { 82, 0 }, { 84, 10 }, { 101, 0 } }, { { 81, 0 }, { 84, 11 }, { 111, 0 } } },
        { "arrow without length", shape<ArrowElement>({ 5, 5 }, { 5, 5 }, 9), 100, {},
            { { 5, 5 } } },
        { "number is a disc", number({ 50, 50 }, 40), 2, { { 50, 50 }, { 64, 50 }, { 50, 36 } },
            { { 65, 50 }, { 60, 60 } } },
        { "stroke not painted yet", samples::freehand({ origin, { 40, 0 } }, { Qt::red, 4, 1.0 }),
            2, { { 6, 0 }, { 40, -6 } }, { { 7, 0 }, { 20, 0 } } },
        { "stroke", drawn({ origin, { 40, 0 } }, 4), 2, { { 20, 0 }, { 20, 3 }, { 20, -3 } },
            { { 20, 5 }, { 20, -5 }, { 46, 0 } } },
        { "inside of a bend", drawn({ origin, { 40, 0 }, { 40, 40 } }, 2), 1, { { 39, 20 } },
            { { 30, 10 } } },
        { "dot", drawn({ { 3, 3 } }, 4), 2, { { 9, 3 } }, { { 10, 3 }, { 8, 8 } } },
        { "empty stroke", drawn({}, 4), 100, {}, { origin } },
        { "empty text", text({ 20, 30 }, QString(), 20), 2, { { 13, 23 }, { 26, 36 } },
            { { 12, 30 }, { 27, 30 }, { 20, 37 }, { 20, 22 } } },
    };
    for (const auto &[name, element, tolerance, inside, outside] : rows) {
        for (const QPoint &p : inside)
            QVERIFY2(element->contains(p, tolerance), name);
        for (const QPoint &p : outside)
            QVERIFY2(!element->contains(p, tolerance), name);
    }
}

void TestDrawingElement::strokesStartStraightAndEndHalfWay()
{
    const ElementPtr stroke = drawn({ { 0, 0 }, { 10, 0 }, { 10, 10 }, { 21, 10 }, { 21, 30 } }, 3);
    const QPainterPath &path = dynamic_cast<const FreehandElement &>(*stroke).path;
    QPainterPath expected;
    expected.moveTo(0, 0);
    expected.lineTo(10, 0);
    expected.lineTo(10, 10);
    expected.quadTo(QPointF(10, 10), QPointF(15.5, 10));
    expected.quadTo(QPointF(21, 10), QPointF(21, 20));
    QCOMPARE(path, expected);
}

QTEST_MAIN(TestDrawingElement)
#include "tst_drawingelement.moc"
