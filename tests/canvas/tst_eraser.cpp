#include "canvas/logtexts.h"
#include "elements/numberedcircleelement.h"
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
    void reach_data();
    void reach();
    void fastMovesMissNothing();
    void whatTheHistoryKnowsIsNotRecordedTwice();
    void deletesTheTopmostUnderThePointer();
    void deletingLimitsTheHistory();
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
    QStringList expected(CanvasLog::kEraseStarted);
    for (const QString &id : { ids.at(2), ids.at(1), ids.at(0) })
        expected.append(QStringLiteral("%1 \"%2\"").arg(CanvasLog::kErased, id));
    QCOMPARE(LogRecorder::take(), expected);
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

void TestEraser::reach_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("distance");
    QTest::addColumn<bool>("erased");
    // The eraser reaches twice the pen's size beside what the mark itself reaches.
    QTest::newRow("line, near") << int(MyPainter::LineMode) << 12 << true;
    QTest::newRow("line, far") << int(MyPainter::LineMode) << 13 << false;
    QTest::newRow("rectangle, near") << int(MyPainter::RectangleMode) << 10 << true;
    QTest::newRow("rectangle, far") << int(MyPainter::RectangleMode) << 11 << false;
}

void TestEraser::reach()
{
    QFETCH(int, mode);
    QFETCH(int, distance);
    TestCanvas canvas;
    canvas.setPenSize(2);
    canvas.drag(mode, { QPoint(20, 50), QPoint(120, 50) });
    canvas.setPenSize(5);
    canvas.setIsEraserMode(true);
    canvas.stroke({ QPoint(70, 50 - distance) });
    QTEST(canvas.elements().isEmpty(), "erased");
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
    const QString high = canvas.line(QPoint(20, 52), QPoint(120, 52))->id;
    canvas.line(QPoint(20, 100), QPoint(120, 100));
    canvas.undo();
    SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
    QVERIFY(!canvas.deleteElement(QPoint(70, 100)));
    QVERIFY(!canvas.deleteElement(QPoint(70, 68), 10));
    QVERIFY(recorder.take().isEmpty());
    QVERIFY(canvas.canRedo());
    QVERIFY(canvas.deleteElement(QPoint(70, 62)));
    QCOMPARE(recorder.take(), QStringList({ "canUndoChanged", "canRedoChanged" }));
    QCOMPARE(canvas.ids(), QStringList(low));
    QCOMPARE(canvas.undoKinds(), "AAD");
    QVERIFY(!canvas.canRedo());
    canvas.undo();
    QCOMPARE(canvas.ids(), QStringList({ low, high }));
}

void TestEraser::deletingLimitsTheHistory()
{
    TestCanvas canvas;
    for (int i = 0; i < 25; ++i)
        canvas.line(QPoint(10, 5 * i), QPoint(190, 5 * i));
    QCOMPARE(canvas.undoKinds(), QString(25, 'A'));
    QVERIFY(canvas.deleteElement(QPoint(50, 50)));
    QCOMPARE(canvas.undoKinds(), QString(19, 'A') + "D");
    for (int i = 1; i < 25; ++i)
        QVERIFY(canvas.deleteElement(canvas.elements().last()->boundingRect().center()));
    QCOMPARE(canvas.undoKinds(), QString(20, 'D'));
}

QTEST_MAIN(TestEraser)
#include "tst_eraser.moc"
