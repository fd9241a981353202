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

} // namespace

/// Fading and breathing, stepped without waiting.
class TestEffects : public QObject
{
    Q_OBJECT

private slots:
    void fadeNeedsHistory();
    void fadesTheOldestAway();
    void fadesTakeTurnsOnWhateverIsOldest();
    void fadingLimitsTheHistory();
    void fadeEndsWithAnEmptyBoard();
    void breathPeriods_data();
    void breathPeriods();
    void breathFollowsTheNewest();
    void restartRestoresWhatItChose();
    void stopLeavesTheMarkAsItIs();
    void loneMarksDoNotBreathe();
    void breathEndsAfterClear();
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
    TestCanvas canvas;
    canvas.setPenOpacity(0.8);
    const QString oldest = canvas.line(QPoint(10, 10), QPoint(90, 10))->id;
    canvas.line(QPoint(10, 20), QPoint(90, 20));
    canvas.line(QPoint(10, 30), QPoint(90, 30));
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
}

void TestEffects::fadesTakeTurnsOnWhateverIsOldest()
{
    TestCanvas canvas;
    canvas.line(QPoint(10, 10), QPoint(90, 10));
    const QString second = canvas.line(QPoint(10, 60), QPoint(90, 60))->id;
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

void TestEffects::fadingLimitsTheHistory()
{
    TestCanvas canvas;
    for (int i = 0; i < 25; ++i)
        canvas.line(QPoint(10, 5 * i), QPoint(90, 5 * i));
    for (int i = 0; i < 25; ++i) {
        canvas.undoGradient();
        canvas.tick(20);
    }
    QCOMPARE(canvas.undoKinds(), QString(20, 'D'));
}

void TestEffects::fadeEndsWithAnEmptyBoard()
{
    TestCanvas canvas;
    canvas.line(QPoint(10, 10), QPoint(90, 10));
    canvas.undoGradient();
    canvas.tick(19);
    canvas.clear();
    canvas.tick();
    QVERIFY(canvas.runningTimers().isEmpty());
    QVERIFY(!canvas.canUndo());
}

void TestEffects::breathPeriods_data()
{
    QTest::addColumn<int>("period");
    QTest::addColumn<double>("penOpacity");
    QTest::addColumn<int>("stepsPerPeriod");
    QTest::addColumn<double>("most");
    QTest::newRow("too short") << 50 << 1.0 << 75 << 1.0;
    QTest::newRow("100") << 100 << 0.8 << 75 << 0.8;
    QTest::newRow("101, faint") << 101 << 0.3 << 2 << 1.0;
    QTest::newRow("1000, half") << 1000 << 0.5 << 25 << 1.0;
    QTest::newRow("negative") << -1 << 1.0 << 75 << 1.0;
}

void TestEffects::breathPeriods()
{
    QFETCH(int, period);
    QFETCH(double, penOpacity);
    QFETCH(int, stepsPerPeriod);
    QFETCH(double, most);
    TestCanvas canvas;
    canvas.setPenOpacity(penOpacity);
    canvas.line(QPoint(10, 10), QPoint(90, 10));
    canvas.line(QPoint(10, 60), QPoint(90, 60));
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
}

void TestEffects::breathFollowsTheNewest()
{
    TestCanvas canvas;
    canvas.setPenOpacity(0.9);
    canvas.line(QPoint(10, 10), QPoint(90, 10));
    canvas.line(QPoint(10, 60), QPoint(90, 60));
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
    TestCanvas canvas;
    for (int y : { 10, 60, 90 })
        canvas.line(QPoint(10, y), QPoint(90, y));
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

void TestEffects::stopLeavesTheMarkAsItIs()
{
    TestCanvas canvas;
    canvas.line(QPoint(10, 10), QPoint(90, 10));
    canvas.line(QPoint(10, 60), QPoint(90, 60));
    canvas.repeatDraw();
    canvas.tick(10);
    const double pulsing = opacity(canvas, 1);
    const QSignalSpy reported(&canvas, &MyPainter::isBreathChanged);
    canvas.repeatDraw(0);
    QCOMPARE(reported.size(), 1);
    QVERIFY(!canvas.isBreath());
    QVERIFY(canvas.runningTimers().isEmpty());
    QCOMPARE(opacity(canvas, 1), pulsing);
}

void TestEffects::loneMarksDoNotBreathe()
{
    TestCanvas canvas;
    canvas.line(QPoint(10, 10), QPoint(90, 10));
    canvas.setIsBreath(true);
    const LogRecorder log;
    canvas.repeatDraw(2000);
    QCOMPARE(LogRecorder::take(), QStringList(CanvasLog::kBreathRefused));
    QVERIFY(!canvas.isBreath());
    QVERIFY(canvas.runningTimers().isEmpty());

    canvas.line(QPoint(10, 60), QPoint(90, 60));
    canvas.repeatDraw(2000);
    canvas.tick(10);
    canvas.undo();
    canvas.tick();
    QVERIFY(!canvas.isBreath());
    QVERIFY(canvas.runningTimers().isEmpty());
    QCOMPARE(opacity(canvas, 0), 1.0);
}

void TestEffects::breathEndsAfterClear()
{
    TestCanvas canvas;
    canvas.line(QPoint(10, 10), QPoint(90, 10));
    canvas.line(QPoint(10, 60), QPoint(90, 60));
    canvas.repeatDraw();
    canvas.tick();
    canvas.clear();
    QVERIFY(!canvas.isBreath());
    const LogRecorder log;
    canvas.tick();
    QCOMPARE(LogRecorder::take(),
        QStringList("检测到新元素，更新呼吸目标索引: -1 ，恢复前一个元素透明度: 1"));
    QVERIFY(canvas.runningTimers().isEmpty());
    QVERIFY(!canvas.isBreath());
}

QTEST_MAIN(TestEffects)
#include "tst_effects.moc"
