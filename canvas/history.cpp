#include "canvas/history.h"

#include "canvas/copygeometry.h"
#include "canvas/elementlist.h"
#include "canvas/logtexts.h"
#include "elements/cloneelement.h"

#include <QDebug>

#include <algorithm>

namespace
{

HistoryEntry takeTop(std::vector<HistoryEntry> &stack)
{
    HistoryEntry entry = std::move(stack.back());
    stack.pop_back();
    return entry;
}

bool topIs(const std::vector<HistoryEntry> &stack, HistoryEntry::Kind kind)
{
    return !stack.empty() && stack.back().kind == kind;
}

ElementPtr takeFrom(ElementList &elements, const QString &id, Damage &damage)
{
    ElementPtr element = elements.take(id);
    if (element)
        damage.add(*element);
    return element;
}

void appendTo(ElementList &elements, ElementPtr element, Damage &damage)
{
    damage.add(*element);
    elements.append(std::move(element));
}

/// Gives the live element the geometry of `state`, and answers with a copy of what it was.
ElementPtr applyState(DrawingElement &live, const DrawingElement *state, Damage &damage)
{
    ElementPtr previous = copyOf(&live);
    damage.add(live);
    if (state)
        copyGeometry(*state, live);
    damage.add(live);
    return previous;
}

} // namespace

void History::push(HistoryEntry entry)
{
    m_undo.push_back(std::move(entry));
}

void History::trim()
{
    const auto excess = static_cast<int>(m_undo.size()) - kTrimmedSize;
    if (excess > 0)
        m_undo.erase(m_undo.begin(), m_undo.begin() + excess);
}

void History::clearRedo()
{
    m_redo.clear();
}

void History::clear()
{
    m_undo.clear();
    m_redo.clear();
}

HistoryEntry *History::findRemoval(const QString &elementId)
{
    const auto find = [&elementId](Stack &stack, auto recordsRemoval) {
        const auto found = std::find_if(stack.begin(), stack.end(), [&](const HistoryEntry &entry) {
            return recordsRemoval(entry.kind) && entry.elementId == elementId;
        });
        return found == stack.end() ? nullptr : &*found;
    };
    const auto erased = [](HistoryEntry::Kind kind) { return kind == HistoryEntry::Erase; };
    const auto removed = [](HistoryEntry::Kind kind) {
        return kind == HistoryEntry::Erase || kind == HistoryEntry::Delete;
    };
    HistoryEntry *entry = find(m_undo, erased);
    return entry ? entry : find(m_redo, removed);
}

bool History::undo(ElementList &elements, Damage &damage)
{
    if (m_undo.empty()) {
        qDebug() << CanvasLog::kNothingToUndo;
        return false;
    }
    qDebug() << CanvasLog::kUndo;
    HistoryEntry entry = takeTop(m_undo);
    const Step step{ elements, damage };
    switch (entry.kind) {
    case HistoryEntry::Add:
        undoAdd(std::move(entry), step);
        break;
    case HistoryEntry::Delete:
    case HistoryEntry::Erase:
        undoRemoval(std::move(entry), step);
        break;
    case HistoryEntry::EraserGroup:
        undoEraserGroup(entry, step);
        break;
    case HistoryEntry::Modify:
        undoModify(std::move(entry), step);
        break;
    case HistoryEntry::Transform:
        undoTransform(std::move(entry), step);
        break;
    }
    return true;
}

bool History::redo(ElementList &elements, Damage &damage)
{
    if (m_redo.empty()) {
        qDebug() << CanvasLog::kNothingToRedo;
        return false;
    }
    qDebug() << CanvasLog::kRedo;
    HistoryEntry entry = takeTop(m_redo);
    const Step step{ elements, damage };
    switch (entry.kind) {
    case HistoryEntry::Add:
        redoAdd(std::move(entry), step);
        break;
    case HistoryEntry::Delete:
    case HistoryEntry::Erase:
        redoRemoval(std::move(entry), step);
        break;
    case HistoryEntry::EraserGroup:
        redoEraserGroup(entry, step);
        break;
    case HistoryEntry::Modify:
        redoModify(std::move(entry), step);
        break;
    case HistoryEntry::Transform:
        redoTransform(std::move(entry), step);
        break;
    }
    return true;
}

void History::undoAdd(HistoryEntry entry, Step step)
{
    entry.element = takeFrom(step.elements, entry.elementId, step.damage);
    if (!entry.element)
        return;
    qDebug() << CanvasLog::kUndoAdd << entry.elementId;
    m_redo.push_back(std::move(entry));
}

void History::undoRemoval(HistoryEntry entry, Step step)
{
    if (!entry.element)
        return;
    qDebug() << CanvasLog::kUndoRemoval << entry.elementId;
    if (step.elements.contains(entry.elementId)) {
        qDebug() << CanvasLog::kRestoreSkipped;
        return;
    }
    appendTo(step.elements, std::move(entry.element), step.damage);
    m_redo.push_back(std::move(entry));
}

void History::undoEraserGroup(const HistoryEntry &entry, Step step)
{
    qDebug() << CanvasLog::kUndoEraserGroup << entry.elementId;
    m_redo.push_back({ HistoryEntry::EraserGroup, entry.elementId });
    while (topIs(m_undo, HistoryEntry::Erase)) {
        HistoryEntry erased = takeTop(m_undo);
        if (!erased.element)
            continue;
        qDebug() << CanvasLog::kGroupRestore << erased.elementId;
        if (step.elements.contains(erased.elementId)) {
            qDebug() << CanvasLog::kGroupRestoreSkipped;
            continue;
        }
        appendTo(step.elements, std::move(erased.element), step.damage);
        m_redo.push_back(std::move(erased));
    }
}

void History::undoModify(HistoryEntry entry, Step step)
{
    DrawingElement *live = step.elements.find(entry.elementId);
    if (!live)
        return;
    qDebug() << CanvasLog::kUndoModify << entry.elementId;
    entry.before = applyState(*live, entry.before.get(), step.damage);
    m_redo.push_back(std::move(entry));
}

void History::undoTransform(HistoryEntry entry, Step step)
{
    qDebug() << CanvasLog::kUndoTransform << entry.elementId;
    takeFrom(step.elements, entry.elementId, step.damage);
    if (!entry.before)
        return;
    // The state put back is also what a redo puts back: the two states change places, and the
    // list and the entry each own their copy of it.
    std::swap(entry.before, entry.after);
    appendTo(step.elements, copyOf(entry.after.get()), step.damage);
    qDebug() << CanvasLog::kTransformUndone << entry.elementId;
    m_redo.push_back(std::move(entry));
}

void History::redoAdd(HistoryEntry entry, Step step)
{
    qDebug() << CanvasLog::kRedoAdd << entry.elementId;
    if (step.elements.contains(entry.elementId)) {
        qDebug() << CanvasLog::kAddSkipped;
        return;
    }
    appendTo(step.elements, std::move(entry.element), step.damage);
    m_undo.push_back(std::move(entry));
}

void History::redoRemoval(HistoryEntry entry, Step step)
{
    qDebug() << CanvasLog::kRedoRemoval << entry.elementId;
    ElementPtr element = takeFrom(step.elements, entry.elementId, step.damage);
    // The eraser may have taken the element in the meantime and left it with this entry.
    if (element)
        entry.element = std::move(element);
    if (entry.element)
        m_undo.push_back(std::move(entry));
}

void History::redoEraserGroup(const HistoryEntry &entry, Step step)
{
    qDebug() << CanvasLog::kRedoEraserGroup << entry.elementId;
    m_undo.push_back({ HistoryEntry::EraserGroup, entry.elementId });
    while (topIs(m_redo, HistoryEntry::Erase)) {
        HistoryEntry erased = takeTop(m_redo);
        qDebug() << CanvasLog::kGroupRemove << erased.elementId;
        if (ElementPtr element = takeFrom(step.elements, erased.elementId, step.damage))
            erased.element = std::move(element);
        else
            qDebug() << CanvasLog::kGroupElementMissing << erased.elementId;
        // As above: an element that is already with its entry stays there.
        if (erased.element)
            m_undo.push_back(std::move(erased));
    }
}

void History::redoModify(HistoryEntry entry, Step step)
{
    DrawingElement *live = step.elements.find(entry.elementId);
    if (!live)
        return;
    qDebug() << CanvasLog::kRedoModify << entry.elementId;
    entry.before = applyState(*live, entry.after.get(), step.damage);
    m_undo.push_back(std::move(entry));
}

void History::redoTransform(HistoryEntry entry, Step step)
{
    qDebug() << CanvasLog::kRedoTransform << entry.elementId;
    takeFrom(step.elements, entry.elementId, step.damage);
    if (!entry.after)
        return;
    // An undo stored the state before the transform as `after`: redo keeps the element there.
    std::swap(entry.before, entry.after);
    appendTo(step.elements, copyOf(entry.before.get()), step.damage);
    qDebug() << CanvasLog::kTransformRedone << entry.elementId;
    m_undo.push_back(std::move(entry));
}
