#include "canvas/logtexts.h"
#include "elements/freehandelement.h"
#include "elements/lineelement.h"
#include "tests/canvas/common/logrecorder.h"
#include "tests/canvas/common/signalrecorder.h"
#include "tests/canvas/common/testcanvas.h"

#include <QTest>

#include <limits>

namespace
{

constexpr auto *with = &LogRecorder::line;

} // namespace

class TestSelection : public QObject
{
    Q_OBJECT

private slots:
    void selects();
    void movesScalesAndRotates();
    void refusals();
    void everyTransformIsOneStep();
    void batchIsOneStep();
    void batchEndsOverAnotherSelection();
    void followsItsElementThroughTheHistory();
    void endsWithItsElement();
};

void TestSelection::selects()
{
    TestCanvas canvas;
    const LogRecorder log;
    QVERIFY(!canvas.selectLastElement());
    QCOMPARE(LogRecorder::take().last(), CanvasLog::kNothingToSelect);
    const QString low = canvas.line(QPoint(20, 50), QPoint(120, 50))->id;
    const QString high = canvas.line(QPoint(20, 56), QPoint(120, 56))->id;
    SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
    const QStringList changed("selectedElementChanged");

    static_cast<void>(LogRecorder::take());
    QVERIFY(canvas.selectElementAt(QPoint(70, 50)));
    QCOMPARE(LogRecorder::take(), QStringList(with(CanvasLog::kSelected, high) + " : 1"));
    QCOMPARE(recorder.take(), changed);
    QVERIFY(!canvas.selectElementAt(QPoint(70, 72)));
    QVERIFY(canvas.hasSelectedElement());
    QVERIFY(recorder.take().isEmpty());

    QVERIFY(canvas.selectElementById(low));
    QCOMPARE(LogRecorder::take(),
        QStringList({ with(CanvasLog::kSelectById, low) + " " + CanvasLog::kElementCount + " 2",
            with(CanvasLog::kSelectedById, low) + " " + CanvasLog::kElementKind + " 1" }));
    QCOMPARE(recorder.take(), changed);
    QCOMPARE(canvas.getSelectedElementBoundingRect(), QRectF(18, 48, 105, 5));
    QVERIFY(!canvas.selectElementById("nobody"));
    QCOMPARE(LogRecorder::take().last(), with(CanvasLog::kIdNotFound, "nobody"));
    QVERIFY(canvas.hasSelectedElement());

    canvas.clearSelection();
    QVERIFY(!canvas.hasSelectedElement());
    QCOMPARE(canvas.getSelectedElementBoundingRect(), QRectF());
    QVERIFY(canvas.selectLastElement());
    QCOMPARE(LogRecorder::take(),
        QStringList({ CanvasLog::kSelectionCleared, with(CanvasLog::kSelectedLast, high) }));
    QCOMPARE(recorder.take(), changed + changed);
}

void TestSelection::movesScalesAndRotates()
{
    TestCanvas canvas;
    canvas.setPenSize(2);
    const auto *line = dynamic_cast<LineElement *>(canvas.line(QPoint(20, 20), QPoint(60, 40)));
    canvas.selectLastElement(); // its bounds are 19,19 42x22, so their middle is 39,29
    canvas.translateSelectedElement(5, -3);
    QCOMPARE(line->start, QPoint(25, 17));
    QCOMPARE(line->end, QPoint(65, 37));
    canvas.scaleSelectedElement(2.0);
    QCOMPARE(line->start, QPoint(6, 8));
    QCOMPARE(line->end, QPoint(86, 48));
    canvas.scaleSelectedElement(1.0, 0.5);
    QCOMPARE(line->start, QPoint(6, 18));
    QCOMPARE(line->end, QPoint(86, 38));
    canvas.rotateSelectedElement(90);
    QCOMPARE(line->start, QPoint(54, -12));
    QCOMPARE(line->end, QPoint(34, 68));

    canvas.drag(MyPainter::FreehandMode, { QPoint(10, 10), QPoint(50, 10), QPoint(50, 50) });
    const auto *stroke = canvas.top<FreehandElement>();
    canvas.selectLastElement();
    canvas.scaleSelectedElement(2.0, 1.0);
    QCOMPARE(stroke->points.first(), QPoint(-9, 10));
    QCOMPARE(stroke->points.last(), QPoint(71, 50));
    QVERIFY(canvas.deleteElement(QPoint(70, 20), 2)); // hit where it is now
}

void TestSelection::refusals()
{
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    using Action = std::function<void(MyPainter &)>;
    const std::pair<Action, const char *> rows[] = {
        { [](auto &canvas) { canvas.scaleSelectedElement(0); }, CanvasLog::kBadFactor },
        { [](auto &canvas) { canvas.scaleSelectedElement(-1); }, CanvasLog::kBadFactor },
        { [](auto &canvas) { canvas.scaleSelectedElement(kNan); }, CanvasLog::kBadFactor },
        { [](auto &canvas) { canvas.scaleSelectedElement(1, 0); }, CanvasLog::kBadFactor },
        { [](auto &canvas) { canvas.rotateSelectedElement(kNan); }, CanvasLog::kBadAngle },
    };
    for (const auto &[act, reason] : rows) {
        TestCanvas canvas;
        canvas.line(QPoint(20, 20), QPoint(60, 40));
        canvas.selectLastElement();
        const QRectF bounds = canvas.getSelectedElementBoundingRect();
        const LogRecorder log;
        act(canvas);
        QCOMPARE(LogRecorder::take(), QStringList(reason));
        QCOMPARE(canvas.getSelectedElementBoundingRect(), bounds);
        QCOMPARE(canvas.undoKinds(), "A");
        canvas.clearSelection();
        SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
        act(canvas);
        QCOMPARE(LogRecorder::take().last(), CanvasLog::kNothingSelected);
        QVERIFY(recorder.take().isEmpty());
    }
}

void TestSelection::everyTransformIsOneStep()
{
    TestCanvas canvas;
    canvas.line(QPoint(5, 5), QPoint(9, 9));
    canvas.undo();
    const auto *line = dynamic_cast<LineElement *>(canvas.line(QPoint(20, 20), QPoint(60, 40)));
    canvas.line(QPoint(1, 1), QPoint(2, 2));
    canvas.selectElementById(line->id);
    canvas.undo();
    SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
    const LogRecorder log;
    canvas.translateSelectedElement(5, 5);
    QCOMPARE(LogRecorder::take(),
        QStringList(
            { QStringLiteral("%1 %2 QPoint(5,5)").arg(CanvasLog::kTranslated, CanvasLog::kOffset),
                CanvasLog::kUndoNote }));
    QCOMPARE(recorder.take(), QStringList({ "canUndoChanged", "canRedoChanged" }));
    QCOMPARE(canvas.undoKinds(), "AT");
    QVERIFY(!canvas.canRedo());
    const HistoryEntry &entry = canvas.history().undoEntries().back();
    QCOMPARE(dynamic_cast<LineElement &>(*entry.before).start, QPoint(20, 20));
    QCOMPARE(dynamic_cast<LineElement &>(*entry.after).start, QPoint(25, 25));
}

void TestSelection::batchIsOneStep()
{
    TestCanvas canvas;
    const LogRecorder log;
    canvas.beginTransformBatch();
    QCOMPARE(LogRecorder::take().last(), CanvasLog::kBatchNeedsSelection);
    const QString id = canvas.line(QPoint(20, 20), QPoint(60, 40))->id;
    canvas.selectLastElement();
    canvas.endTransformBatch();
    QCOMPARE(LogRecorder::take().last(), CanvasLog::kBatchMissing);
    canvas.beginTransformBatch();
    canvas.beginTransformBatch();
    QCOMPARE(LogRecorder::take(),
        QStringList({ with(CanvasLog::kBatchStarted, id), CanvasLog::kBatchRunning }));
    SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
    canvas.translateSelectedElement(5, 5);
    canvas.scaleSelectedElement(1.5);
    canvas.rotateSelectedElement(15);
    QCOMPARE(canvas.undoKinds(), "A");
    QVERIFY(recorder.take().isEmpty());
    canvas.endTransformBatch();
    QCOMPARE(LogRecorder::take().last(), with(CanvasLog::kBatchEnded, id));
    QCOMPARE(recorder.take(), QStringList({ "canUndoChanged", "canRedoChanged" }));
    QCOMPARE(canvas.undoKinds(), "AT");
    canvas.undo();
    QCOMPARE(canvas.top<LineElement>()->start, QPoint(20, 20));

    canvas.beginTransformBatch();
    canvas.translateSelectedElement(9, 0);
    canvas.translateSelectedElement(-9, 0);
    canvas.endTransformBatch();
    QCOMPARE(canvas.undoKinds(), "A");
    QCOMPARE(LogRecorder::take().last(), with(CanvasLog::kBatchUnchanged, id));
    canvas.translateSelectedElement(9, 0); // the batch is over
    QCOMPARE(canvas.undoKinds(), "AT");
}

void TestSelection::batchEndsOverAnotherSelection()
{
    TestCanvas canvas;
    const QString first = canvas.line(QPoint(20, 20), QPoint(60, 40))->id;
    const QString second = canvas.line(QPoint(20, 90), QPoint(60, 90))->id;
    canvas.selectElementById(first);
    canvas.beginTransformBatch();
    canvas.translateSelectedElement(7, 7);
    canvas.clearSelection();
    canvas.endTransformBatch(); // needs a selection: the batch goes on
    canvas.selectElementById(second);
    {
        const LogRecorder log;
        canvas.beginTransformBatch();
        QCOMPARE(LogRecorder::take().last(), CanvasLog::kBatchRunning);
    }
    canvas.translateSelectedElement(1, 1);
    QCOMPARE(canvas.undoKinds(), "AA");
    canvas.endTransformBatch();
    QCOMPARE(canvas.undoKinds(), "AAT");
    canvas.undo(); // nothing is lost: the first is back where it was, the second stays
    QCOMPARE(canvas.ids(), QStringList({ second, first }));
    QCOMPARE(canvas.top<LineElement>()->start, QPoint(20, 20));
}

void TestSelection::endsWithItsElement()
{
    TestCanvas canvas;
    canvas.line(QPoint(20, 20), QPoint(60, 40));
    canvas.selectLastElement();
    QVERIFY(canvas.deleteElement(QPoint(40, 30)));
    QVERIFY(canvas.hasSelectedElement()); // it is still there, in the history
    for (int i = 0; i < History::kTrimmedSize; ++i) {
        canvas.line(QPoint(100, 20), QPoint(100, 40));
        QVERIFY(canvas.deleteElement(QPoint(100, 30)));
    }
    QVERIFY(!canvas.hasSelectedElement());
    const LogRecorder log;
    canvas.translateSelectedElement(1, 1);
    canvas.beginTransformBatch();
    QCOMPARE(LogRecorder::take(),
        QStringList({ CanvasLog::kNothingSelected, CanvasLog::kBatchNeedsSelection }));
}

void TestSelection::followsItsElementThroughTheHistory()
{
    TestCanvas canvas;
    canvas.line(QPoint(20, 20), QPoint(60, 40));
    canvas.selectLastElement();
    canvas.translateSelectedElement(30, 30);
    canvas.undo(); // puts another object on the board
    QVERIFY(canvas.hasSelectedElement());
    canvas.translateSelectedElement(1, 0);
    QCOMPARE(canvas.top<LineElement>()->start, QPoint(21, 20));
    QVERIFY(canvas.deleteElement(QPoint(40, 30)));
    canvas.translateSelectedElement(1, 0); // acts on the removed element
    canvas.undo();
    QCOMPARE(canvas.elements().size(), 1);
    QCOMPARE(canvas.top<LineElement>()->start, QPoint(21, 20));
}

QTEST_MAIN(TestSelection)
#include "tst_selection.moc"
