#include "canvas/logtexts.h"
#include "tests/canvas/common/logrecorder.h"
#include "tests/canvas/common/signalrecorder.h"
#include "tests/canvas/common/testcanvas.h"

#include <QSignalSpy>
#include <QTest>

#include <cmath>

namespace
{

double opacity(const TestCanvas &canvas, int index)
{
    return canvas.elements().at(index)->opacity;
}

double wave(int step, int stepsPerPeriod, double most)
{
    const double phase = static_cast<double>(step % stepsPerPeriod) / stepsPerPeriod;
    return (std::cos(2 * phase * 3.141592653589793) + 1) * 0.5 * (most - 0.05) + 0.05;
}

/// A canvas with lines at these heights.
class LinedCanvas : public TestCanvas
{
public:
    explicit LinedCanvas(std::initializer_list<int> heights, double opacity = 1.0)
    {
        setPenOpacity(opacity);
        for (int y : heights)
            line(QPoint(10, y), QPoint(90, y));
    }
};

} // namespace

/// Fading and breathing, stepped without waiting.
class TestEffects : public QObject
{
    Q_OBJECT

private slots:
    void fadeNeedsHistory();
    void fadesTheOldestAway();
    void fadesTakeTurnsOnWhateverIsOldest();
    void breathPeriods();
    void breathFollowsTheNewest();
    void restartRestoresWhatItChose();
    void fewerThanTwoMarksDoNotBreathe();
};

void TestEffects::fadeNeedsHistory()
{
    TestCanvas canvas;
    const LogRecorder log;
    canvas.undoGradient();
    QCOMPARE(LogRecorder::take(), QStringList(CanvasLog::kNothingToUndo));
    canvas.setIsEraserMode(true);
    canvas.stroke({ QPoint(10, 10) });
    static_cast<void>(LogRecorder::take());
    canvas.undoGradient(); // history, but no mark
    QCOMPARE(LogRecorder::take(), QStringList("执行渐变撤销操作, 固定渐变时间 = 1000 ms"));
    QVERIFY(canvas.runningTimers().isEmpty());
}

void TestEffects::fadesTheOldestAway()
{
    LinedCanvas canvas({ 10, 20, 30 }, 0.8);
    const QString oldest = canvas.ids().first();
    canvas.undo();
    const LogRecorder log;
    canvas.undoGradient();
    QCOMPARE(LogRecorder::take().last(), "开始渐变消失，总步数: 20 原始透明度: 0.8");
    QCOMPARE(canvas.runningTimers().size(), 1);
    QCOMPARE(canvas.runningTimers().first()->interval(), 50);
    SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
    for (int step = 1; step < 20; ++step) {
        canvas.tick();
        QCOMPARE(opacity(canvas, 0), std::max((1.0 - step / 20.0) * 0.8, 0.01));
    }
    QVERIFY(recorder.take().isEmpty());
    canvas.tick();
    QCOMPARE(LogRecorder::take(), QStringList(CanvasLog::kFadeDone));
    QCOMPARE(recorder.take(), QStringList({ "canUndoChanged", "canRedoChanged" }));
    QVERIFY(canvas.runningTimers().isEmpty());
    QCOMPARE(canvas.elements().size(), 1);
    QCOMPARE(canvas.undoKinds(), "AAD");
    QVERIFY(canvas.canRedo()); // fading leaves what was undone
    canvas.undo();
    QCOMPARE(canvas.ids().last(), oldest);
    QCOMPARE(opacity(canvas, 1), 0.01);
    for (int i = 0; i < 25; ++i) { // limits the history
        canvas.line(QPoint(10, 90), QPoint(90, 90));
        canvas.undoGradient();
        canvas.tick(20);
    }
    QCOMPARE(canvas.history().undoEntries().size(), std::size_t(20));
}

void TestEffects::fadesTakeTurnsOnWhateverIsOldest()
{
    LinedCanvas canvas({ 10, 60 });
    const QString second = canvas.ids().last();
    canvas.undoGradient();
    canvas.tick(5);
    QVERIFY(canvas.deleteElement(QPoint(50, 10)));
    canvas.tick();
    QCOMPARE(opacity(canvas, 0), 0.7); // the next one goes on where the first was
    canvas.undoGradient();
    QCOMPARE(canvas.runningTimers().size(), 2);
    canvas.tick(14);
    QVERIFY(canvas.elements().isEmpty());
    QCOMPARE(canvas.history().undoEntries().back().elementId, second);
    canvas.tick();
    QVERIFY(canvas.runningTimers().isEmpty());
}

void TestEffects::breathPeriods()
{
    struct Row {
        int period;
        double penOpacity;
        int stepsPerPeriod;
        double most;
    };
    // A period of at most 100 ms counts as the usual one; a faint mark pulses up to full opacity.
    for (const auto &[period, penOpacity, stepsPerPeriod, most] :
        { Row{ 50, 1.0, 75, 1.0 }, Row{ 100, 0.8, 75, 0.8 }, Row{ 101, 0.3, 2, 1.0 },
            Row{ 1000, 0.5, 25, 1.0 }, Row{ -1, 1.0, 75, 1.0 } }) {
        LinedCanvas canvas({ 10, 60 }, penOpacity);
        const LogRecorder log;
        canvas.repeatDraw(period);
        QCOMPARE(LogRecorder::take(),
            QStringList(QStringLiteral("启动呼吸效果，周期: %1 ms, 目标元素索引: 1")
                            .arg(period > 100 ? period : 3000)));
        QVERIFY(!canvas.isBreath());
        QCOMPARE(canvas.runningTimers().first()->interval(), 40);
        const QSignalSpy reported(&canvas, &MyPainter::isBreathChanged);
        for (int step = 1; step <= 80; ++step) {
            canvas.tick();
            QCOMPARE(opacity(canvas, 1), wave(step, stepsPerPeriod, most));
            QCOMPARE(reported.size(), step);
        }
        QVERIFY(canvas.isBreath());
        QCOMPARE(opacity(canvas, 0), penOpacity);

        const double pulsing = opacity(canvas, 1);
        canvas.repeatDraw(0); // stops, and leaves the mark as it is
        QCOMPARE(reported.size(), 81);
        QVERIFY(!canvas.isBreath() && canvas.runningTimers().isEmpty());
        QCOMPARE(opacity(canvas, 1), pulsing);
    }
}

void TestEffects::breathFollowsTheNewest()
{
    LinedCanvas canvas({ 10, 60 }, 0.9);
    canvas.repeatDraw();
    canvas.tick(30);
    canvas.setPenOpacity(0.6);
    canvas.line(QPoint(10, 90), QPoint(90, 90));
    const LogRecorder log;
    canvas.tick();
    QCOMPARE(LogRecorder::take(),
        QStringList("检测到新元素，更新呼吸目标索引: 2 ，恢复前一个元素透明度: 0.6"));
    QCOMPARE(opacity(canvas, 1), 0.9);
    QCOMPARE(opacity(canvas, 2), wave(1, 75, 0.9));
    canvas.undo();
    canvas.tick(2);
    QCOMPARE(opacity(canvas, 1), wave(2, 75, 0.9));
    canvas.repeatDraw(-1); // as many marks as before: goes on as it is
    canvas.tick();
    QCOMPARE(opacity(canvas, 1), wave(3, 75, 0.9));
}

void TestEffects::restartRestoresWhatItChose()
{
    LinedCanvas canvas({ 10, 60, 90 });
    canvas.undo();
    canvas.repeatDraw();
    canvas.tick(10);
    canvas.redo();
    canvas.tick(10); // moved on to the third mark
    const double pulsing = opacity(canvas, 2);
    canvas.elements().at(1)->opacity = 0.2;
    canvas.repeatDraw();
    QCOMPARE(opacity(canvas, 1), 1.0);
    QCOMPARE(opacity(canvas, 2), pulsing);
    QCOMPARE(canvas.runningTimers().size(), 1);
}

void TestEffects::fewerThanTwoMarksDoNotBreathe()
{
    LinedCanvas canvas({ 10 });
    canvas.setIsBreath(true);
    const LogRecorder log;
    canvas.repeatDraw(2000);
    QCOMPARE(LogRecorder::take(), QStringList(CanvasLog::kBreathRefused));
    QVERIFY(!canvas.isBreath() && canvas.runningTimers().isEmpty());

    canvas.line(QPoint(10, 60), QPoint(90, 60));
    canvas.repeatDraw(2000);
    canvas.tick(10);
    canvas.undo();
    canvas.tick();
    QVERIFY(!canvas.isBreath() && canvas.runningTimers().isEmpty());
    QCOMPARE(opacity(canvas, 0), 1.0);

    canvas.line(QPoint(10, 60), QPoint(90, 60));
    canvas.repeatDraw();
    canvas.tick();
    canvas.undoGradient();
    canvas.clear();
    QVERIFY(!canvas.isBreath());
    static_cast<void>(LogRecorder::take());
    canvas.tick();
    QVERIFY(LogRecorder::take().contains(
        "检测到新元素，更新呼吸目标索引: -1 ，恢复前一个元素透明度: 1"));
    canvas.tick(19);
    QVERIFY(canvas.runningTimers().isEmpty());
    QVERIFY(!canvas.isBreath() && !canvas.canUndo());
}

QTEST_MAIN(TestEffects)
#include "tst_effects.moc"
