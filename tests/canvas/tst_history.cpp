#include "canvas/elementlist.h"
#include "canvas/history.h"
#include "canvas/logtexts.h"
#include "elements/cloneelement.h"
#include "tests/canvas/common/logrecorder.h"
#include "tests/canvas/common/testcanvas.h"
#include "tests/elements/samples.h"

#include <QTest>

namespace
{

/// A board with lines a, b and c, the first one undermost, and the stacks of its history.
struct Board {
    Board()
    {
        for (const auto *name : { "a", "b", "c" })
            add(samples::make(DrawingElement::Line, QPoint(1, 2), QPoint(30, 40), {}), name);
    }
    void add(ElementPtr element, const QString &id)
    {
        element->id = id;
        elements.append(std::move(element));
        history.push({ HistoryEntry::Add, id });
    }
    void remove(const QString &id, HistoryEntry::Kind kind)
    {
        history.push({ kind, id, elements.take(id) });
    }
    void moveBy(const QString &id, const QPoint &offset)
    {
        ElementPtr before = copyOf(elements.find(id));
        elements.find(id)->move(offset);
        history.push(
            { HistoryEntry::Transform, id, nullptr, std::move(before), copyOf(elements.find(id)) });
    }
    bool undo() { return history.undo(elements, damage); }
    bool redo() { return history.redo(elements, damage); }
    /// Elements, undo stack and redo stack in one line.
    [[nodiscard]] QString state() const
    {
        QString state;
        for (const ElementPtr &element : elements)
            state += element->id;
        return state + u' ' + TestCanvas::kinds(history.undoEntries()) + u' '
            + TestCanvas::kinds(history.redoEntries());
    }

    ElementList elements;
    History history;
    Damage damage;
};

} // namespace

class TestHistory : public QObject
{
    Q_OBJECT

private slots:
    void additions();
    void removedElementsComeBackOnTop();
    void whatIsThereIsNotRestoredTwice();
    void eraserGroups();
    void redoneGroupKeepsWhatTheEraserLeftWithIt();
    void modifications();
    void transformsStayInTheirFirstState();
    void trimmingDropsTheOldest();
};

void TestHistory::additions()
{
    const LogRecorder log;
    Board board;
    QVERIFY(!board.redo());
    QVERIFY(board.damage.areas().empty());
    QVERIFY(board.undo());
    QCOMPARE(board.state(), "ab AA A");
    QCOMPARE(board.damage.areas().size(), std::size_t(1));
    QVERIFY(board.damage.areas()[0].contains(QRect(QPoint(1, 2), QPoint(30, 40))));
    QVERIFY(board.redo());
    QCOMPARE(board.state(), "abc AAA ");
    board.history.clear();
    QVERIFY(!board.undo());
    QCOMPARE(LogRecorder::take(),
        QStringList({ CanvasLog::kNothingToRedo, CanvasLog::kUndo,
            LogRecorder::line(CanvasLog::kUndoAdd, "c"), CanvasLog::kRedo,
            LogRecorder::line(CanvasLog::kRedoAdd, "c"), CanvasLog::kNothingToUndo }));
}

void TestHistory::removedElementsComeBackOnTop()
{
    for (const auto kind : { HistoryEntry::Delete, HistoryEntry::Erase }) {
        const QString letter = kind == HistoryEntry::Delete ? "D" : "E";
        Board board;
        board.remove("a", kind);
        for (int i = 0; i < 2; ++i) {
            QVERIFY(board.undo());
            QCOMPARE(board.state(), "bca AAA " + letter);
            QVERIFY(board.redo());
            QCOMPARE(board.state(), "bc AAA" + letter + " ");
        }
    }
}

void TestHistory::whatIsThereIsNotRestoredTwice()
{
    const LogRecorder log;
    Board board;
    board.undo();
    board.elements.append(copyOf(board.history.redoEntries().back().element.get()));
    board.redo();
    QCOMPARE(board.state(), "abc AA ");
    QCOMPARE(LogRecorder::take().last(), CanvasLog::kAddSkipped);

    ElementPtr copy = copyOf(board.elements.find("b"));
    board.remove("b", HistoryEntry::Delete);
    board.elements.append(std::move(copy));
    board.undo();
    QCOMPARE(board.state(), "acb AA ");
    QCOMPARE(LogRecorder::take().last(), CanvasLog::kRestoreSkipped);
}

void TestHistory::eraserGroups()
{
    Board board;
    board.remove("a", HistoryEntry::Erase);
    board.history.push({ HistoryEntry::EraserGroup, "group" });
    board.remove("c", HistoryEntry::Erase);
    board.remove("b", HistoryEntry::Erase);
    board.undo();
    board.undo();
    QCOMPARE(board.state(), "bc AAAEG EE"); // newest first, the marker is not reached yet
    board.undo();
    QCOMPARE(board.state(), "bca AAA EEGE"); // the marker takes what lies beneath it along
    board.redo();
    QCOMPARE(board.state(), "bc AAAE EEG");
    board.redo();
    QCOMPARE(board.state(), " AAAEGEE ");
}

void TestHistory::redoneGroupKeepsWhatTheEraserLeftWithIt()
{
    const LogRecorder log;
    Board board;
    board.history.push({ HistoryEntry::EraserGroup, "group" });
    board.remove("a", HistoryEntry::Erase);
    board.undo();
    // The gesture goes on and erases the element once more.
    HistoryEntry *known = board.history.findRemoval("a");
    QVERIFY(known && !known->element);
    known->element = board.elements.take("a");
    board.undo();
    board.redo();
    QCOMPARE(LogRecorder::take().last(), LogRecorder::line(CanvasLog::kGroupElementMissing, "a"));
    QCOMPARE(board.state(), "bc AAAGE ");
    board.undo();
    QCOMPARE(board.state(), "bca AAAG E");
}

void TestHistory::modifications()
{
    for (const DrawingElement::Kind kind : samples::kAllKinds) {
        Board board;
        board.add(samples::make(kind, QPoint(1, 2), QPoint(30, 40), {}), "m");
        DrawingElement *live = board.elements.last();
        const QRect original = live->boundingRect();
        ElementPtr before = copyOf(live);
        live->scale(2.0, QPoint(0, 0));
        live->move(QPoint(3, 4));
        const QRect changed = live->boundingRect();
        board.history.push({ HistoryEntry::Modify, "m", nullptr, std::move(before), copyOf(live) });

        const bool keepsShape = kind == DrawingElement::Freehand;
        board.undo();
        QCOMPARE(board.elements.last(), live);
        QCOMPARE(live->boundingRect(), keepsShape ? changed : original);
        QCOMPARE(board.state(), "abcm AAAA M");
        board.redo();
        QCOMPARE(live->boundingRect(), changed);
        QCOMPARE(board.state(), "abcm AAAAM ");
    }
}

void TestHistory::transformsStayInTheirFirstState()
{
    Board board;
    const QRect before = board.elements.find("a")->boundingRect();
    board.moveBy("a", QPoint(50, 0));
    board.undo();
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(board.state(), "bca AAA T");
        QCOMPARE(board.elements.last()->boundingRect(), before);
        board.redo();
        QCOMPARE(board.state(), "bca AAAT ");
        QCOMPARE(board.elements.last()->boundingRect(), before);
        const HistoryEntry &entry = board.history.undoEntries().back();
        QVERIFY(entry.before.get() != board.elements.last());
        QVERIFY(entry.after.get() != board.elements.last());
        board.undo();
    }
}

void TestHistory::trimmingDropsTheOldest()
{
    Board board;
    board.remove("c", HistoryEntry::Delete);
    const ElementRef removed(board.history.undoEntries().back().element.get());
    for (int i = 0; i < History::kTrimmedSize; ++i) {
        QVERIFY(removed);
        board.moveBy("a", QPoint(1, 0));
        board.history.trim();
    }
    QVERIFY(!removed);
    QCOMPARE(board.history.undoEntries().size(), std::size_t(History::kTrimmedSize));
    QCOMPARE(board.history.undoEntries().front().kind, HistoryEntry::Transform);
}

QTEST_MAIN(TestHistory)
#include "tst_history.moc"
