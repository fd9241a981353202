#include "bench/boards.h"

#include <QRandomGenerator>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double kStepPx = 5.0;
constexpr double kTurn = 0.35; ///< radians at most, from one sample to the next

} // namespace

QList<QPoint> boards::strokePoints(quint32 number, int samples)
{
    QRandomGenerator random(number + 1);
    QPointF pos(random.bounded(kFullHd.width()), random.bounded(kFullHd.height()));
    double direction = random.bounded(6.28);
    double turn = 0;
    QList<QPoint> points;
    for (int i = 0; i < samples; ++i) {
        points.append(pos.toPoint());
        turn = std::clamp(turn + (random.generateDouble() - 0.5) * kTurn / 2, -kTurn, kTurn);
        direction += turn;
        pos += QPointF(std::cos(direction), std::sin(direction)) * kStepPx;
        pos.setX(std::clamp(pos.x(), 0.0, kFullHd.width() - 1.0));
        pos.setY(std::clamp(pos.y(), 0.0, kFullHd.height() - 1.0));
    }
    return points;
}

void boards::draw(MyPainter &canvas, const QList<QPoint> &points)
{
    canvas.beginPaint(points.first());
    for (const QPoint &point : points)
        canvas.movePaint(point, false);
    canvas.endPaint(points.last(), false);
}

std::unique_ptr<MyPainter> boards::withStrokes(int count)
{
    auto canvas = std::make_unique<MyPainter>();
    canvas->setSize(kFullHd);
    for (int i = 0; i < count; ++i) {
        canvas->setPenColor(QColor::fromHsv(i * 37 % 360, 200, 230));
        canvas->setPenOpacity(i % 4 == 0 ? 0.4 : 1.0);
        draw(*canvas, strokePoints(static_cast<quint32>(i)));
        showFrame(*canvas);
    }
    return canvas;
}

void boards::showFrame(MyPainter &canvas)
{
    static_cast<void>(canvas.cachedPicture());
}
