#include "platform/overlay/pointercursor.h"

#include "platform/overlay/cursorscale.h"

#include <QPixmap>
#include <QTest>

/// The pictures that follow the pointer while people draw.
class TestPointerCursor : public QObject
{
    Q_OBJECT

private slots:
    void thePictureHasItsSizeAndPlaceAtEveryScale();
};

void TestPointerCursor::thePictureHasItsSizeAndPlaceAtEveryScale()
{
    struct Row {
        QString path;
        QPointF offset;
        QPointF hotSpot; // in logical pixels
    };
    for (const auto &[path, offset, hotSpot] : { Row{ ":/icons/erase.png", { 0, 0 }, { 16, 16 } },
             Row{ ":/icons/penmodel.png", { 10, -10 }, { 6, 26 } } }) {
        for (const qreal ratio : { 1.0, 1.5, 2.0, 2.5, 4.0 }) {
            const QCursor cursor = PointerCursor::pictureCursor(path, 32, offset, ratio);
            const QPixmap picture = cursor.pixmap();
            QCOMPARE(picture.size(), QSize(32, 32) * ratio);
            QCOMPARE(picture.devicePixelRatio(), ratio);
            QCOMPARE(cursor.hotSpot(), (hotSpot * cursorHotSpotScale(ratio)).toPoint());
        }
    }
    QCOMPARE(PointerCursor::pictureCursor(":/nosuch.png", 32, {}, 1.0).shape(), Qt::CrossCursor);
}

QTEST_MAIN(TestPointerCursor)
#include "tst_pointercursor.moc"
