// What the canvas takes for what people do on it. Every measured step ends with the frame that
// shows it, as far as the canvas paints it.

#include "bench/boards.h"
#include "bench/goaltable.h"
#include "canvas/fadeeffect.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QTimer>

#include <iostream>

namespace
{

constexpr int kLongStroke = 5000;
constexpr int kStretch = 100; ///< moves that are timed together

/// A stroke that keeps to itself, so that late and early moves meet as much of it.
QPoint spiral(int sample)
{
    const int row = sample / 170;
    const int column = sample % 170;
    return { 100 + (row % 2 ? 169 - column : column) * 10, 100 + row * 29 };
}

/// The time of one move of a stroke that already has so many points.
void moveAfter(benchmark::State &state, int pointsBefore)
{
    while (state.KeepRunning()) {
        state.PauseTiming();
        const auto canvas = boards::withStrokes(0);
        canvas->beginPaint(spiral(0));
        int sample = 0;
        while (sample < pointsBefore)
            canvas->movePaint(spiral(sample++), false);
        boards::showFrame(*canvas);
        state.ResumeTiming();
        for (int i = 0; i < kStretch; ++i) {
            canvas->movePaint(spiral(sample++), false);
            boards::showFrame(*canvas);
        }
    }
    state.SetItemsProcessed(state.iterations() * kStretch);
}

void moveEarly(benchmark::State &state)
{
    moveAfter(state, kStretch);
}

void moveLate(benchmark::State &state)
{
    moveAfter(state, kLongStroke - kStretch);
}

/// One stroke's moves on a board of so many.
void movesOn(benchmark::State &state, int marks)
{
    const auto canvas = boards::withStrokes(marks);
    const QList<QPoint> points = boards::strokePoints(424242, kStretch);
    while (state.KeepRunning()) {
        canvas->beginPaint(points.first());
        for (const QPoint &point : points) {
            canvas->movePaint(point, false);
            boards::showFrame(*canvas);
        }
        state.PauseTiming();
        canvas->undo();
        boards::showFrame(*canvas);
        state.ResumeTiming();
    }
}

void moveOnEmpty(benchmark::State &state)
{
    movesOn(state, 0);
}

void moveOn100(benchmark::State &state)
{
    movesOn(state, 100);
}

void moveOn1000(benchmark::State &state)
{
    movesOn(state, 1000);
}

/// As long as it takes `moveOn100` to make its moves, so that both compare.
void fullRepaint100(benchmark::State &state)
{
    const auto canvas = boards::withStrokes(100);
    while (state.KeepRunning()) {
        for (int i = 0; i < kStretch; ++i) {
            canvas->forceUpdateImage();
            boards::showFrame(*canvas);
        }
    }
}

QPoint middleOf(int stroke)
{
    return boards::strokePoints(static_cast<quint32>(stroke)).at(50);
}

void selectAt1000(benchmark::State &state)
{
    const auto canvas = boards::withStrokes(1000);
    int i = 0;
    while (state.KeepRunning()) {
        i = (i + 71) % 1000;
        benchmark::DoNotOptimize(canvas->selectElementAt(middleOf(i) + QPoint(i % 40, i % 30)));
    }
}

/// One step of an eraser's gesture: the first, which removes the mark beneath it, or one on from
/// it.
void eraserSteps(benchmark::State &state, bool first)
{
    const auto canvas = boards::withStrokes(1000);
    canvas->setIsEraserMode(true);
    int i = 0;
    while (state.KeepRunning()) {
        state.PauseTiming();
        i = (i + 71) % 1000;
        canvas->beginPaint(middleOf(i));
        if (!first)
            canvas->movePaint(middleOf(i), false);
        boards::showFrame(*canvas);
        state.ResumeTiming();
        canvas->movePaint(first ? middleOf(i) : middleOf(i) + QPoint(9, 5), false);
        boards::showFrame(*canvas);
        state.PauseTiming();
        while (canvas->document().history.undoEntries().back().kind != HistoryEntry::Add)
            canvas->undo();
        boards::showFrame(*canvas);
        state.ResumeTiming();
    }
}

void eraserFirstStep1000(benchmark::State &state)
{
    eraserSteps(state, true);
}

void eraserStep1000(benchmark::State &state)
{
    eraserSteps(state, false);
}

void undo1000(benchmark::State &state)
{
    const auto canvas = boards::withStrokes(1000);
    while (state.KeepRunning()) {
        canvas->undo();
        boards::showFrame(*canvas);
        state.PauseTiming();
        canvas->redo();
        boards::showFrame(*canvas);
        state.ResumeTiming();
    }
}

void redo1000(benchmark::State &state)
{
    const auto canvas = boards::withStrokes(1000);
    while (state.KeepRunning()) {
        state.PauseTiming();
        canvas->undo();
        boards::showFrame(*canvas);
        state.ResumeTiming();
        canvas->redo();
        boards::showFrame(*canvas);
    }
}

void delete1000(benchmark::State &state)
{
    const auto canvas = boards::withStrokes(1000);
    int i = 0;
    while (state.KeepRunning()) {
        i = (i + 71) % 1000;
        canvas->deleteElement(middleOf(i));
        boards::showFrame(*canvas);
        state.PauseTiming();
        canvas->undo();
        boards::showFrame(*canvas);
        state.ResumeTiming();
    }
}

void tick(MyPainter &canvas, bool fades)
{
    for (QTimer *timer : canvas.findChildren<QTimer *>()) {
        const bool ofFade = qobject_cast<FadeEffect *>(timer->parent()) != nullptr;
        if (timer->isActive() && ofFade == fades)
            QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
    }
    boards::showFrame(canvas);
}

void breathingTick1000(benchmark::State &state)
{
    const auto canvas = boards::withStrokes(1000);
    canvas->repeatDraw(3000);
    while (state.KeepRunning())
        tick(*canvas, false);
}

void fadeTick1000(benchmark::State &state)
{
    const auto canvas = boards::withStrokes(1000);
    int done = FadeEffect::kSteps;
    while (state.KeepRunning()) {
        if (done >= FadeEffect::kSteps - 1) {
            state.PauseTiming();
            if (done == FadeEffect::kSteps - 1) {
                tick(*canvas, true);
                boards::draw(*canvas, boards::strokePoints(7)); // the board stays as full
            }
            canvas->undoGradient();
            done = 0;
            state.ResumeTiming();
        }
        tick(*canvas, true);
        ++done;
    }
}

/// As people wait for it: some of Qt's painting is done by other threads.
void waitedFor(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Unit(benchmark::kMicrosecond)->UseRealTime()->Repetitions(3)->ReportAggregatesOnly();
}

} // namespace

BENCHMARK(moveEarly)->Apply(waitedFor);
BENCHMARK(moveLate)->Apply(waitedFor)->Iterations(10);
BENCHMARK(moveOnEmpty)->Apply(waitedFor);
BENCHMARK(moveOn100)->Apply(waitedFor);
BENCHMARK(moveOn1000)->Apply(waitedFor);
BENCHMARK(fullRepaint100)->Apply(waitedFor)->Iterations(1);
BENCHMARK(selectAt1000)->Apply(waitedFor);
BENCHMARK(eraserFirstStep1000)->Apply(waitedFor);
BENCHMARK(eraserStep1000)->Apply(waitedFor);
BENCHMARK(undo1000)->Apply(waitedFor);
BENCHMARK(redo1000)->Apply(waitedFor);
BENCHMARK(delete1000)->Apply(waitedFor);
BENCHMARK(breathingTick1000)->Apply(waitedFor);
BENCHMARK(fadeTick1000)->Apply(waitedFor);

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    GoalTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    table.print(std::cout);
    return 0;
}
