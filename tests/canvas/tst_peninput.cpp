#include "canvas/logtexts.h"
#include "canvas/shiftsnap.h"
#include "elements/arrowelement.h"
#include "elements/circleelement.h"
#include "elements/freehandelement.h"
#include "elements/lineelement.h"
#include "elements/rectangleelement.h"
#include "tests/canvas/common/logrecorder.h"
#include "tests/canvas/common/signalrecorder.h"
#include "tests/canvas/common/testcanvas.h"

#include <QSignalSpy>
#include <QTest>

class TestPenInput : public QObject
{
    Q_OBJECT

private slots:
    void snapping();
    void shapes();
    void strokesCountEveryMoveTwice();
    void marksTakeThePenAsItIs();
    void announcesOnRelease();
    void withoutMovesNothingIsMade();
    void changeOfToolInMidGesture();
    void gestureSurvivesTheLossOfItsMark();
};

void TestPenInput::snapping()
{
    constexpr int kMost = std::numeric_limits<int>::max();
    struct Row {
        QPoint start;
        QPoint pos;
        QPoint eighthTurn;
        QPoint square;
    };
    const QPoint origin;
    for (const auto &[start, pos, eighthTurn, square] :
        { Row{ origin, { 100, 40 }, { 108, 0 }, { 100, 100 } },
            Row{ origin, { 100, 70 }, { 86, 86 }, { 100, 100 } },
            Row{ origin, { 100, 42 }, { 77, 77 }, { 100, 100 } },
            Row{ origin, { 30, -50 }, { 41, -41 }, { 50, -50 } },
            Row{ { 10, 10 }, { -20, 11 }, { -20, 10 }, { -20, 40 } },
            Row{ { 5, 5 }, { 5, 25 }, { 5, 25 }, { 25, 25 } },
            Row{ { 7, 8 }, { 7, 8 }, { 7, 8 }, { 7, 8 } },
            Row{ { -kMost, 0 }, { kMost, kMost / 2 }, { kMost, 0 }, { kMost, kMost } } }) {
        QCOMPARE(ShiftSnap::toEighthTurn(start, pos), eighthTurn);
        QCOMPARE(ShiftSnap::toSquare(start, pos), square);
    }
}

void TestPenInput::shapes()
{
    struct Row {
        int mode;
        bool shift;
        QPoint end;
    };
    // The anchor is the first move, not the press, and the mark follows each of these.
    for (const auto &[mode, shift, end] : { Row{ MyPainter::LineMode, false, { 120, 60 } },
             Row{ MyPainter::LineMode, true, { 128, 20 } },
             Row{ MyPainter::RectangleMode, false, { 120, 60 } },
             Row{ MyPainter::RectangleMode, true, { 120, 120 } },
             Row{ MyPainter::ArrowMode, true, { 120, 60 } },
             Row{ MyPainter::CircleMode, true, {} } }) {
        for (const int moves : { 1, 2 }) {
            TestCanvas canvas;
            canvas.setDrawMode(mode);
            canvas.beginPaint(QPoint(1, 2));
            canvas.movePaint(QPoint(20, 20), shift);
            QCOMPARE(canvas.elements().size(), 1);
            if (moves == 2)
                canvas.movePaint(QPoint(120, 60), shift);
            else
                canvas.endPaint(QPoint(120, 60), shift);
            QCOMPARE(canvas.elements().last()->type, mode);
            if (const auto *circle = canvas.top<CircleElement>()) {
                QCOMPARE(circle->center, QPoint(20, 20));
                QCOMPARE(circle->radius, 107);
            } else {
                QCOMPARE(canvas.top<TwoPointElement>()->start, QPoint(20, 20));
                QCOMPARE(canvas.top<TwoPointElement>()->end, end);
            }
        }
    }
}

void TestPenInput::strokesCountEveryMoveTwice()
{
    const QPoint a(10, 10);
    const QPoint b(20, 30);
    const QPoint c(40, 35);
    TestCanvas canvas;
    canvas.beginPaint(a);
    canvas.movePaint(b, false);
    const auto *stroke = canvas.top<FreehandElement>();
    QCOMPARE(stroke->points, QList<QPoint>({ a, b, b }));
    canvas.movePaint(c, true);
    QCOMPARE(stroke->points, QList<QPoint>({ a, b, b, c, c }));
    canvas.endPaint(c, false);
    QCOMPARE(stroke->points, QList<QPoint>({ a, b, b, c, c }));
    canvas.drag(MyPainter::FreehandMode, { a });
    canvas.beginPaint(a);
    canvas.movePaint(a, false);
    canvas.endPaint(c, false);
    QCOMPARE(canvas.top<FreehandElement>()->points, QList<QPoint>({ a, a, a, c }));
    // A mark can be hit where it shows, even before a frame has shown it.
    TestCanvas unseen;
    unseen.drag(MyPainter::FreehandMode, { QPoint(10, 10), QPoint(190, 10) });
    QVERIFY(unseen.deleteElement(QPoint(80, 14)));
}

void TestPenInput::marksTakeThePenAsItIs()
{
    TestCanvas canvas;
    canvas.setPenColor(Qt::blue);
    canvas.setPenSize(9);
    canvas.setPenOpacity(0.4);
    const DrawingElement *line = canvas.line(QPoint(5, 5), QPoint(50, 50));
    canvas.setPenColor(Qt::green);
    canvas.setPenSize(1);
    canvas.setPenOpacity(1.0);
    QCOMPARE(line->color, QColor(Qt::blue));
    QCOMPARE(line->penWidth, 9);
    QCOMPARE(line->opacity, 0.4);
    QVERIFY(!line->isEraser);
}

void TestPenInput::announcesOnRelease()
{
    TestCanvas canvas;
    canvas.line(QPoint(1, 1), QPoint(2, 2));
    canvas.undo();
    SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
    const QSignalSpy added(&canvas, &MyPainter::elementAdded);
    const LogRecorder log;
    canvas.beginPaint(QPoint(10, 10));
    canvas.movePaint(QPoint(20, 10), false);
    QCOMPARE(recorder.take(), QStringList({ "canUndoChanged", "canRedoChanged" }));
    QVERIFY(!canvas.canRedo());
    canvas.movePaint(QPoint(30, 10), false);
    QVERIFY(recorder.take().isEmpty());
    canvas.endPaint(QPoint(30, 10), false);
    QCOMPARE(recorder.take(), QStringList("elementAdded"));
    const QString id = canvas.elements().last()->id;
    QCOMPARE(added.at(0).at(0).toString(), id);
    QCOMPARE(LogRecorder::take(), QStringList(LogRecorder::line(CanvasLog::kElementAdded, id)));
    canvas.movePaint(QPoint(90, 90), false); // after the release
    canvas.endPaint(QPoint(90, 90), false);
    QCOMPARE(canvas.elements().size(), 1);
    QCOMPARE(canvas.top<LineElement>()->end, QPoint(30, 10));
}

void TestPenInput::withoutMovesNothingIsMade()
{
    for (int mode = MyPainter::FreehandMode; mode <= MyPainter::TextMode; ++mode) {
        TestCanvas canvas;
        canvas.setDrawMode(mode);
        SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
        canvas.beginPaint(QPoint(10, 10));
        canvas.endPaint(QPoint(12, 12), false);
        QVERIFY(canvas.elements().isEmpty());
        QVERIFY(recorder.take().isEmpty());
    }
    TestCanvas canvas(QSizeF(200, 0)); // no size, no mark
    canvas.line(QPoint(10, 10), QPoint(50, 50));
    QVERIFY(canvas.elements().isEmpty());
    canvas.drag(MyPainter::NumberedCircleMode, { QPoint(10, 10) });
    QCOMPARE(canvas.elements().size(), 1);
}

void TestPenInput::changeOfToolInMidGesture()
{
    TestCanvas canvas;
    const QSignalSpy added(&canvas, &MyPainter::elementAdded);
    canvas.setDrawMode(MyPainter::LineMode);
    canvas.beginPaint(QPoint(10, 10));
    canvas.movePaint(QPoint(10, 10), false);
    canvas.movePaint(QPoint(40, 40), false);
    const auto *line = canvas.top<LineElement>();
    canvas.setDrawMode(MyPainter::RectangleMode);
    canvas.movePaint(QPoint(60, 60), false);
    canvas.endPaint(QPoint(80, 90), false);
    QCOMPARE(line->end, QPoint(40, 40));
    QCOMPARE(canvas.top<RectangleElement>()->start, QPoint(60, 60));
    QCOMPARE(added.size(), 1);
    QCOMPARE(canvas.undoKinds(), "AA");
}

void TestPenInput::gestureSurvivesTheLossOfItsMark()
{
    TestCanvas canvas;
    canvas.setDrawMode(MyPainter::LineMode);
    canvas.beginPaint(QPoint(10, 10));
    canvas.movePaint(QPoint(10, 10), false);
    canvas.undo();
    canvas.movePaint(QPoint(90, 10), false); // still shapes the mark that can be done again
    canvas.redo();
    QCOMPARE(canvas.top<LineElement>()->end, QPoint(90, 10));
    canvas.clear();
    QSignalSpy added(&canvas, &MyPainter::elementAdded);
    canvas.endPaint(QPoint(90, 10), false);
    QVERIFY(added.isEmpty());

    // A listener that empties the board the moment a mark is on it.
    const auto emptyTheBoard = [&] {
        if (!canvas.elements().isEmpty())
            canvas.clear();
    };
    connect(&canvas, &MyPainter::canUndoChanged, &canvas, emptyTheBoard);
    for (int mode = MyPainter::FreehandMode; mode <= MyPainter::NumberedCircleMode; ++mode)
        canvas.drag(mode, { QPoint(10, 10), QPoint(50, 50), QPoint(90, 10) });
    canvas.addText(QStringLiteral("text"), 5, 5, 20);
    QVERIFY(canvas.elements().isEmpty());
    QVERIFY(!canvas.canUndo());

    // The same amid the sweep of an eraser over several marks.
    canvas.disconnect();
    for (int y = 10; y < 50; y += 10)
        canvas.line(QPoint(10, y), QPoint(90, y));
    canvas.setIsEraserMode(true);
    canvas.setDrawMode(MyPainter::FreehandMode);
    canvas.beginPaint(QPoint(50, 5));
    canvas.movePaint(QPoint(50, 5), false);
    connect(&canvas, &MyPainter::canUndoChanged, &canvas, emptyTheBoard);
    canvas.movePaint(QPoint(50, 60), false);
    QVERIFY(canvas.elements().isEmpty());
}

QTEST_MAIN(TestPenInput)
#include "tst_peninput.moc"
