import QtQuick

// The pointer on a text editor: places the caret, selects, drags the editor about, resizes its font.
MouseArea {
    id: root

    /// What a drag moves.
    required property Item box
    /// Its text; what surrounds it is the strip that can always be dragged.
    required property TextEdit edit
    required property bool dragAnywhere
    property point pressPos
    property bool mayDrag: false
    property bool dragging: false

    function onBorderStrip(mouse): bool {
        return mouse.x < root.edit.x || mouse.x > root.edit.x + root.edit.width
            || mouse.y < root.edit.y || mouse.y > root.edit.y + root.edit.height;
    }

    function caretAt(mouse): int {
        return root.edit.positionAt(mouse.x - root.edit.x, mouse.y - root.edit.y);
    }

    preventStealing: true
    cursorShape: root.dragging ? Qt.ClosedHandCursor : Qt.IBeamCursor

    onPressed: mouse => {
        root.pressPos = Qt.point(mouse.x, mouse.y);
        root.mayDrag = root.dragAnywhere || root.onBorderStrip(mouse);
        root.dragging = false;
        InputMethod.commit();
        root.edit.forceActiveFocus();
        root.edit.cursorPosition = root.caretAt(mouse);
    }

    onPositionChanged: mouse => {
        const dx = mouse.x - root.pressPos.x;
        const dy = mouse.y - root.pressPos.y;
        root.dragging = root.dragging || (root.mayDrag && Math.max(Math.abs(dx), Math.abs(dy)) > 5);
        if (root.dragging) {
            root.box.x = Math.max(0, root.box.x + dx);
            root.box.y = Math.max(0, root.box.y + dy);
        } else if (!root.mayDrag) {
            root.edit.moveCursorSelection(root.caretAt(mouse));
        }
    }

    onReleased: root.dragging = false

    onWheel: wheel => {
        wheel.accepted = (wheel.modifiers & Qt.ControlModifier) !== 0;
        if (!wheel.accepted)
            return;
        const size = root.edit.font.pixelSize + notches.completedBy(wheel);
        root.edit.font.pixelSize = Math.max(8, Math.min(72, size));
    }

    WheelNotches { id: notches }
}
