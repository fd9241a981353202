#pragma once

#include "canvas/damage.h"

#include <QString>

/// What the canvas's collaborators report while they work. The canvas item turns each report into
/// a signal or a repaint at once, so that listeners see them in the order in which things happen.
class CanvasEvents
{
public:
    virtual ~CanvasEvents() = default;

    virtual void undoStackChanged() = 0;
    virtual void redoStackChanged() = 0;
    virtual void selectionChanged() = 0;
    virtual void elementCompleted(const QString &elementId) = 0;
    /// Breathing was found on or off; reported at every step of the pulse.
    virtual void breathingReported(bool on) = 0;
    /// The list now paints differently where `damage`, which may be empty, tells. The elements
    /// below index `lowest` paint as before; 0 is always true.
    virtual void contentChanged(const Damage &damage, int lowest) = 0;
};
