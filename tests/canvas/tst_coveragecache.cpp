#include "canvas/coveragecache.h"
#include "elements/cloneelement.h"
#include "elements/freehandelement.h"
#include "elements/lineelement.h"
#include "elements/textelement.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <memory>
#include <vector>

namespace
{

constexpr QSize kSize(240, 180);
constexpr QRect kAll(QPoint(), kSize);

/// Leaves the canvas on all four sides now and then, as strokes do.
std::unique_ptr<FreehandElement> randomStroke(QRandomGenerator &random)
{
    const QColor color = QColor::fromRgb(random.generate());
    auto stroke = std::make_unique<FreehandElement>(
        color, random.bounded(2, 30), random.bounded(3) ? random.generateDouble() : 1.0);
    QPoint point(random.bounded(-20, 260), random.bounded(-20, 200));
    for (int i = 0; i < 25; ++i) {
        stroke->points.append(point);
        point += QPoint(random.bounded(-40, 41), random.bounded(-40, 41));
    }
    stroke->rebuildPath();
    return stroke;
}

/// Few points, and many pixels around them.
std::unique_ptr<FreehandElement> wideStroke()
{
    auto stroke = std::make_unique<FreehandElement>(Qt::red, 4, 1.0);
    stroke->points = { { 0, 0 }, { 239, 179 }, { 0, 179 }, { 239, 0 } };
    stroke->rebuildPath();
    return stroke;
}

void paintByItself(QImage &picture, const QRect &pixels, const DrawingElement &element)
{
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.resetTransform();
    painter.setClipRect(QRectF(QPointF(pixels.topLeft()) / picture.devicePixelRatio(),
        QSizeF(pixels.size()) / picture.devicePixelRatio()));
    copyOf(&element)->paint(&painter);
}

QImage emptyPicture(double ratio)
{
    QImage picture(kSize * ratio, QImage::Format_ARGB32);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    return picture;
}

/// Whether the cache paints the element when the next repaint comes.
bool isKept(CoverageCache &cache, const DrawingElement &element)
{
    QImage picture = emptyPicture(1.0);
    cache.beginRepaint(kSize, 1.0);
    return cache.paint(picture, kAll, element);
}

} // namespace

class TestCoverageCache : public QObject
{
    Q_OBJECT

private slots:
    void paintsAsTheMarkItself_data();
    void paintsAsTheMarkItself();
    void followsTheMark();
    void keepsPlainStrokesOnly();
    void limitsWhatOneRepaintTakes_data();
    void limitsWhatOneRepaintTakes();
    void finishedMarksAreReadyAtOnce();
};

void TestCoverageCache::paintsAsTheMarkItself_data()
{
    QTest::addColumn<double>("ratio");
    for (const double ratio : { 1.0, 1.25, 1.5, 1.7, 2.0 })
        QTest::addRow("%g", ratio) << ratio;
}

void TestCoverageCache::paintsAsTheMarkItself()
{
    QFETCH(double, ratio);
    QRandomGenerator random(11);
    CoverageCache cache;
    QImage expected = emptyPicture(ratio);
    // What glyphs leave behind is rounded otherwise than any stroke would leave it.
    const TextElement text(QPoint(20, 20), "Ag 标注 filled", 40, QColor(90, 180, 33, 130), 2, 0.3);
    paintByItself(expected, expected.rect(), text);
    QImage picture = expected;
    for (int i = 0; i < 60; ++i) {
        const auto stroke = randomStroke(random);
        for (int repaint = 0; repaint < 3; ++repaint) {
            const QRect pixels = QRect(random.bounded(200), random.bounded(150), 60, 50)
                & QRect(QPoint(), picture.size());
            cache.beginRepaint(picture.size(), ratio);
            const bool kept = cache.paint(picture, pixels, *stroke);
            QCOMPARE(kept, repaint > 0 && ratio != 1.7); // there shifting a shape rounds it
            if (!kept)
                paintByItself(picture, pixels, *stroke);
            paintByItself(expected, pixels, *stroke);
            QCOMPARE(picture, expected);
        }
    }
}

void TestCoverageCache::followsTheMark()
{
    QRandomGenerator random(5);
    const auto stroke = randomStroke(random);
    CoverageCache cache;
    const auto keepAndCompare = [&] {
        isKept(cache, *stroke);
        QVERIFY(isKept(cache, *stroke));
        QImage picture = emptyPicture(1.0);
        QImage expected = picture;
        QVERIFY(cache.paint(picture, kAll, *stroke));
        paintByItself(expected, kAll, *stroke);
        QCOMPARE(picture, expected);
    };
    keepAndCompare();
    stroke->move(QPoint(7, -3));
    keepAndCompare();
    stroke->penWidth += 4;
    keepAndCompare();
    stroke->replacePoints(stroke->points + QList<QPoint>{ QPoint(9, 9), QPoint(60, 70) });
    stroke->replacePoints(stroke->points + QList<QPoint>{ QPoint(90, 20) });
    keepAndCompare();
    stroke->color = Qt::green;
    stroke->opacity = 0.25;
    QVERIFY(isKept(cache, *stroke)); // the same pixels in another colour
    keepAndCompare();
    stroke->opacity = 0.0;
    keepAndCompare();
}

void TestCoverageCache::keepsPlainStrokesOnly()
{
    QRandomGenerator random(5);
    const auto keeps = [](const DrawingElement &element) {
        CoverageCache cache;
        isKept(cache, element);
        return isKept(cache, element);
    };
    const auto stroke = randomStroke(random);
    QVERIFY(keeps(*stroke));
    stroke->penWidth = 1;
    QVERIFY(!keeps(*stroke));
    stroke->penWidth = 5;
    stroke->isEraser = true;
    QVERIFY(!keeps(*stroke));
    QVERIFY(!keeps(LineElement(QPoint(9, 9), QPoint(80, 60), Qt::red, 3, 1.0)));
}

void TestCoverageCache::limitsWhatOneRepaintTakes_data()
{
    QTest::addColumn<bool>("wide");
    QTest::addRow("many points") << false;
    QTest::addRow("many pixels") << true;
}

void TestCoverageCache::limitsWhatOneRepaintTakes()
{
    QFETCH(bool, wide);
    QRandomGenerator random(5);
    std::vector<std::unique_ptr<FreehandElement>> strokes(100);
    std::generate(
        strokes.begin(), strokes.end(), [&] { return wide ? wideStroke() : randomStroke(random); });
    CoverageCache cache;
    QImage picture = emptyPicture(1.0);
    const auto keptAtNextRepaint = [&] {
        cache.beginRepaint(kSize, 1.0);
        return std::count_if(strokes.begin(), strokes.end(),
            [&](const auto &stroke) { return cache.paint(picture, kAll, *stroke); });
    };
    QCOMPARE(keptAtNextRepaint(), 0);
    const auto first = keptAtNextRepaint();
    QVERIFY(first > 0 && first < 100);
    for (int i = 0; i < 20; ++i)
        keptAtNextRepaint();
    QCOMPARE(keptAtNextRepaint(), 100);
}

void TestCoverageCache::finishedMarksAreReadyAtOnce()
{
    QRandomGenerator random(5);
    const auto stroke = randomStroke(random);
    CoverageCache cache;
    cache.beginRepaint(kSize, 1.0);
    cache.prepare(*stroke);
    QImage picture = emptyPicture(1.0);
    QVERIFY(cache.paint(picture, kAll, *stroke));
}

QTEST_MAIN(TestCoverageCache)
#include "tst_coveragecache.moc"
