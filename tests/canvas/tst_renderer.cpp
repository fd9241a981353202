#include "canvas/elementlist.h"
#include "canvas/renderer.h"
#include "elements/arrowelement.h"
#include "elements/circleelement.h"
#include "elements/freehandelement.h"
#include "elements/lineelement.h"
#include "elements/numberedcircleelement.h"
#include "elements/textelement.h"
#include "tests/canvas/common/referencepainter.h"

#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QTest>

namespace
{

constexpr QSize kSize(120, 90);

/// A line that counts how often it is painted.
class CountingLine : public LineElement
{
public:
    using LineElement::LineElement;
    void paint(QPainter *painter) const override
    {
        ++timesPainted;
        LineElement::paint(painter);
    }
    mutable int timesPainted = 0;
};

ElementPtr randomMark(QRandomGenerator &random)
{
    const auto point = [&] { return QPoint(random.bounded(-10, 130), random.bounded(-10, 100)); };
    const QColor color = QColor::fromHsv(random.bounded(360), 255, 255, random.bounded(40, 256));
    const int width = random.bounded(12);
    switch (random.bounded(5)) {
    case 0: {
        auto stroke = std::make_unique<FreehandElement>(color, width, 1.0);
        stroke->points = { point(), point(), point(), point(), point() };
        return stroke;
    }
    case 1:
        return std::make_unique<CircleElement>(point(), random.bounded(40), color, width, 0.7);
    case 2:
        return std::make_unique<TextElement>(point(), "Ag 标注", 13, color, width, 1.0);
    case 3:
        return std::make_unique<NumberedCircleElement>(point(), 12, color, width, 1.0);
    default:
        return std::make_unique<ArrowElement>(point(), point(), color, width, 1.0);
    }
}

} // namespace

class TestRenderer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false")); }
    void isNullUntilSomethingChanges();
    void partialRepaintsAreExact_data();
    void partialRepaintsAreExact();
    void repaintsOncePerFrameAndOnlyWhatIsTouched();
    void resizeKeepsTheOldPicture_data();
    void resizeKeepsTheOldPicture();
};

void TestRenderer::isNullUntilSomethingChanges()
{
    const ElementList elements;
    Renderer renderer(elements);
    QVERIFY(renderer.picture().isNull());
    renderer.contentChanged(QRect(), 0, kSize);
    QCOMPARE(renderer.picture(), referencePicture(elements, kSize));
    QCOMPARE(renderer.picture().format(), QImage::Format_ARGB32);
    renderer.contentChanged(QRect(), 0, QSize(0, 90));
    QVERIFY(renderer.picture().isNull());
}

void TestRenderer::partialRepaintsAreExact_data()
{
    QTest::addColumn<double>("ratio");
    for (const double ratio : { 1.0, 1.25, 1.5, 1.75, 2.0 })
        QTest::addRow("%g", ratio) << ratio;
}

void TestRenderer::partialRepaintsAreExact()
{
    QFETCH(double, ratio);
    QRandomGenerator random(7);
    ElementList elements;
    Renderer renderer(elements);
    renderer.setDevicePixelRatio(ratio);
    renderer.rebuild(kSize);
    for (int i = 0; i < 200; ++i) {
        Damage damage;
        int lowest = elements.size();
        if (elements.size() > 6) {
            lowest = 3;
            damage.add(*elements.at(lowest));
            static_cast<void>(elements.take(lowest));
        } else if (lowest > 0 && random.bounded(3) > 0) {
            DrawingElement &topmost = *elements.at(--lowest);
            damage.add(topmost);
            topmost.move(QPoint(random.bounded(-9, 10), random.bounded(-9, 10)));
            damage.add(topmost);
        } else {
            damage.add(*elements.append(randomMark(random)));
        }
        renderer.contentChanged(damage, lowest, kSize);
        QCOMPARE(renderer.picture(), referencePicture(elements, kSize, ratio));
    }
}

void TestRenderer::repaintsOncePerFrameAndOnlyWhatIsTouched()
{
    ElementList elements;
    const auto add = [&](int y) {
        auto line = std::make_unique<CountingLine>(QPoint(10, y), QPoint(90, y), Qt::red, 3, 1.0);
        return dynamic_cast<CountingLine *>(elements.append(std::move(line)));
    };
    const CountingLine *low = add(20);
    const CountingLine *high = add(70);
    Renderer renderer(elements);
    renderer.rebuild(kSize);
    renderer.contentChanged(low->paintedRect(), 0, kSize);
    static_cast<void>(renderer.picture());
    for (int i = 0; i < 5; ++i)
        renderer.contentChanged(low->paintedRect(), 0, kSize);
    static_cast<void>(renderer.picture());
    static_cast<void>(renderer.picture());
    QCOMPARE(low->timesPainted, 2);
    QCOMPARE(high->timesPainted, 1);
}

void TestRenderer::resizeKeepsTheOldPicture_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QSize>("size");
    for (const double ratio : { 1.0, 1.5 }) {
        QTest::addRow("larger, %g", ratio) << ratio << QSize(140, 100);
        QTest::addRow("smaller, %g", ratio) << ratio << QSize(60, 30);
        QTest::addRow("nothing, %g", ratio) << ratio << QSize(0, 30);
    }
}

void TestRenderer::resizeKeepsTheOldPicture()
{
    QFETCH(double, ratio);
    QFETCH(QSize, size);
    ElementList elements;
    elements.append(
        std::make_unique<LineElement>(QPoint(10, 10), QPoint(200, 150), Qt::red, 7, 0.3));
    Renderer renderer(elements);
    renderer.setDevicePixelRatio(ratio);
    renderer.rebuild(kSize);
    const QImage old = renderer.picture();
    const QImage blank = referencePicture(ElementList(), size, ratio);
    renderer.resize(size);
    QCOMPARE(renderer.picture(), size.isEmpty() ? QImage() : old.copy(blank.rect()));
    renderer.contentChanged(QRect(), 0, size);
    QCOMPARE(renderer.picture(), referencePicture(elements, size, ratio));
}

QTEST_MAIN(TestRenderer)
#include "tst_renderer.moc"
