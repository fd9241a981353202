#include "canvas/logtexts.h"
#include "tests/canvas/common/logrecorder.h"
#include "tests/canvas/common/referencepainter.h"
#include "tests/canvas/common/signalrecorder.h"
#include "tests/canvas/common/testcanvas.h"

#include <QCoreApplication>
#include <QDir>
#include <QPainter>
#include <QTest>

#include <functional>
#include <limits>

namespace
{

/// True when the canvas leaves what is behind it as it is.
bool showsNothing(TestCanvas &canvas)
{
    QImage white(200, 150, QImage::Format_ARGB32);
    white.fill(Qt::white);
    QImage image = white;
    QPainter painter(&image);
    canvas.paint(&painter);
    return image == white;
}

} // namespace

class TestMyPainter : public QObject
{
    Q_OBJECT

private slots:
    void settersCompare();
    void opacityIsClamped();
    void eraserAndDrawModeExcludeEachOther();
    void paintsNothingBeforeTheFirstPicture();
    void smallResizesChangeNothing();
    void resizedPictureLastsUntilTheContentChanges();
    void clearForgetsEverything();
    void historySignals();
};

void TestMyPainter::settersCompare()
{
    MyPainter canvas;
    SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
    const QList<std::pair<const char *, QVariant>> writes = { { "penSize", -3 },
        { "penColor", QColor(Qt::blue) }, { "textToDraw", "text" }, { "textSize", 0 },
        { "fadeOutTime", 9 }, { "drawMode", 5 } };
    for (const auto &[name, value] : writes) {
        QVERIFY(canvas.setProperty(name, value));
        QCOMPARE(canvas.property(name), value);
        QCOMPARE(recorder.take(), QStringList(QString::fromUtf8(name) + "Changed"));
        QVERIFY(canvas.setProperty(name, value));
        QVERIFY(recorder.take().isEmpty());
    }
    canvas.setIsBreath(false); // the only one that reports every write
    canvas.setIsBreath(true);
    QCOMPARE(recorder.take(), QStringList({ "isBreathChanged", "isBreathChanged" }));
    QVERIFY(!canvas.setProperty("canUndo", true));
    QCOMPARE(canvas.getExePath(), QDir::toNativeSeparators(QCoreApplication::applicationDirPath()));
}

void TestMyPainter::opacityIsClamped()
{
    MyPainter canvas;
    SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
    const LogRecorder log;
    canvas.setPenOpacity(1.0);
    QVERIFY(recorder.take().isEmpty());
    canvas.setPenOpacity(1.7); // tells, although it gives back the old value
    canvas.setPenOpacity(-0.2);
    canvas.setPenOpacity(0.25);
    canvas.setPenOpacity(std::numeric_limits<double>::quiet_NaN());
    QCOMPARE(recorder.take(), QStringList(4, "penOpacityChanged"));
    QStringList values;
    for (const char *value : { "1", "0", "0.25", "0" })
        values.append(QStringLiteral("%1 %2").arg(CanvasLog::kOpacitySet, value));
    QCOMPARE(LogRecorder::take(), values);
}

void TestMyPainter::eraserAndDrawModeExcludeEachOther()
{
    TestCanvas canvas;
    canvas.setDrawMode(MyPainter::LineMode);
    SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
    canvas.setIsEraserMode(true);
    QCOMPARE(recorder.take(), QStringList({ "drawModeChanged", "eraserModeChanged" }));
    QCOMPARE(canvas.drawMode(), int(MyPainter::FreehandMode));
    canvas.setIsEraserMode(true);
    QVERIFY(recorder.take().isEmpty());
    canvas.setDrawMode(MyPainter::ArrowMode);
    QCOMPARE(recorder.take(), QStringList({ "eraserModeChanged", "drawModeChanged" }));
    QVERIFY(!canvas.isEraserMode());
}

void TestMyPainter::paintsNothingBeforeTheFirstPicture()
{
    TestCanvas canvas{ QSizeF() };
    QVERIFY(showsNothing(canvas));
    canvas.setSize(QSizeF(200, 150));
    canvas.line(QPoint(10, 10), QPoint(90, 90));
    QVERIFY(!showsNothing(canvas));
    canvas.forceUpdateImage();
    QCOMPARE(canvas.cachedPicture().size(), QSize(200, 150));
}

void TestMyPainter::clearForgetsEverything()
{
    TestCanvas canvas;
    for (int y : { 10, 50, 90 })
        canvas.line(QPoint(10, y), QPoint(90, y));
    canvas.selectLastElement();
    canvas.beginTransformBatch();
    canvas.translateSelectedElement(5, 5);
    canvas.undo();
    canvas.setIsBreath(true);
    canvas.setDrawMode(MyPainter::RectangleMode);
    canvas.beginPaint(QPoint(1, 1));
    canvas.movePaint(QPoint(9, 9), false);
    SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
    const LogRecorder log;
    canvas.clear();
    QCOMPARE(recorder.take(),
        QStringList(
            { "isBreathChanged", "canUndoChanged", "canRedoChanged", "selectedElementChanged" }));
    QCOMPARE(LogRecorder::take(), QStringList({ CanvasLog::kClearStarted, CanvasLog::kClearDone }));
    QVERIFY(!canvas.isBreath() && !canvas.canUndo() && !canvas.canRedo());
    QVERIFY(!canvas.hasSelectedElement());
    QVERIFY(showsNothing(canvas));
    canvas.movePaint(QPoint(50, 50), false); // clearing in mid-gesture starts a new one
    QCOMPARE(canvas.elements().size(), 1);
    canvas.selectLastElement();
    canvas.beginTransformBatch();
    QVERIFY(LogRecorder::take().last().startsWith(CanvasLog::kBatchStarted));
}

void TestMyPainter::historySignals()
{
    TestCanvas canvas;
    SignalRecorder recorder(canvas, MyPainter::staticMetaObject);
    canvas.undo();
    canvas.redo();
    QVERIFY(recorder.take().isEmpty());
    canvas.line(QPoint(10, 10), QPoint(90, 10));
    static_cast<void>(recorder.take());
    connect(&canvas, &MyPainter::canUndoChanged, &canvas, [&] {
        // What listeners see is already shown.
        QCOMPARE(canvas.cachedPicture(), referencePicture(canvas.elements(), QSize(200, 150)));
    });
    canvas.undo();
    canvas.redo();
    QCOMPARE(recorder.take(),
        QStringList({ "canUndoChanged", "canRedoChanged", "canUndoChanged", "canRedoChanged" }));
}

void TestMyPainter::smallResizesChangeNothing()
{
    TestCanvas canvas;
    canvas.line(QPoint(10, 10), QPoint(190, 140));
    const qint64 key = canvas.cachedPicture().cacheKey();
    canvas.setSize(QSizeF(200.9, 151));
    QCOMPARE(canvas.cachedPicture().cacheKey(), key);
    canvas.setSize(QSizeF(202, 151));
    QCOMPARE(canvas.cachedPicture().size(), QSize(202, 151));
}

void TestMyPainter::resizedPictureLastsUntilTheContentChanges()
{
    struct Row {
        const char *name;
        std::function<void(TestCanvas &)> act;
        bool repaints;
    };
    const Row rows[] = {
        { "press", [](auto &canvas) { canvas.beginPaint(QPoint(1, 1)); }, false },
        { "moving nothing",
            [](auto &canvas) {
                canvas.setDrawMode(MyPainter::TextMode);
                canvas.movePaint(QPoint(5, 140), false);
            },
            true },
        { "releasing nothing", [](auto &canvas) { canvas.endPaint(QPoint(), false); }, true },
        { "nothing hit", [](auto &canvas) { canvas.deleteElement(QPoint(5, 140)); }, false },
        { "nothing to redo", [](auto &canvas) { canvas.redo(); }, false },
        { "selecting", [](auto &canvas) { canvas.selectLastElement(); }, true },
        { "fading",
            [](auto &canvas) {
                canvas.undoGradient();
                canvas.tick();
            },
            true },
        { "leaving the line tool", [](auto &canvas) { canvas.setDrawMode(0); }, false },
        { "leaving the arrow tool",
            [](auto &canvas) {
                canvas.setDrawMode(MyPainter::ArrowMode);
                canvas.setDrawMode(0);
            },
            true },
        { "no text", [](auto &canvas) { canvas.addText(" ", 1, 1, 20); }, false },
    };
    for (const auto &[name, act, repaints] : rows) {
        TestCanvas canvas;
        canvas.line(QPoint(10, 10), QPoint(290, 90));
        const QImage old = canvas.cachedPicture();
        canvas.setSize(QSizeF(300, 150));
        const QImage resized = old.copy(QRect(0, 0, 300, 150));
        QCOMPARE(canvas.cachedPicture(), resized);
        act(canvas);
        const QImage fresh = referencePicture(canvas.elements(), QSize(300, 150));
        QVERIFY(fresh != resized);
        QVERIFY2(canvas.cachedPicture() == (repaints ? fresh : resized), name);
    }
}

QTEST_MAIN(TestMyPainter)
#include "tst_mypainter.moc"
