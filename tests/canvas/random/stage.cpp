#include "tests/canvas/random/stage.h"

#include "elements/cloneelement.h"
#include "elements/geometry.h"
#include "tests/canvas/common/logrecorder.h"
#include "tests/canvas/common/referencepainter.h"
#include "tests/canvas/random/historyoracle.h"

#include <QCoreApplication>
#include <QMetaProperty>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace
{

constexpr QSizeF kStageSize(96, 64);

/// Every element that an entry of either stack holds.
QList<const DrawingElement *> heldBy(const History &history)
{
    QList<const DrawingElement *> held;
    for (const auto *stack : { &history.undoEntries(), &history.redoEntries() }) {
        for (const HistoryEntry &entry : *stack) {
            for (const ElementPtr *slot : { &entry.element, &entry.before, &entry.after }) {
                if (*slot)
                    held.append(slot->get());
            }
        }
    }
    return held;
}

QString entryProblem(const HistoryEntry &entry, bool undone)
{
    const bool holdsElement = entry.element != nullptr;
    const bool holdsBoth = entry.before != nullptr && entry.after != nullptr;
    switch (entry.kind) {
    case HistoryEntry::Add:
        return holdsElement == undone ? QString() : QStringLiteral("an addition's element");
    case HistoryEntry::Delete:
    case HistoryEntry::Erase: // done again by the eraser, an undone one holds its element too
        return holdsElement || undone ? QString() : QStringLiteral("a removal without element");
    case HistoryEntry::EraserGroup:
        return holdsElement ? QStringLiteral("a group with an element") : QString();
    default:
        return holdsBoth ? QString() : QStringLiteral("a transform without its states");
    }
}

bool isSubsequence(const QStringList &part, const QStringList &whole)
{
    qsizetype found = 0;
    for (const QString &id : whole) {
        if (found < part.size() && part.at(found) == id)
            ++found;
    }
    return found == part.size();
}

} // namespace

struct Stage::Before {
    QStringList ids;
    QSet<QString> known;
    QVariantList properties;
    std::size_t undoSize;
};

Stage::Stage()
{
    resize(kStageSize);
}

QString Stage::play(const Call &call)
{
    const Before before{ idsOf(canvas.document()), knownIds(), properties(),
        canvas.document().history.undoEntries().size() };
    const Expectation expected = call.play(*this);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (const QString &problem : { expected.problem, boardProblem(expected, before),
             ownerProblem(), lossProblem(expected, before), selectionProblem(), numberProblem(),
             recordProblem(expected, before), signalProblem(expected, before),
             pictureProblem(expected, call.showsFrame), LogRecorder::take().join(u'\n') }) {
        if (!problem.isEmpty())
            return problem;
    }
    return {};
}

QString Stage::topmostAt(const QPoint &pos, int tolerance) const
{
    QImage frame(1, 1, QImage::Format_ARGB32);
    frame.fill(Qt::transparent);
    QPainter painter(&frame);
    const ElementList &elements = canvas.document().elements;
    for (int i = elements.size() - 1; i >= 0; --i) {
        const ElementPtr shown = copyOf(elements.at(i));
        shown->paint(&painter); // what was shown is hit as it looks
        if (shown->contains(pos, tolerance))
            return shown->id;
    }
    return {};
}

void Stage::resize(const QSizeF &size)
{
    const bool changesPicture = std::abs(size.width() - canvas.width()) > 1
        || std::abs(size.height() - canvas.height()) > 1;
    const QSize canvasSize(
        geometry::truncated(canvas.width()), geometry::truncated(canvas.height()));
    if (!m_frozen)
        m_frozenPicture = referencePicture(canvas.document().elements, canvasSize);
    m_frozen = true;
    canvas.setSize(size);
    if (!changesPicture)
        return;
    QImage resized = referencePicture(ElementList(),
        QSize(geometry::truncated(size.width()), geometry::truncated(size.height())));
    if (!m_frozenPicture.isNull() && !resized.isNull())
        resized = m_frozenPicture.copy(resized.rect());
    m_frozenPicture = resized;
}

QVariantList Stage::properties() const
{
    QVariantList values;
    const QMetaObject &type = MyPainter::staticMetaObject;
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i)
        values.append(type.property(i).read(&canvas));
    return values;
}

QSet<QString> Stage::knownIds() const
{
    const QStringList shown = idsOf(canvas.document());
    QSet<QString> ids(shown.begin(), shown.end());
    for (const DrawingElement *element : heldBy(canvas.document().history))
        ids.insert(element->id);
    return ids;
}

QString Stage::boardProblem(const Expectation &expected, const Before &before) const
{
    const QStringList ids = idsOf(canvas.document());
    const auto &undo = canvas.document().history.undoEntries();
    if (expected.topBounds
        && canvas.document().elements.last()->boundingRect() != expected.topBounds)
        return QStringLiteral("the step did not give the topmost element its state");
    if (expected.ids)
        return ids == *expected.ids ? QString() : QStringLiteral("other elements than expected");
    if (expected.board == Expectation::Unchanged)
        return ids == before.ids ? QString() : QStringLiteral("elements changed");
    if (expected.board == Expectation::Reduced)
        return isSubsequence(ids, before.ids) ? QString()
                                              : QStringLiteral("elements added or moved");
    if (ids.size() != before.ids.size() + 1 || ids.mid(0, before.ids.size()) != before.ids)
        return QStringLiteral("no element was added on top");
    if (canvas.canRedo() || undo.back().kind != HistoryEntry::Add
        || undo.back().elementId != ids.last())
        return QStringLiteral("the addition was not recorded");
    return {};
}

QString Stage::ownerProblem() const
{
    QSet<QString> ids;
    QSet<const DrawingElement *> owned;
    const CanvasDocument &document = canvas.document();
    for (const ElementPtr &element : document.elements) {
        if (!(element->opacity >= 0.0 && element->opacity <= 1.0))
            return QStringLiteral("an opacity of %1").arg(element->opacity);
        if (ids.contains(element->id))
            return QStringLiteral("an element is shown twice");
        ids.insert(element->id);
        owned.insert(element.get());
    }
    for (const DrawingElement *element : heldBy(document.history)) {
        if (owned.contains(element))
            return QStringLiteral("an element has two owners");
        owned.insert(element);
    }
    for (const HistoryEntry &entry : document.history.undoEntries()) {
        if (const QString problem = entryProblem(entry, false); !problem.isEmpty())
            return QStringLiteral("undo stack: ") + problem;
    }
    for (const HistoryEntry &entry : document.history.redoEntries()) {
        if (const QString problem = entryProblem(entry, true); !problem.isEmpty())
            return QStringLiteral("redo stack: ") + problem;
    }
    return {};
}

QString Stage::lossProblem(const Expectation &expected, const Before &before) const
{
    if (expected.loss == Expectation::Everything)
        return {};
    const QSet<QString> kept = expected.loss == Expectation::Nothing
        ? before.known
        : QSet<QString>(before.ids.begin(), before.ids.end());
    return knownIds().contains(kept) ? QString() : QStringLiteral("an element was lost");
}

QString Stage::selectionProblem() const
{
    const QRectF bounds = canvas.getSelectedElementBoundingRect();
    const CanvasDocument &document = canvas.document();
    if (!canvas.hasSelectedElement()) {
        return document.elements.contains(selectedId) || !bounds.isNull()
            ? QStringLiteral("the selection was lost")
            : QString();
    }
    QList<const DrawingElement *> candidates = heldBy(document.history);
    candidates.append(document.elements.find(selectedId));
    for (const DrawingElement *element : candidates) {
        if (element && element->id == selectedId && QRectF(element->boundingRect()) == bounds)
            return {};
    }
    return QStringLiteral("the selection is nowhere");
}

QString Stage::numberProblem() const
{
    return canvas.lastNumber() == lastNumber
        ? QString()
        : QStringLiteral("the last number is %1, not %2").arg(canvas.lastNumber()).arg(lastNumber);
}

QString Stage::signalProblem(const Expectation &expected, const Before &before)
{
    const QStringList emitted = m_signals.take();
    if (expected.quiet && !emitted.isEmpty())
        return QStringLiteral("emitted ") + emitted.join(u' ');
    const QVariantList now = properties();
    const QMetaObject &type = MyPainter::staticMetaObject;
    for (qsizetype i = 0; i < now.size(); ++i) {
        const QMetaProperty property = type.property(type.propertyOffset() + static_cast<int>(i));
        const QString name = QString::fromLatin1(property.notifySignal().name());
        if (now.at(i) != before.properties.at(i) && !emitted.contains(name))
            return QStringLiteral("no ") + name;
    }
    return {};
}

QString Stage::recordProblem(const Expectation &expected, const Before &before) const
{
    if (!expected.records)
        return {};
    const auto &undo = canvas.document().history.undoEntries();
    const std::size_t size = before.undoSize + 1;
    const std::size_t most = History::kTrimmedSize;
    if (undo.size() != (expected.records->trims ? std::min(size, most) : size))
        return QStringLiteral("%1 changes are recorded, after %2")
            .arg(undo.size())
            .arg(before.undoSize);
    if (undo.back().kind != expected.records->kind)
        return QStringLiteral("another kind of change was recorded");
    return canvas.canRedo() ? QStringLiteral("undone changes outlive a new one") : QString();
}

QString Stage::pictureProblem(const Expectation &expectation, bool showsFrame)
{
    if (expectation.repaint == Expectation::Always)
        m_frozen = false;
    const bool doubtful = m_frozen && expectation.repaint == Expectation::Perhaps;
    if (!showsFrame && !doubtful)
        return {};
    const QSize size(geometry::truncated(canvas.width()), geometry::truncated(canvas.height()));
    const QImage expected =
        m_frozen ? m_frozenPicture : referencePicture(canvas.document().elements, size);
    const QImage &shown = canvas.cachedPicture();
    if (shown == expected)
        return {};
    if (doubtful && shown == referencePicture(canvas.document().elements, size)) {
        m_frozen = false;
        return {};
    }
    if (shown.size() != expected.size())
        return QStringLiteral("the picture has another size");
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            if (shown.pixel(x, y) != expected.pixel(x, y)) {
                return QStringLiteral("pixel (%1, %2) is %3, not %4")
                    .arg(x)
                    .arg(y)
                    .arg(shown.pixel(x, y), 8, 16)
                    .arg(expected.pixel(x, y), 8, 16);
            }
        }
    }
    return {};
}
