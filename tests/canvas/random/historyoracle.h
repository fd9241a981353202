#pragma once

#include <QRect>
#include <QStringList>

#include <optional>

class CanvasDocument;

/// What the board must hold after a step through the history, told from the stacks before it.
struct HistoryOutcome {
    QStringList ids; ///< of the elements, in drawing order
    std::optional<QRect> topBounds; ///< of the topmost element, when the step puts it there
};

[[nodiscard]] QStringList idsOf(const CanvasDocument &document);
/// Null when there is nothing to undo.
[[nodiscard]] std::optional<HistoryOutcome> outcomeOfUndo(const CanvasDocument &document);
/// Null when there is nothing to redo.
[[nodiscard]] std::optional<HistoryOutcome> outcomeOfRedo(const CanvasDocument &document);
