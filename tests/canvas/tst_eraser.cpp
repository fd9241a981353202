#include "canvas/logtexts.h"
#include "tests/canvas/common/logrecorder.h"
#include "tests/canvas/common/signalrecorder.h"
#include "tests/canvas/common/testcanvas.h"

#include <QTest>

class TestEraser : public QObject
{
    Q_OBJECT

private slots:
    void gestureRemovesEverythingTouched();
    void groupStartsWithEachGesture();
    void reach();
    void fastMovesMissNothing();
    void whatTheHistoryKnowsIsNotRecordedTwice();
    void deletesTheTopmostUnderThePointer();
};

void TestEraser::gestureRemovesEverythingTouched()
{
    TestCanvas canvas;
    QStringList ids;
    for (int y : { 20, 24, 28 })
        ids.append(canvas.line(QPoint(10, y), QPoint(90, y))->id);
    const QString apart = canvas.line(QPoint(10, 120), QPoint(90, 120))->id;
    canvas.undo();
    canvas.redo();
    canvas.line(QPoint(1, 1), QPoint(2, 2));
    canvas.undo();
    canvas.setIsEraserMode(true);
    SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
    LogRecorder log;
    canvas.stroke({ QPoint(50, 24) });
    QCOMPARE(canvas.ids(), QStringList(apart));
    QCOMPARE(canvas.undoKinds(), "AAAAGEEE");
    QVERIFY(!canvas.canRedo());
    QCOMPARE(recorder.take(),
        QStringList({ "canUndoChanged", "canRedoChanged", "canUndoChanged", "canUndoChanged",
            "canUndoChanged" }));
    const auto erased = [&](int i) { return LogRecorder::line(CanvasLog::kErased, ids.at(i)); };
    QCOMPARE(LogRecorder::take(),
        QStringList({ CanvasLog::kEraseStarted, erased(2), erased(1), erased(0) }));
    const QString group = canvas.history().undoEntries().at(4).elementId;
    QVERIFY(group.startsWith("eraser_group_{") && group.size() == 13 + 38);
}

void TestEraser::groupStartsWithEachGesture()
{
    TestCanvas canvas;
    canvas.setIsEraserMode(true);
    canvas.stroke({ QPoint(10, 10), QPoint(50, 50) });
    canvas.movePaint(QPoint(60, 60), false); // without a press: still the same gesture
    QCOMPARE(canvas.undoKinds(), "G");
    canvas.setIsEraserMode(false);
    canvas.setIsEraserMode(true);
    canvas.movePaint(QPoint(60, 60), false);
    canvas.stroke({ QPoint(10, 10) });
    QCOMPARE(canvas.undoKinds(), "GGG");
}

void TestEraser::reach()
{
    // The eraser reaches twice the pen's size beside what the mark itself reaches.
    for (const auto &[mode, most] :
        { std::pair{ MyPainter::LineMode, 12 }, { MyPainter::RectangleMode, 10 } }) {
        for (const int distance : { most, most + 1 }) {
            TestCanvas canvas;
            canvas.setPenSize(2);
            canvas.drag(mode, { QPoint(20, 50), QPoint(120, 50) });
            canvas.setPenSize(5);
            canvas.setIsEraserMode(true);
            canvas.stroke({ QPoint(70, 50 - distance) });
            QCOMPARE(canvas.elements().isEmpty(), distance == most);
        }
    }
}

void TestEraser::fastMovesMissNothing()
{
    TestCanvas canvas;
    canvas.setPenSize(1);
    for (int x : { 40, 67, 90 })
        canvas.line(QPoint(x, 40), QPoint(x, 60));
    canvas.setIsEraserMode(true);
    canvas.beginPaint(QPoint(20, 50));
    canvas.movePaint(QPoint(72, 50), false);
    QCOMPARE(canvas.elements().size(), 1);
    canvas.movePaint(QPoint(1 << 30, 1 << 30), false); // in bounded time
    canvas.movePaint(QPoint(-(1 << 30), -(1 << 30)), false);
    QCOMPARE(canvas.elements().size(), 1);
}

void TestEraser::whatTheHistoryKnowsIsNotRecordedTwice()
{
    TestCanvas canvas;
    canvas.line(QPoint(20, 50), QPoint(120, 50));
    canvas.setIsEraserMode(true);
    canvas.stroke({ QPoint(70, 50) });
    canvas.undo();
    SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
    LogRecorder log;
    canvas.movePaint(QPoint(70, 50), false); // the gesture goes on
    QVERIFY(canvas.elements().isEmpty());
    QCOMPARE(canvas.undoKinds(), "AG");
    QCOMPARE(canvas.redoKinds(), "E");
    QVERIFY(recorder.take().isEmpty());
    QCOMPARE(LogRecorder::take().last(), CanvasLog::kEraseKnown);
    canvas.redo();
    canvas.undo();
    QCOMPARE(canvas.elements().size(), 1);
}

void TestEraser::deletesTheTopmostUnderThePointer()
{
    TestCanvas canvas;
    const QString low = canvas.line(QPoint(20, 50), QPoint(120, 50))->id;
    canvas.line(QPoint(20, 52), QPoint(120, 52));
    canvas.line(QPoint(20, 100), QPoint(120, 100));
    canvas.undo();
    SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
    QVERIFY(!canvas.deleteElement(QPoint(70, 68), 10));
    QVERIFY(recorder.take().isEmpty() && canvas.canRedo());
    QVERIFY(canvas.deleteElement(QPoint(70, 62)));
    QCOMPARE(recorder.take(), QStringList({ "canUndoChanged", "canRedoChanged" }));
    QCOMPARE(canvas.ids(), QStringList(low));
    QCOMPARE(canvas.undoKinds(), "AAD");

    // Deleting limits the history, drawing does not.
    for (int i = 0; i < 25; ++i)
        canvas.line(QPoint(10, 5 * i), QPoint(190, 5 * i));
    QCOMPARE(canvas.undoKinds(), "AAD" + QString(25, 'A'));
    QVERIFY(canvas.deleteElement(QPoint(15, 50)));
    QCOMPARE(canvas.undoKinds(), QString(19, 'A') + "D");
}

QTEST_MAIN(TestEraser)
#include "tst_eraser.moc"
