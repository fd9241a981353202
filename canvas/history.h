#pragma once

#include "canvas/damage.h"
#include "elements/drawingelement.h"

#include <QString>

#include <vector>

class ElementList;

/// One change that can be taken back or done again. An entry owns the elements that it holds.
struct HistoryEntry {
    enum Kind { Add, Delete, Erase, EraserGroup, Modify, Transform };

    Kind kind;
    QString elementId; ///< of an `EraserGroup`: the group's id
    ElementPtr element = nullptr; ///< the removed element while it is out of the list
    ElementPtr before = nullptr; ///< state before a `Modify` or `Transform`
    ElementPtr after = nullptr; ///< state after it
};

/// The two stacks of changes. It knows neither painting nor QML: undo and redo work on the list
/// they are given and tell which area of the canvas now looks different.
class History
{
public:
    /// Deleting and fading keep no more entries than this.
    static constexpr int kTrimmedSize = 20;

    [[nodiscard]] bool canUndo() const { return !m_undo.empty(); }
    [[nodiscard]] bool canRedo() const { return !m_redo.empty(); }
    /// Both stacks with their tops last.
    [[nodiscard]] const std::vector<HistoryEntry> &undoEntries() const { return m_undo; }
    [[nodiscard]] const std::vector<HistoryEntry> &redoEntries() const { return m_redo; }

    void push(HistoryEntry entry);
    /// Drops the oldest entries, and the elements they own, down to `kTrimmedSize`.
    void trim();
    void clearRedo();
    void clear();

    /// The entry that already records the eraser's removal of this element, or null.
    [[nodiscard]] HistoryEntry *findRemoval(const QString &elementId);

    /// False when there is nothing to undo. `damage` grows by the area that changed.
    bool undo(ElementList &elements, Damage &damage);
    /// False when there is nothing to redo. `damage` grows by the area that changed.
    bool redo(ElementList &elements, Damage &damage);

private:
    using Stack = std::vector<HistoryEntry>;
    /// What one undo or redo works with.
    struct Step {
        ElementList &elements;
        Damage &damage;
    };

    void undoAdd(HistoryEntry entry, Step step);
    void undoRemoval(HistoryEntry entry, Step step);
    void undoEraserGroup(const HistoryEntry &entry, Step step);
    void undoModify(HistoryEntry entry, Step step);
    void undoTransform(HistoryEntry entry, Step step);
    void redoAdd(HistoryEntry entry, Step step);
    void redoRemoval(HistoryEntry entry, Step step);
    void redoEraserGroup(const HistoryEntry &entry, Step step);
    void redoModify(HistoryEntry entry, Step step);
    void redoTransform(HistoryEntry entry, Step step);

    Stack m_undo;
    Stack m_redo;
};
