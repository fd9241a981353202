#include "elements/geometry.h"

#include <QTest>

#include <cmath>
#include <limits>

namespace
{
constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
} // namespace

class TestGeometry : public QObject
{
    Q_OBJECT

private slots:
    void scales();
    void rotates();
    void lengthsAreCutOff();
    void rectanglesBeyondIntKeepTheirCentre();
};

void TestGeometry::scales()
{
    const auto scaled = [](const QPoint &point, double factorX, double factorY,
                            const QPoint &center = {}) {
        return geometry::scaled(point, factorX, factorY, center);
    };
    // Halves go away from zero, and it is the sum that is rounded.
    QCOMPARE(scaled({ 5, -5 }, 0.5, 0.5), QPoint(3, -3));
    QCOMPARE(scaled({ -5, -6 }, 0.5, 0.5, { -6, -5 }), QPoint(-6, -6));
    QCOMPARE(scaled({ 10, 10 }, 2, 0.5, { 5, 5 }), QPoint(15, 8));
    const QPoint far(1 << 30, -(1 << 30));
    QCOMPARE(scaled(far, 1e9, 1e9), QPoint(kIntMax, kIntMin));
    QCOMPARE(scaled(far, 1e-9, 1e-9, { 7, 7 }), QPoint(8, 6));
    QCOMPARE(scaled({ 3, 4 }, kNan, 2), QPoint(3, 4));
    QCOMPARE(scaled({ 3, 4 }, 2, kInfinity, { 3, 4 }), QPoint(3, 4));
}

void TestGeometry::rotates()
{
    QCOMPARE(geometry::rotated({ 17, 9 }, 90, { 7, 9 }), QPoint(7, 19)); // clockwise
    QCOMPARE(geometry::rotated({ 7, 19 }, -90, { 7, 9 }), QPoint(17, 9));
    QCOMPARE(geometry::rotated({ 0, 0 }, 45, { 5, 5 }), QPoint(5, -2));
    QCOMPARE(geometry::rotated({ 10, 10 }, 45, { 5, 5 }), QPoint(5, 12));
    QCOMPARE(geometry::rotated({ kIntMax, kIntMax }, 135, {}), QPoint(kIntMin, 0));
    QCOMPARE(geometry::rotated({ 1, 2 }, kNan, {}), QPoint(1, 2));
}

void TestGeometry::lengthsAreCutOff()
{
    QCOMPARE(geometry::scaledLength(5, 0.5), 2);
    QCOMPARE(geometry::scaledLength(3, 1.5), 4);
    QCOMPARE(geometry::scaledLength(20, 0.55), 11);
    QCOMPARE(geometry::scaledLength(500, 1e9), kIntMax);
    QCOMPARE(geometry::scaledLength(500, kNan), 500);
}

void TestGeometry::rectanglesBeyondIntKeepTheirCentre()
{
    QCOMPARE(geometry::saturatedRect(-3, 4, 10, 0), QRect(-3, 4, 10, 0));

    const qint64 far = qint64(1) << 30;
    const QRect huge =
        geometry::saturatedRect(-far - 250, -far - 250, 2 * far + 500, 2 * far + 500);
    QCOMPARE(huge.width(), kIntMax);
    QVERIFY(std::abs(huge.center().x()) <= 1);
    QVERIFY(std::abs(huge.center().y()) <= 1);

    const QRect beyond = geometry::saturatedRect(kIntMax, kIntMin, 100, 100);
    QCOMPARE(beyond.right(), kIntMax);
    QCOMPARE(beyond.top(), kIntMin);
    QCOMPARE(geometry::grown(huge, 20).width(), kIntMax);
}

QTEST_APPLESS_MAIN(TestGeometry)
#include "tst_geometry.moc"
