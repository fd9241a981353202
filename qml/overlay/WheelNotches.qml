import QtQml

// Adds up the fractions of a notch in which fine wheels and touch pads report.
QtObject {
    id: root

    readonly property int notch: 120
    property int rest: 0

    /// Whole notches that this event completes; positive is up, away from the hand.
    function completedBy(wheel): int {
        const delta = wheel.angleDelta.y;
        if (delta * root.rest < 0)
            root.rest = 0; // the hand turned around
        const sum = root.rest + delta;
        const notches = Math.trunc(sum / root.notch);
        root.rest = sum - notches * root.notch;
        return notches;
    }
}
