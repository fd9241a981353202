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

using Make = ElementPtr (*)();
using Change = void (*)(DrawingElement &);
} // namespace
Q_DECLARE_METATYPE(Make)
Q_DECLARE_METATYPE(Change)

class TestDrawingElement : public QObject
{
    Q_OBJECT

private slots:
    void identities();
    void referencesFollowTheObject();
    void copies_data();
    void copies();
    void copiesOfErasersErase();
    void unknownKinds();
    void transforms_data();
    void transforms();
    void bounds_data();
    void bounds();
    void hits_data();
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

void TestDrawingElement::copies_data()
{
    QTest::addColumn<DrawingElement::Kind>("kind");
    for (const DrawingElement::Kind kind : samples::kAllKinds)
        QTest::addRow("%s", samples::nameOf(kind)) << kind;
}

void TestDrawingElement::copies()
{
    QFETCH(DrawingElement::Kind, kind);
    const samples::Pen pen{ QColor(10, 20, 30, 200), 9, 0.6 };
    const ElementPtr source = samples::make(kind, QPoint(30, 20), QPoint(90, 70), pen);
    const ElementPtr copy = copyOf(source.get());

    QCOMPARE(copy->type, qint32(kind));
    QCOMPARE(copy->id, source->id);
    QCOMPARE(geometryOf(*copy), geometryOf(*source));
    const QSize size(200, 150);
    QCOMPARE(samples::painted(*copy, size), samples::painted(*source, size));

    const QString before = geometryOf(*source);
    copy->move(QPoint(5, 5));
    QVERIFY(geometryOf(*copy) != before);
    QCOMPARE(geometryOf(*source), before);
}

void TestDrawingElement::copiesOfErasersErase()
{
    const ElementPtr stroke = samples::freehand({ QPoint(1, 2) }, {});
    stroke->isEraser = true;
    QVERIFY(copyOf(stroke.get())->isEraser);
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

void TestDrawingElement::transforms_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, Make make, Change change, const char *expected) {
        QTest::newRow(name) << make << change << QString::fromLatin1(expected);
    };
    const Make square = [] { return shape<RectangleElement>(QPoint(0, 0), QPoint(10, 10), 3); };
    const Make ring = [] { return circle(QPoint(3, -5), 5, 3); };
    const Make words = [] { return text(QPoint(4, 8), QStringLiteral("a"), 20); };
    const Make marker = [] { return number(QPoint(10, 20), 3); };
    const Make stroke = [] { return drawn({ QPoint(1, 1), QPoint(4, 3), QPoint(-4, -3) }, 3); };

    row(
        "move two points", square, [](auto &e) { e.move(QPoint(-3, 4)); }, "-3,4 7,14");
    row(
        "scale two points", square, [](auto &e) { e.scale(0.25, QPoint(0, 10)); }, "0,8 3,10");
    row(
        "scale axes of two points", square, [](auto &e) { e.scaleAxes(2, 0.5, QPoint(5, 5)); },
        "-5,3 15,8");
    row(
        "a rotated rectangle stays upright", square, [](auto &e) { e.rotate(45, QPoint(5, 5)); },
        "5,-2 5,12");
    row(
        "move a circle", ring, [](auto &e) { e.move(QPoint(1, 1)); }, "4,-4 r5");
    row(
        "a radius is cut off, a centre rounded", ring, [](auto &e) { e.scale(0.5, QPoint()); },
        "2,-3 r2");
    row(
        "a radius takes the mean", ring, [](auto &e) { e.scaleAxes(2, 1, QPoint()); }, "6,-5 r7");
    row(
        "rotation leaves a radius", ring, [](auto &e) { e.rotate(90, QPoint()); }, "5,3 r5");
    row(
        "scale a text", words, [](auto &e) { e.scale(0.55, QPoint(4, 8)); }, "4,8 pt11");
    row(
        "a font size takes the mean", words, [](auto &e) { e.scaleAxes(1, 1.65, QPoint(0, 0)); },
        "4,13 pt26");
    row(
        "rotate a text", words, [](auto &e) { e.rotate(-90, QPoint(0, 0)); }, "8,-4 pt20");
    row(
        "a number keeps its size", marker, [](auto &e) { e.scale(3, QPoint(0, 0)); }, "30,60 #12");
    row(
        "scale a stroke about its first point", stroke, [](auto &e) { e.scale(2, QPoint(1, 1)); },
        "1,1 7,5 -9,-7");
    row(
        "scale axes of a stroke", stroke, [](auto &e) { e.scaleAxes(1, 0.5, QPoint(0, 0)); },
        "1,1 4,2 -4,-2");
    row(
        "rotate a stroke", stroke, [](auto &e) { e.rotate(180, QPoint(0, 0)); }, "-1,-1 -4,-3 4,3");
    row(
        "an angle without a value", stroke, [](auto &e) { e.rotate(NAN, QPoint(0, 0)); },
        "1,1 4,3 -4,-3");
}

void TestDrawingElement::transforms()
{
    QFETCH(Make, make);
    QFETCH(Change, change);
    const ElementPtr element = make();
    const int width = element->penWidth;
    change(*element);
    QTEST(geometryOf(*element), "expected");
    QCOMPARE(element->penWidth, width);

    // What is painted follows the stored numbers, whatever was cached before.
    const ElementPtr copy = copyOf(element.get());
    if (auto *stroke = dynamic_cast<FreehandElement *>(copy.get()))
        stroke->path = {};
    const QSize size(120, 120);
    QCOMPARE(samples::painted(*element, size, QPoint(-30, -30)),
        samples::painted(*copy, size, QPoint(-30, -30)));
}

void TestDrawingElement::bounds_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QRect>("expected");
    const auto row = [](const char *name, Make make, const QRect &expected) {
        QTest::newRow(name) << make << expected;
    };
    row(
        "line, odd width", [] { return shape<LineElement>(QPoint(30, 5), QPoint(10, 25), 5); },
        QRect(8, 3, 25, 25));
    row(
        "rectangle", [] { return shape<RectangleElement>(QPoint(0, 0), QPoint(10, 20), 4); },
        QRect(-2, -2, 14, 24));
    row(
        "circle, odd width", [] { return circle(QPoint(50, 60), 20, 5); }, QRect(28, 38, 44, 44));
    row(
        "thin arrow", [] { return shape<ArrowElement>(QPoint(0, 0), QPoint(40, 0), 7); },
        QRect(-18, -18, 76, 36));
    row(
        "wide arrow", [] { return shape<ArrowElement>(QPoint(0, 0), QPoint(40, 0), 8); },
        QRect(-20, -20, 80, 40));
    row(
        "number, odd width", [] { return number(QPoint(50, 50), 5); }, QRect(36, 36, 30, 30));
    row(
        "stroke",
        [] {
            return drawn({ QPoint(5, 9), QPoint(-5, 1), QPoint(0, 4) }, 5);
        },
        QRect(-7, -1, 15, 13));
    row(
        "empty stroke", [] { return drawn({}, 5); }, QRect());
    row(
        "empty text", [] { return text(QPoint(20, 30), QString(), 20); }, QRect(15, 25, 10, 10));
}

void TestDrawingElement::bounds()
{
    QFETCH(Make, make);
    QTEST(make()->boundingRect(), "expected");
}

void TestDrawingElement::hits_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<int>("tolerance");
    QTest::addColumn<QList<QPoint>>("inside");
    QTest::addColumn<QList<QPoint>>("outside");
    using Points = QList<QPoint>;
    const auto row = [](const char *name, Make make, int tolerance, const Points &inside,
                         const Points &outside) {
        QTest::newRow(name) << make << tolerance << inside << outside;
    };
    row("line", [] { return shape<LineElement>(QPoint(0, 0), QPoint(100, 0), 2); }, 10,
        { { 50, 12 }, { -12, 0 }, { 112, 0 } }, { { 50, 13 }, { -13, 0 }, { 109, 9 } });
    row("a slanted line runs ahead",
        [] {
            return shape<LineElement>({ 0, 0 }, { 1, 1 }, 1);
        },
        0, { { 1, 1 }, { 2, 1 } }, { { 2, 2 }, { 0, -2 } });
    row("line without length", [] { return shape<LineElement>(QPoint(5, 5), QPoint(5, 5), 9); },
        100, {}, { { 5, 5 } });
    row("rectangle, whatever its width",
        [] { return shape<RectangleElement>(QPoint(100, 80), QPoint(0, 0), 20); }, 3,
        { { -3, -3 }, { 50, 3 }, { 50, 77 }, { 103, 83 }, { 97, 40 } },
        { { 50, 40 }, { -4, 0 }, { 50, 4 }, { 50, 84 }, { 96, 40 } });
    row("circle", [] { return circle(QPoint(0, 0), 50, 4); }, 3,
        { { 57, 0 }, { 0, -43 }, { 30, 40 } }, { { 58, 0 }, { 0, 42 }, { 0, 0 } });
    row("small circle", [] { return circle(QPoint(0, 0), 5, 4); }, 3, { { 0, 0 }, { 12, 0 } },
        { { 13, 0 } });
    row("arrow head beside its shaft",
        [] { return shape<ArrowElement>(QPoint(0, 0), QPoint(100, 0), 1); }, 0,
        { { 86, 6 }, { 100, 0 }, { 50, 1 }, { 85, 7 }, { 100, 0 } },
        { { 86, 8 }, { 82, 1 }, { 82, 0 }, { 98, 3 }, { 80, 2 } });
    row("arrow head with tolerance",
        [] { return shape<ArrowElement>(QPoint(0, 0), QPoint(100, 0), 8); }, 2,
        { { 82, 0 }, { 84, 10 }, { 101, 0 } }, { { 81, 0 }, { 84, 11 }, { 111, 0 } });
    row("arrow without length",
        [] {
            return shape<ArrowElement>({ 5, 5 }, { 5, 5 }, 9);
        },
        100, {}, { { 5, 5 } });
    row("number is a disc", [] { return number(QPoint(50, 50), 40); }, 2,
        { { 50, 50 }, { 64, 50 }, { 50, 36 } }, { { 65, 50 }, { 60, 60 } });
    row("stroke not painted yet",
        [] {
            return samples::freehand({ { 0, 0 }, { 40, 0 } }, { Qt::red, 4, 1.0 });
        },
        2, { { 6, 0 }, { 40, -6 } }, { { 7, 0 }, { 20, 0 } });
    row("stroke",
        [] {
            return drawn({ { 0, 0 }, { 40, 0 } }, 4);
        },
        2, { { 20, 0 }, { 20, 3 }, { 20, -3 } }, { { 20, 5 }, { 20, -5 }, { 46, 0 } });
    row("inside of a bend",
        [] {
            return drawn({ { 0, 0 }, { 40, 0 }, { 40, 40 } }, 2);
        },
        1, { { 39, 20 } }, { { 30, 10 } });
    row("dot", [] { return drawn({ { 3, 3 } }, 4); }, 2, { { 9, 3 } }, { { 10, 3 }, { 8, 8 } });
    row("empty stroke", [] { return drawn({}, 4); }, 100, {}, { { 0, 0 } });
    row("empty text", [] { return text(QPoint(20, 30), QString(), 20); }, 2,
        { { 13, 23 }, { 26, 36 } }, { { 12, 30 }, { 27, 30 }, { 20, 37 }, { 20, 22 } });
}

void TestDrawingElement::hits()
{
    QFETCH(Make, make);
    QFETCH(int, tolerance);
    QFETCH(QList<QPoint>, inside);
    QFETCH(QList<QPoint>, outside);
    const ElementPtr element = make();
    const auto complaint = [](const QPoint &p, const char *what) {
        return QStringLiteral("%1,%2 is %3")
            .arg(p.x())
            .arg(p.y())
            .arg(QLatin1String(what))
            .toUtf8();
    };
    for (const QPoint &p : inside)
        QVERIFY2(element->contains(p, tolerance), complaint(p, "missed"));
    for (const QPoint &p : outside)
        QVERIFY2(!element->contains(p, tolerance), complaint(p, "hit"));
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
