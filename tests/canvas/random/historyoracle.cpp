#include "tests/canvas/random/historyoracle.h"

#include "canvas/canvasdocument.h"

namespace
{

using Step = void (*)(QStringList &ids, const QString &id);

void restore(QStringList &ids, const QString &id)
{
    if (!ids.contains(id))
        ids.append(id);
}

void takeAway(QStringList &ids, const QString &id)
{
    ids.removeOne(id);
}

/// Applies `step` to every entry of the eraser's group whose marker is on top of the stack.
void throughGroup(const std::vector<HistoryEntry> &stack, QStringList &ids, Step step)
{
    for (auto entry = stack.rbegin() + 1;
         entry != stack.rend() && entry->kind == HistoryEntry::Erase; ++entry)
        step(ids, entry->elementId);
}

} // namespace

QStringList idsOf(const CanvasDocument &document)
{
    QStringList ids;
    for (const ElementPtr &element : document.elements)
        ids.append(element->id);
    return ids;
}

std::optional<HistoryOutcome> outcomeOfUndo(const CanvasDocument &document)
{
    const auto &stack = document.history.undoEntries();
    if (stack.empty())
        return std::nullopt;
    const HistoryEntry &top = stack.back();
    HistoryOutcome outcome{ idsOf(document), {} };
    if (top.kind == HistoryEntry::Add) {
        takeAway(outcome.ids, top.elementId);
    } else if (top.kind == HistoryEntry::EraserGroup) {
        throughGroup(stack, outcome.ids, restore);
    } else if (top.kind == HistoryEntry::Transform) {
        takeAway(outcome.ids, top.elementId);
        restore(outcome.ids, top.elementId);
        outcome.topBounds = top.before->boundingRect();
    } else {
        restore(outcome.ids, top.elementId);
    }
    return outcome;
}

std::optional<HistoryOutcome> outcomeOfRedo(const CanvasDocument &document)
{
    const auto &stack = document.history.redoEntries();
    if (stack.empty())
        return std::nullopt;
    const HistoryEntry &top = stack.back();
    HistoryOutcome outcome{ idsOf(document), {} };
    if (top.kind == HistoryEntry::Add) {
        restore(outcome.ids, top.elementId);
    } else if (top.kind == HistoryEntry::EraserGroup) {
        throughGroup(stack, outcome.ids, takeAway);
    } else if (top.kind == HistoryEntry::Transform) {
        takeAway(outcome.ids, top.elementId);
        restore(outcome.ids, top.elementId);
        outcome.topBounds = top.after->boundingRect();
    } else {
        takeAway(outcome.ids, top.elementId);
    }
    return outcome;
}
