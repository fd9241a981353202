import QtQuick
import Cpp.MyComponents
import Dravelin.Platform
import "OverlayLog.js" as OverlayLog

// Turns the pointer's presses, moves, clicks and wheel steps on the overlay into marks, selections,
// text editors and moves of the background picture.
MouseArea {
    id: root

    required property MyPainter painter
    required property SelectionFrame frame
    required property TextEntry texts
    required property BackgroundPicture picture
    /// A click places a text editor instead of drawing.
    required property bool textMode
    /// The gesture comes from the eraser end of a tablet pen.
    required property bool eraserTip

    /// Whether the press under way feeds the canvas.
    property bool painting: false
    property bool draggingPicture: false
    /// The press has done all that its gesture is for; the click after it means nothing.
    property bool consumed: false
    /// The press was made to place a text editor: a hot key may change the mode before its release.
    property bool placingText: false
    /// The press of the eraser took hold of a mark: dragged on, it erases after all.
    property bool eraserOnMark: false
    property point lastPos
    readonly property int dragDistance: 5

    /// A click drew or deleted something.
    signal drewOrDeleted
    /// A gesture is over; what floats above the overlay may come up again.
    signal gestureEnded

    function pointOf(mouse): point {
        return Qt.point(Math.round(mouse.x), Math.round(mouse.y));
    }

    function shiftHeld(mouse): bool {
        return (mouse.modifiers & Qt.ShiftModifier) !== 0;
    }

    /// Completes the mark under the pen, as its release would.
    function finishGesture(): void {
        if (root.painting)
            root.endStroke(root.lastPos, false);
        root.draggingPicture = false;
    }

    function beginStroke(pos: point): void {
        root.painting = true;
        if (root.eraserTip)
            eraserEnd.lend();
        root.painter.beginPaint(pos);
    }

    /// A freehand stroke is complete with its last move: only the other tools end one.
    function endStroke(pos: point, shift: bool): void {
        root.painting = false;
        if (root.painter.drawMode !== MyPainter.FreehandMode)
            root.painter.endPaint(pos, shift);
        eraserEnd.giveBack();
    }

    function select(pos: point): bool {
        return !root.textMode && !root.eraserTip && root.painter.selectElementAt(pos)
            && root.frame.follow();
    }

    function press(pos: point, button: int, modifiers: int): void {
        root.placingText = root.textMode;
        root.consumed = root.texts.open && !root.texts.covers(pos, 10);
        if (root.consumed) {
            console.log(OverlayLog.editorLeft);
            root.texts.submitAndClose();
            return;
        }
        root.lastPos = pos;
        // The right button deletes marks and never selects one.
        if (root.frame.covers(pos))
            return;
        if (button === Qt.LeftButton && root.select(pos)) {
            root.eraserOnMark = root.painter.isEraserMode;
            return;
        }
        root.frame.dismiss();
        if (root.picture.visible && (modifiers & Qt.ControlModifier))
            root.draggingPicture = root.consumed = true;
        else if (button === Qt.LeftButton && !root.textMode)
            root.beginStroke(pos);
    }

    /// An eraser that is drawn across a mark is meant to erase it, not to take hold of it.
    function eraseIfDragged(pos: point): void {
        const start = root.lastPos;
        if (Math.max(Math.abs(pos.x - start.x), Math.abs(pos.y - start.y)) < root.dragDistance)
            return;
        root.eraserOnMark = false;
        root.frame.dismiss();
        root.beginStroke(start);
    }

    function click(pos: point, button: int): void {
        if (root.consumed || (button === Qt.LeftButton && root.frame.covers(pos)))
            return;
        if (root.placingText) {
            if (!root.texts.open)
                root.texts.placeAt(pos);
            else if (root.texts.submitAndClose())
                console.log(OverlayLog.editorDone);
            return;
        }
        root.texts.submitAndClose();
        root.drewOrDeleted();
        if (button === Qt.RightButton && root.painter.deleteElement(pos, 10))
            console.log(OverlayLog.elementDeleted);
    }

    anchors.fill: parent
    hoverEnabled: true
    acceptedButtons: Qt.LeftButton | Qt.RightButton

    onPressed: mouse => {
        if (!root.painting && !root.draggingPicture) // else: a second button amid the gesture
            root.press(root.pointOf(mouse), mouse.button, mouse.modifiers);
    }

    onPositionChanged: mouse => {
        const pos = root.pointOf(mouse);
        if (root.eraserOnMark && pressed)
            root.eraseIfDragged(pos);
        if (root.draggingPicture)
            root.picture.moveBy(pos.x - root.lastPos.x, pos.y - root.lastPos.y);
        else if (root.painting)
            root.painter.movePaint(pos, root.shiftHeld(mouse));
        if (!root.eraserOnMark)
            root.lastPos = pos;
    }

    onReleased: mouse => {
        const pos = root.pointOf(mouse);
        root.eraserOnMark = false;
        if (root.draggingPicture) {
            root.draggingPicture = false;
            return;
        }
        // First of all: a hot key may have brought up the frame where the stroke ends.
        if (root.painting && mouse.button === Qt.LeftButton)
            root.endStroke(pos, root.shiftHeld(mouse));
        else if (root.frame.covers(pos))
            return;
        root.gestureEnded();
    }

    onClicked: mouse => root.click(root.pointOf(mouse), mouse.button)

    onDoubleClicked: mouse => {
        // Quick clicks are clicks too: they delete two marks, or close an editor and open the next.
        if (root.texts.open)
            root.texts.submitAndClose();
        else
            root.click(root.pointOf(mouse), mouse.button);
    }

    onCanceled: root.finishGesture()

    onWheel: wheel => {
        wheel.accepted = root.picture.visible && (wheel.modifiers & Qt.ControlModifier) !== 0;
        if (!wheel.accepted)
            return;
        const steps = notches.completedBy(wheel);
        for (let i = 0; i < Math.abs(steps); ++i)
            root.picture.zoom(steps > 0 ? 1.1 : 0.9);
    }

    WheelNotches { id: notches }

    EraserEnd {
        id: eraserEnd
        painter: root.painter
    }

    PointerCursor {
        readonly property bool drawing: !root.textMode && !root.frame.visible

        target: root
        picture: !drawing ? ""
            : root.painter.isEraserMode ? "qrc:/icons/erase.png" : "qrc:/icons/penmodel.png"
        offset: root.painter.isEraserMode ? Qt.point(0, 0) : Qt.point(10, -10)
    }
}
