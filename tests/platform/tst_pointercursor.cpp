#include "platform/overlay/pointercursor.h"

#include "platform/overlay/cursorscale.h"

#include <QPixmap>
#include <QTest>

/// The pictures that follow the pointer while people draw.
class TestPointerCursor : public QObject
{
    Q_OBJECT

private slots:
    void thePictureHasItsSizeAndPlaceAtEveryScale_data();
    void thePictureHasItsSizeAndPlaceAtEveryScale();
    void withoutAPictureThereIsStillACursor();
};

void TestPointerCursor::thePictureHasItsSizeAndPlaceAtEveryScale_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QPointF>("offset");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QPointF>("hotSpot"); // in logical pixels
    for (const qreal ratio : { 1.0, 1.5, 2.0, 2.5, 4.0 }) {
        QTest::addRow("eraser at %g", ratio)
            << QStringLiteral(":/icons/erase.png") << QPointF(0, 0) << ratio << QPointF(16, 16);
        QTest::addRow("pen at %g", ratio) << QStringLiteral(":/icons/penmodel.png")
                                          << QPointF(10, -10) << ratio << QPointF(6, 26);
    }
}

void TestPointerCursor::thePictureHasItsSizeAndPlaceAtEveryScale()
{
    QFETCH(QString, path);
    QFETCH(QPointF, offset);
    QFETCH(qreal, ratio);
    QFETCH(QPointF, hotSpot);
    const QCursor cursor = PointerCursor::pictureCursor(path, 32, offset, ratio);
    const QPixmap picture = cursor.pixmap();
    QCOMPARE(picture.size(), QSize(32, 32) * ratio);
    QCOMPARE(picture.devicePixelRatio(), ratio);
    QCOMPARE(cursor.hotSpot(), (hotSpot * cursorHotSpotScale(ratio)).toPoint());
}

void TestPointerCursor::withoutAPictureThereIsStillACursor()
{
    const QCursor cursor =
        PointerCursor::pictureCursor(QStringLiteral(":/nosuch.png"), 32, QPointF(), 1.0);
    QCOMPARE(cursor.shape(), Qt::CrossCursor);
}

QTEST_MAIN(TestPointerCursor)
#include "tst_pointercursor.moc"
