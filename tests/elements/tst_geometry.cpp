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
    void scales_data();
    void scales();
    void rotates_data();
    void rotates();
    void lengthsAreCutOff();
    void rectanglesBeyondIntKeepTheirCentre();
};

void TestGeometry::scales_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QPointF>("factors");
    QTest::addColumn<QPoint>("center");
    QTest::addColumn<QPoint>("expected");

    QTest::newRow("half up, away from zero")
        << QPoint(5, -5) << QPointF(0.5, 0.5) << QPoint() << QPoint(3, -3);
    QTest::newRow("the sum is rounded")
        << QPoint(-5, -6) << QPointF(0.5, 0.5) << QPoint(-6, -5) << QPoint(-6, -6);
    QTest::newRow("axes apart") << QPoint(10, 10) << QPointF(2, 0.5) << QPoint(5, 5)
                                << QPoint(15, 8);
    QTest::newRow("huge") << QPoint(1 << 30, -(1 << 30)) << QPointF(1e9, 1e9) << QPoint()
                          << QPoint(kIntMax, kIntMin);
    QTest::newRow("tiny") << QPoint(1 << 30, -(1 << 30)) << QPointF(1e-9, 1e-9) << QPoint(7, 7)
                          << QPoint(8, 6);
    QTest::newRow("not a number") << QPoint(3, 4) << QPointF(kNan, 2) << QPoint() << QPoint(3, 4);
    QTest::newRow("endless") << QPoint(3, 4) << QPointF(2, kInfinity) << QPoint(3, 4)
                             << QPoint(3, 4);
}

void TestGeometry::scales()
{
    QFETCH(QPoint, point);
    QFETCH(QPointF, factors);
    QFETCH(QPoint, center);
    QTEST(geometry::scaled(point, factors.x(), factors.y(), center), "expected");
}

void TestGeometry::rotates_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<double>("angle");
    QTest::addColumn<QPoint>("center");
    QTest::addColumn<QPoint>("expected");

    QTest::newRow("clockwise") << QPoint(17, 9) << 90.0 << QPoint(7, 9) << QPoint(7, 19);
    QTest::newRow("back") << QPoint(7, 19) << -90.0 << QPoint(7, 9) << QPoint(17, 9);
    QTest::newRow("corner up") << QPoint(0, 0) << 45.0 << QPoint(5, 5) << QPoint(5, -2);
    QTest::newRow("corner down") << QPoint(10, 10) << 45.0 << QPoint(5, 5) << QPoint(5, 12);
    QTest::newRow("far away") << QPoint(kIntMax, kIntMax) << 135.0 << QPoint()
                              << QPoint(kIntMin, 0);
    QTest::newRow("not a number") << QPoint(1, 2) << kNan << QPoint() << QPoint(1, 2);
}

void TestGeometry::rotates()
{
    QFETCH(QPoint, point);
    QFETCH(double, angle);
    QFETCH(QPoint, center);
    QTEST(geometry::rotated(point, angle, center), "expected");
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
