#include "tests/elements/samples.h"

#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

namespace
{
constexpr QSize kCanvas(1800, 1800);
constexpr QPoint kOrigin(-900, -900);

/// The rectangle around every pixel that is not fully transparent, in the element's space.
QRect touched(const QImage &image)
{
    QRect area;
    for (int y = 0; y < image.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        const auto *end = row + image.width();
        const auto isInk = [](QRgb pixel) { return pixel != 0; };
        const auto *first = std::find_if(row, end, isInk);
        if (first == end)
            continue;
        const auto *last =
            std::find_if(std::reverse_iterator(end), std::reverse_iterator(row), isInk).base();
        area |= QRect(QPoint(int(first - row), y), QPoint(int(last - row) - 1, y));
    }
    const double ratio = image.devicePixelRatio();
    const QRectF logical(
        area.x() / ratio, area.y() / ratio, area.width() / ratio, area.height() / ratio);
    return area.isEmpty() ? QRect() : logical.toAlignedRect().translated(kOrigin);
}

/// Complains about ink outside of the painted rectangle, and about one that is needlessly large.
void compareWithInk(const DrawingElement &element, int slack, double magnification = 1.0)
{
    const QRect ink = touched(samples::painted(element, kCanvas, kOrigin, magnification));
    QRect pieces;
    for (const QRect &piece : element.paintedPieces())
        pieces |= piece;
    QVERIFY2(pieces.contains(ink), "the pieces leave ink out");
    const QRect promised = element.paintedRect();
    const QRect sensible = ink.adjusted(-slack, -slack, slack, slack);
    QString report;
    QDebug(&report) << "kind" << element.type << "promised" << promised << "ink" << ink;
    QVERIFY2(!ink.isEmpty(), "nothing was painted");
    QVERIFY2(promised.contains(ink), qPrintable(report));
    if (QRect(kOrigin, kCanvas).contains(promised))
        QVERIFY2(sensible.contains(promised), qPrintable(report));
}
} // namespace

/// A canvas repaints only what changed, so ink outside of `paintedRect` would stay behind.
class TestPaintedRect : public QObject
{
    Q_OBJECT

private slots:
    void outlines();
    void texts();
    void numbers();
};

void TestPaintedRect::outlines()
{
    for (const int width : { 0, 1, 2, 5, 8, 13, 40, 500 }) {
        QRandomGenerator random(static_cast<quint32>(width) + 1);
        const samples::Pen pen{ Qt::red, width, 0.4 };
        const auto somewhere = [&] {
            return QPoint(random.bounded(-250, 250), random.bounded(-250, 250));
        };
        for (const DrawingElement::Kind kind : samples::kAllKinds) {
            if (kind == DrawingElement::Text)
                continue;
            // A smoothed stroke stays inside its corners by up to half of a segment.
            const int slack = kind == DrawingElement::Freehand ? 250 : 5;
            for (int i = 0; i < 8; ++i)
                compareWithInk(
                    *samples::make(kind, somewhere(), somewhere(), pen), slack, i == 0 ? 1.5 : 1.0);
        }
        compareWithInk(*samples::freehand({ somewhere() }, pen), 5);
        QList<QPoint> scribble(60);
        std::generate(scribble.begin(), scribble.end(), somewhere);
        const ElementPtr tangle = samples::freehand(scribble, pen);
        const QRect unpainted = tangle->paintedRect();
        compareWithInk(*tangle, 100);
        QVERIFY(unpainted.contains(tangle->paintedRect()));
    }
    QVERIFY(samples::freehand({}, {})->paintedRect().isEmpty());
}

void TestPaintedRect::texts()
{
    for (const char *text :
        { "jWAVf/", "\nj\n\nQg\n", "标注工具，重要！\n龘", "Z̴̡̛̖̗͍͎̓̈́͋͆̚͝ą̵̧̛̞̟̙̂̃̄̉̆̊̌x̷̢̡̛̛̰̩̜̀̈́̑͗̚", "ỂẪỘỚ", "سلام ﷺ ﷽",
            "abc שלום fj 12", "👩‍👩‍👧‍👦 ✏️ ⭐", "𝑓𝑗𝒻", "a\tj\t/" }) {
        for (const int size : { 1, 6, 11, 18, 33, 48, 49, 72, 150 }) {
            const TextElement element(QPoint(-600, -300), text, size, Qt::red, 5, 1.0);
            for (const double magnification : { 1.0, 1.5 })
                compareWithInk(element, 8 + element.boundingRect().height(), magnification);
        }
    }
    // What people select is what they see: stacked marks aside, no ink lies outside of the frame.
    for (const char *text : { "jWAVf/", "\nj\n\nQg\n", "标注工具，重要！\n龘", "abc שלום fj 12" }) {
        for (const int size : { 6, 11, 18, 33, 48 }) {
            const TextElement element(QPoint(-600, -300), text, size, Qt::red, 5, 1.0);
            const QRect ink = touched(samples::painted(element, kCanvas, kOrigin, 1.0));
            QVERIFY2(element.boundingRect().contains(ink), text);
        }
    }
    QVERIFY(TextElement(QPoint(9, 9), QString(), 20, Qt::red, 5, 1.0).paintedRect().isEmpty());
}

void TestPaintedRect::numbers()
{
    for (const int number : { -7, 1, 99, 100, 1000, 2147483647 })
        compareWithInk(NumberedCircleElement(QPoint(3, 4), number, Qt::red, 2, 1.0), 8);
}

QTEST_MAIN(TestPaintedRect)
#include "tst_paintedrect.moc"
