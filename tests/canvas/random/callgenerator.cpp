#include "tests/canvas/random/callgenerator.h"

#include "canvas/fadeeffect.h"
#include "elements/geometry.h"
#include "elements/numberedcircleelement.h"
#include "tests/canvas/random/historyoracle.h"

#include <QDebug>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace
{

constexpr int kFarPx = 1 << 30;
constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
/// With more elements than this a board is cleared: it shows no more, and takes longer.
constexpr int kMostElements = 14;
constexpr qsizetype kShownText = 30;

template <typename... Arguments> QString say(const char *format, Arguments... arguments)
{
    return QString::fromLatin1(format).arg(arguments...);
}

QString say(const QPoint &pos)
{
    return QStringLiteral("%1, %2").arg(pos.x()).arg(pos.y());
}

QString say(double value)
{
    return QString::number(value);
}

QString say(const QString &text)
{
    QString shown;
    QDebug(&shown).nospace() << text.left(kShownText);
    return shown;
}

Expectation::Repaint always(bool condition)
{
    return condition ? Expectation::Always : Expectation::Never;
}

Expectation outcome(const std::optional<HistoryOutcome> &step)
{
    if (!step)
        return { .quiet = true };
    return { .repaint = Expectation::Always,
        .ids = step->ids,
        .topBounds = step->topBounds,
        .loss = Expectation::Nothing };
}

/// The transforms repaint when they are carried out.
Call transform(const QString &text, bool valid, const std::function<void(MyPainter &)> &apply)
{
    return { text, [=](Stage &stage) {
                const bool happens = valid && stage.canvas.hasSelectedElement();
                apply(stage.canvas);
                Expectation expected{ .repaint = always(happens), .quiet = !happens };
                if (happens && !stage.inBatch)
                    expected.records = { HistoryEntry::Transform };
                return expected;
            } };
}

/// What a stamp on the board is wrong about, as far as its number goes.
QString stampProblem(const Stage &stage)
{
    const ElementList &elements = stage.canvas.document().elements;
    const auto *stamp = dynamic_cast<NumberedCircleElement *>(elements.last());
    return stamp && stamp->number == stage.lastNumber ? QString()
                                                      : QStringLiteral("another number is shown");
}

bool isNear(const QRectF &rect)
{
    return QRectF(-1e6, -1e6, 2e6, 2e6).contains(rect);
}

/// Steps the running effects of one kind, and answers whether there were any.
bool fireTimers(MyPainter &canvas, bool fades)
{
    bool fired = false;
    for (QTimer *timer : canvas.findChildren<QTimer *>()) {
        const bool ofFade = qobject_cast<FadeEffect *>(timer->parent()) != nullptr;
        if (timer->isActive() && ofFade == fades)
            fired |= QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
    }
    return fired;
}

} // namespace

Call CallGenerator::next(const Stage &stage)
{
    struct Choice {
        int weight;
        Maker make;
    };
    static constexpr Choice kChoices[] = {
        { 60, &CallGenerator::press },
        { 160, &CallGenerator::move },
        { 40, &CallGenerator::release },
        { 30, &CallGenerator::setDrawMode },
        { 16, &CallGenerator::setErasing },
        { 16, &CallGenerator::setPen },
        { 8, &CallGenerator::setProperty },
        { 10, &CallGenerator::placeText },
        { 14, &CallGenerator::placePreparedText },
        { 20, &CallGenerator::deleteElement },
        { 70, &CallGenerator::undo },
        { 60, &CallGenerator::redo },
        { 3, &CallGenerator::clear },
        { 20, &CallGenerator::select },
        { 10, &CallGenerator::selectById },
        { 24, &CallGenerator::translate },
        { 20, &CallGenerator::scale },
        { 14, &CallGenerator::rotate },
        { 24, &CallGenerator::batch },
        { 8, &CallGenerator::startFade },
        { 8, &CallGenerator::breathe },
        { 40, &CallGenerator::stepEffects },
        { 6, &CallGenerator::resize },
        { 3, &CallGenerator::forceUpdate },
    };
    static const int kTotal = [] {
        int total = 0;
        for (const Choice &choice : kChoices)
            total += choice.weight;
        return total;
    }();

    Call call;
    if (stage.canvas.document().elements.size() > kMostElements) {
        call = clear();
    } else if (!stage.hasSize() && oneIn(3)) {
        call = resize();
    } else {
        int ticket = within(0, kTotal - 1);
        const Choice *choice = std::begin(kChoices);
        while (ticket >= choice->weight)
            ticket -= (choice++)->weight;
        call = (this->*choice->make)();
    }
    call.showsFrame = !oneIn(4);
    return call;
}

int CallGenerator::within(int least, int most)
{
    // Not a standard distribution: those differ between libraries.
    return least + static_cast<int>(m_random() % static_cast<quint64>(most - least + 1));
}

QPoint CallGenerator::position()
{
    if (oneIn(150))
        return { oneOf({ kFarPx, -kFarPx, kIntMax, 5 }), oneOf({ kFarPx, -kFarPx, kIntMin, 5 }) };
    if (oneIn(40))
        return { within(-40000, 40000), within(-40000, 40000) };
    return { within(-12, 108), within(-12, 76) };
}

int CallGenerator::length()
{
    if (oneIn(8))
        return oneOf({ 0, 1, 40, 500, oneIn(10) ? kIntMax : -3 });
    return within(1, 9);
}

QString CallGenerator::text()
{
    return oneOf({ QString(), QStringLiteral("  \t "), QStringLiteral("添加文字..."),
        QStringLiteral("a"), QStringLiteral("one\r\ntwo\n\nfour"), QStringLiteral("typed\\nfeed"),
        QStringLiteral("标注 中文，文字"), QStringLiteral("שלום عليكم abc 123"),
        QStringLiteral("e\u0301\u0308\u0323 Z\u0351\u0343\u036b"),
        QStringLiteral("👩‍👩‍👧 🏳️‍🌈 \U0001F1E8"),
        QString(QChar(0xd800)) + QChar(0) + QChar(0x202e), QString(400, u'W'),
        QStringLiteral("word ").repeated(60) });
}

Call CallGenerator::press()
{
    const QPoint pos = position();
    return { say("beginPaint(%1)", say(pos)), [=](Stage &stage) {
                const bool stamps = stage.stampsNumbers();
                if (stamps)
                    ++stage.lastNumber;
                stage.gestureBegun = true;
                stage.canvas.beginPaint(pos);
                return stamps ? Expectation{ .repaint = Expectation::Always,
                    .board = Expectation::Appended,
                    .records = { { HistoryEntry::Add } },
                    .problem = stampProblem(stage) }
                              : Expectation{ .quiet = true };
            } };
}

Call CallGenerator::move()
{
    const QPoint pos = position();
    const bool shift = oneIn(3);
    return { say("movePaint(%1, %2)", say(pos), shift ? "true" : "false"),
        [=](Stage &stage) {
            MyPainter &canvas = stage.canvas;
            if (!stage.hasSize() || stage.stampsNumbers()) {
                canvas.movePaint(pos, shift);
                return Expectation{ .quiet = true };
            }
            canvas.movePaint(pos, shift);
            const bool erases = canvas.isEraserMode();
            const bool drags = !erases && canvas.drawMode() >= MyPainter::FreehandMode
                && canvas.drawMode() <= MyPainter::ArrowMode;
            const bool first =
                std::exchange(stage.gestureBegun, stage.gestureBegun && !erases && !drags);
            const int reach = geometry::saturated(2LL * canvas.penSize());
            const bool leavesMark = erases && !stage.topmostAt(pos, reach).isEmpty();
            return Expectation{ .repaint = Expectation::Always,
                .board = erases      ? Expectation::Reduced
                    : drags && first ? Expectation::Appended
                                     : Expectation::Unchanged,
                .problem = leavesMark ? QStringLiteral("a mark survives the eraser") : QString() };
        } };
}

Call CallGenerator::release()
{
    const QPoint pos = position();
    const bool shift = oneIn(3);
    return { say("endPaint(%1, %2)", say(pos), shift ? "true" : "false"), [=](Stage &stage) {
                const bool stamps = stage.stampsNumbers();
                stage.canvas.endPaint(pos, shift);
                return Expectation{ .repaint = always(!stamps), .quiet = stamps };
            } };
}

Call CallGenerator::setDrawMode()
{
    const int mode = oneIn(30) ? oneOf({ -1, 7 }) : within(0, 6);
    return { say("drawMode = %1", QString::number(mode)), [=](Stage &stage) {
                const int left = stage.canvas.drawMode();
                stage.gestureBegun |= mode != left;
                stage.canvas.setDrawMode(mode);
                return Expectation{ .repaint = always(left == MyPainter::ArrowMode && mode != left),
                    .quiet = mode == left };
            } };
}

Call CallGenerator::setErasing()
{
    const bool on = oneIn(2);
    return { say("isEraserMode = %1", on ? "true" : "false"), [=](Stage &stage) {
                const bool changes = on != stage.canvas.isEraserMode();
                stage.gestureBegun |= changes;
                stage.canvas.setIsEraserMode(on);
                return Expectation{ .quiet = !changes };
            } };
}

Call CallGenerator::setPen()
{
    const QColor color = oneOf({ QColor(Qt::red), QColor(Qt::blue), QColor(0, 200, 80, 90),
        QColor(255, 255, 0, 3), QColor(Qt::transparent), QColor() });
    const int size = length();
    const double opacity = oneOf({ 1.0, 0.99, 0.98, 0.5, 0.3, 0.0, -1.0, 7.0, kNan });
    return { say("pen %1, %2, %3", color.name(QColor::HexArgb), QString::number(size),
                 say(opacity)),
        [=](Stage &stage) {
            stage.canvas.setPenColor(color);
            stage.canvas.setPenSize(size);
            stage.canvas.setPenOpacity(opacity);
            return Expectation{};
        } };
}

Call CallGenerator::setProperty()
{
    const bool writesText = oneIn(2);
    const char *name = writesText ? "textToDraw" : oneOf({ "isBreath", "textSize", "fadeOutTime" });
    const QVariant value = writesText ? QVariant(text()) : QVariant(length());
    return { say("%1 = %2", QString::fromLatin1(name), say(value.toString())), [=](Stage &stage) {
                stage.canvas.setProperty(name, value);
                return Expectation{};
            } };
}

Call CallGenerator::placeText()
{
    const QPoint pos = position();
    return { say("addText(%1)", say(pos)), [=](Stage &stage) {
                const bool places = !stage.canvas.textToDraw().isEmpty();
                stage.canvas.addText(pos);
                return places
                    ? Expectation{ .repaint = Expectation::Always, .board = Expectation::Appended }
                    : Expectation{ .quiet = true };
            } };
}

Call CallGenerator::placePreparedText()
{
    const QString content = text();
    const QPoint pos = position();
    const int size = oneIn(3) ? length() : within(6, 20);
    const QString shown = say("addText(%1, %2, %3)", say(content), say(pos), QString::number(size));
    return { shown, [=](Stage &stage) {
                const bool places =
                    !content.trimmed().isEmpty() && content != QStringLiteral("添加文字...");
                stage.canvas.addText(content, pos.x(), pos.y(), size);
                return places
                    ? Expectation{ .repaint = Expectation::Always, .board = Expectation::Appended }
                    : Expectation{ .quiet = true };
            } };
}

Call CallGenerator::deleteElement()
{
    const QPoint pos = position();
    const int tolerance = oneOf({ 10, 10, 10, 0, -5, kIntMax });
    const QString shown = say("deleteElement(%1, %2)", say(pos), QString::number(tolerance));
    return { shown, [=](Stage &stage) {
                const QString id = stage.topmostAt(pos, tolerance);
                QStringList ids = idsOf(stage.canvas.document());
                const bool removes = ids.removeOne(id);
                const bool removed = stage.canvas.deleteElement(pos, tolerance);
                if (removed != removes)
                    ids.append(QStringLiteral("the answer is wrong"));
                Expectation expected{ .repaint = always(removes), .ids = ids, .quiet = !removes };
                if (removes)
                    expected.records = { HistoryEntry::Delete, true };
                return expected;
            } };
}

Call CallGenerator::undo()
{
    return { QStringLiteral("undo()"), [](Stage &stage) {
                const auto step = outcomeOfUndo(stage.canvas.document());
                if (step && stage.stampsNumbers())
                    stage.lastNumber = std::max(0, stage.lastNumber - 1);
                stage.canvas.undo();
                return outcome(step);
            } };
}

Call CallGenerator::redo()
{
    return { QStringLiteral("redo()"), [](Stage &stage) {
                const auto step = outcomeOfRedo(stage.canvas.document());
                if (step && stage.stampsNumbers())
                    ++stage.lastNumber;
                stage.canvas.redo();
                return outcome(step);
            } };
}

Call CallGenerator::clear()
{
    return { QStringLiteral("clear()"), [](Stage &stage) {
                stage.lastNumber = 0;
                stage.selectedId.clear();
                stage.gestureBegun = true;
                stage.inBatch = false;
                stage.canvas.clear();
                return Expectation{ .repaint = always(stage.hasSize()),
                    .ids = QStringList(),
                    .loss = Expectation::Everything };
            } };
}

Call CallGenerator::select()
{
    const QPoint pos = position();
    switch (within(0, 3)) {
    case 0:
        return { QStringLiteral("selectLastElement()"), [](Stage &stage) {
                    const QStringList ids = idsOf(stage.canvas.document());
                    if (!ids.isEmpty())
                        stage.selectedId = ids.last();
                    return Expectation{ .repaint = always(stage.canvas.selectLastElement()) };
                } };
    case 1:
        return { QStringLiteral("clearSelection()"), [](Stage &stage) {
                    stage.selectedId.clear();
                    stage.canvas.clearSelection();
                    return Expectation{ .repaint = Expectation::Always };
                } };
    default:
        return { say("selectElementAt(%1)", say(pos)), [=](Stage &stage) {
                    const QString hit = stage.topmostAt(pos, 10);
                    if (!hit.isEmpty())
                        stage.selectedId = hit;
                    return Expectation{ .repaint = always(stage.canvas.selectElementAt(pos)),
                        .quiet = hit.isEmpty() };
                } };
    }
}

Call CallGenerator::selectById()
{
    const int index = within(0, kMostElements);
    return { say("selectElementById(element %1)", QString::number(index)), [=](Stage &stage) {
                const QString id = idsOf(stage.canvas.document()).value(index);
                if (!id.isEmpty())
                    stage.selectedId = id;
                return Expectation{ .repaint = always(stage.canvas.selectElementById(id)),
                    .quiet = id.isEmpty() };
            } };
}

Call CallGenerator::translate()
{
    const QPoint offset = oneIn(20) ? position() : QPoint(within(-9, 9), within(-9, 9));
    Call call = transform(say("translateSelectedElement(%1)", say(offset)), true,
        [=](MyPainter &canvas) { canvas.translateSelectedElement(offset.x(), offset.y()); });
    const auto play = call.play;
    call.play = [=](Stage &stage) {
        const QRectF before = stage.canvas.getSelectedElementBoundingRect();
        Expectation expected = play(stage);
        const QRectF after = stage.canvas.getSelectedElementBoundingRect();
        if (isNear(before) && isNear(after) && after != before.translated(offset)
            && stage.canvas.hasSelectedElement())
            expected.problem = QStringLiteral("the selection moved elsewhere");
        return expected;
    };
    return call;
}

Call CallGenerator::scale()
{
    const auto factor = [this] {
        return oneIn(6) ? oneOf({ 0.0, -1.0, 1e-9, 1e9, kNan, kInfinity })
                        : oneOf({ 0.5, 0.9, 1.0, 1.1, 1.5, 2.0 });
    };
    const double x = factor();
    const double y = factor();
    if (oneIn(2)) {
        return transform(say("scaleSelectedElement(%1)", say(x)), std::isfinite(x) && x > 0,
            [=](MyPainter &canvas) { canvas.scaleSelectedElement(x); });
    }
    const bool valid = std::isfinite(x) && std::isfinite(y) && x > 0 && y > 0;
    return transform(say("scaleSelectedElement(%1, %2)", say(x), say(y)), valid,
        [=](MyPainter &canvas) { canvas.scaleSelectedElement(x, y); });
}

Call CallGenerator::rotate()
{
    const double degrees = oneOf({ 15.0, 90.0, -45.0, 180.0, 33.3, 1e9, kNan, kInfinity });
    return transform(say("rotateSelectedElement(%1)", say(degrees)), std::abs(degrees) <= 1e9,
        [=](MyPainter &canvas) { canvas.rotateSelectedElement(degrees); });
}

Call CallGenerator::batch()
{
    if (oneIn(2)) {
        return { QStringLiteral("beginTransformBatch()"), [](Stage &stage) {
                    stage.inBatch |= stage.canvas.hasSelectedElement();
                    stage.canvas.beginTransformBatch();
                    return Expectation{};
                } };
    }
    return { QStringLiteral("endTransformBatch()"), [](Stage &stage) {
                if (stage.canvas.hasSelectedElement())
                    stage.inBatch = false;
                stage.canvas.endTransformBatch();
                return Expectation{};
            } };
}

Call CallGenerator::startFade()
{
    return { QStringLiteral("undoGradient()"), [](Stage &stage) {
                const bool starts = stage.canvas.canUndo();
                stage.canvas.undoGradient();
                return Expectation{ .quiet = !starts };
            } };
}

Call CallGenerator::breathe()
{
    const int period = oneOf({ 0, -1, 50, 100, 101, 3000, kIntMax });
    return { say("repeatDraw(%1)", QString::number(period)), [=](Stage &stage) {
                stage.canvas.repeatDraw(period);
                return Expectation{ .repaint = Expectation::Perhaps };
            } };
}

Call CallGenerator::stepEffects()
{
    const bool fades = oneIn(2);
    const int ticks = oneIn(2) ? 1 : within(2, 21);
    const QString shown = say("%1 ticks of %2", QString::number(ticks), fades ? "fades" : "breath");
    return { shown, [=](Stage &stage) {
                const int count = stage.canvas.document().elements.size();
                const bool ran = fireTimers(stage.canvas, fades) && count > 0;
                for (int i = 1; i < ticks; ++i)
                    fireTimers(stage.canvas, fades);
                const bool stays = fades && ran && ticks >= FadeEffect::kSteps
                    && stage.canvas.document().elements.size() == count;
                // Breathing lets go of a lone mark, with or without touching it.
                return Expectation{ .repaint =
                                        !fades && count == 1 ? Expectation::Perhaps : always(ran),
                    .board = fades ? Expectation::Reduced : Expectation::Unchanged,
                    .problem = stays ? QStringLiteral("a faded mark stays") : QString() };
            } };
}

Call CallGenerator::resize()
{
    const QSizeF size = oneIn(2)
        ? QSizeF(96, 64)
        : oneOf({ QSizeF(0, 0), QSizeF(0, 50), QSizeF(40.5, 30.9), QSizeF(96.9, 64.9),
            QSizeF(97.5, 64), QSizeF(130, 80), QSizeF(1, 1), QSizeF(-5, 10), QSizeF(0.5, 64) });
    return { say("resize to %1, %2", say(size.width()), say(size.height())), [=](Stage &stage) {
                stage.resize(size);
                return Expectation{ .quiet = true };
            } };
}

Call CallGenerator::forceUpdate()
{
    return { QStringLiteral("forceUpdateImage()"), [](Stage &stage) {
                stage.canvas.forceUpdateImage();
                return Expectation{ .repaint = Expectation::Always, .quiet = true };
            } };
}
