#include "canvas/logtexts.h"
#include "canvas/textplacement.h"
#include "elements/numberedcircleelement.h"
#include "elements/textelement.h"
#include "tests/canvas/common/logrecorder.h"
#include "tests/canvas/common/signalrecorder.h"
#include "tests/canvas/common/testcanvas.h"

#include <QLoggingCategory>
#include <QTest>

/// Marks that are placed, not dragged: texts and numbers.
class TestPlacement : public QObject
{
    Q_OBJECT

private slots:
    void preparesText();
    void ignoresBlankText();
    void announcesOnlyTheBoxText();
    void logsTypedText();
    void numbersRun();
    void numbersFollowTheHistoryOfTheirTool();
};

void TestPlacement::preparesText()
{
    const QString longLine = QString(40, 'a') + " b\nc";
    const std::pair<QString, QString> rows[] = {
        { "a\r\nb\r\nc d", "a\nb\nc d" },
        { "a\rb", "a\rb" },
        // Typed feeds count where there are no real ones.
        { "a\\nb\\n\\tc", "a\nb\n\\tc" },
        { "a\\nb\nc", "a\\nb\nc" },
        // A line of more than 30 characters breaks behind a blank, whichever it is.
        { QString(9, 'a') + ' ' + QString(20, 'b') + ' ' + QString(18, 'c') + " d",
            QString(9, 'a') + ' ' + QString(20, 'b') + " \n" + QString(18, 'c') + " d" },
        { QString(29, 'a') + " b", QString(29, 'a') + " \nb" },
        { QString(40, u'字') + QChar(0x3000) + u'字', QString(40, u'字') + QChar(0x3000) + "\n字" },
        { QString(50, 'w'), QString(50, 'w') },
        { longLine, longLine },
    };
    for (const auto &[raw, prepared] : rows) {
        TestCanvas canvas;
        canvas.addText(raw, 30, 40, 13);
        const auto *text = canvas.top<TextElement>();
        QCOMPARE(text->text, prepared);
        QCOMPARE(text->position, QPoint(30, 40));
        QCOMPARE(text->fontSize, 13);
    }
}

void TestPlacement::ignoresBlankText()
{
    TestCanvas canvas;
    SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
    const LogRecorder log;
    for (const QString &blank :
        { QString(), QStringLiteral(" \n\t "), QStringLiteral("添加文字...") })
        canvas.addText(blank, 10, 10, 20);
    canvas.addText(QPoint(10, 10));
    QVERIFY(canvas.elements().isEmpty());
    QVERIFY(recorder.take().isEmpty());
    QVERIFY(LogRecorder::take().isEmpty());
}

void TestPlacement::announcesOnlyTheBoxText()
{
    TestCanvas canvas;
    canvas.line(QPoint(1, 1), QPoint(2, 2));
    canvas.undo();
    canvas.setTextToDraw("typed\\nfeed ");
    canvas.setTextSize(31);
    SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
    const LogRecorder log;
    canvas.addText(QPoint(20, 30));
    QCOMPARE(recorder.take(), QStringList({ "canUndoChanged", "canRedoChanged", "elementAdded" }));
    const auto *text = canvas.top<TextElement>();
    QCOMPARE(LogRecorder::take(), QStringList(LogRecorder::line(CanvasLog::kTextAdded, text->id)));
    QCOMPARE(text->text, "typed\\nfeed ");
    QCOMPARE(text->fontSize, 31);
    QCOMPARE(canvas.undoKinds(), "A");
    QVERIFY(!canvas.canRedo());
    canvas.addText("text", 20, 30, 20);
    QCOMPARE(recorder.take(), QStringList({ "canUndoChanged", "canRedoChanged" }));
}

void TestPlacement::logsTypedText()
{
    TestCanvas canvas;
    const LogRecorder log;
    canvas.addText("one two three\\nfour five six\r", 20, 30, 20);
    QCOMPARE(LogRecorder::take(),
        QStringList({ "接收到的原始文本: \"one two three\\\\nfour five six\\r\"",
            "原始文本长度: 29 行数: 1", "换行符数量: 0 回车符数量: 1",
            "处理转义序列后，换行符数量: 1", "处理后的文本行数: 2",
            QStringLiteral(
                "发送文本添加信号，ID: \"%1\" 内容: \"one two three\\nfour f...\" 行数: 2")
                .arg(canvas.ids().last()) }));
    canvas.addText("a b", 20, 30, 20);
    QCOMPARE(LogRecorder::take().at(3), "强制换行后，换行符数量: 0");
}

void TestPlacement::numbersRun()
{
    TestCanvas canvas;
    SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
    canvas.setDrawMode(MyPainter::NumberedCircleMode);
    static_cast<void>(recorder.take());
    const LogRecorder log;
    for (int number = 1; number <= 3; ++number) {
        canvas.stroke({ QPoint(20 * number, 30), QPoint(90, 90) });
        const auto *circle = canvas.top<NumberedCircleElement>();
        QCOMPARE(circle->number, number);
        QCOMPARE(circle->center, QPoint(20 * number, 30));
        QCOMPARE(LogRecorder::take(),
            QStringList(LogRecorder::line(CanvasLog::kNumberAdded, circle->id)));
        QCOMPARE(recorder.take(), QStringList({ "canUndoChanged", "canRedoChanged" }));
    }
    QCOMPARE(canvas.elements().size(), 3);
    QVERIFY(canvas.deleteElement(QPoint(60, 30)));
    canvas.clear();
    canvas.stroke({ QPoint(20, 30) });
    QCOMPARE(canvas.top<NumberedCircleElement>()->number, 1);
}

void TestPlacement::numbersFollowTheHistoryOfTheirTool()
{
    TestCanvas canvas;
    canvas.setDrawMode(MyPainter::NumberedCircleMode);
    for (int i = 0; i < 3; ++i)
        canvas.beginPaint(QPoint(30, 30));
    canvas.undo();
    canvas.beginPaint(QPoint(30, 30));
    QCOMPARE(canvas.top<NumberedCircleElement>()->number, 3);
    canvas.undo();
    canvas.redo();
    QCOMPARE(canvas.lastNumber(), 3);
    canvas.setDrawMode(MyPainter::FreehandMode);
    canvas.undo();
    canvas.setDrawMode(MyPainter::NumberedCircleMode);
    canvas.beginPaint(QPoint(30, 30));
    QCOMPARE(canvas.top<NumberedCircleElement>()->number, 4);
    for (int i = 0; i < 9; ++i) // with nothing left to undo the number stays
        canvas.undo();
    QCOMPARE(canvas.lastNumber(), 1);
    canvas.clear();
    canvas.setDrawMode(MyPainter::LineMode);
    canvas.stroke({ QPoint(1, 1) });
    canvas.setDrawMode(MyPainter::NumberedCircleMode);
    canvas.undo();
    QCOMPARE(canvas.lastNumber(), 0);
    canvas.redo();
    QCOMPARE(canvas.lastNumber(), 1);
}

QTEST_MAIN(TestPlacement)
#include "tst_placement.moc"
