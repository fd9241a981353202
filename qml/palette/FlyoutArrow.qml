import QtQuick
import "Theme.js" as Theme

/// The arrow at a flyout's edge that points at the button whose flyout it is. Its base lies on the
/// panel's border and opens it.
Canvas {
    id: root

    property bool pointsRight: false

    onPointsRightChanged: requestPaint()
    onPaint: {
        const context = getContext("2d");
        const tip = pointsRight ? width - 0.5 : 0.5;
        const base = pointsRight ? 0 : width;
        context.reset();
        context.beginPath();
        context.moveTo(base, 0);
        context.lineTo(tip, height / 2);
        context.lineTo(base, height);
        context.fillStyle = Theme.paper;
        context.fill();
        context.strokeStyle = Theme.hairline;
        context.lineWidth = 1;
        context.stroke();
    }
}
