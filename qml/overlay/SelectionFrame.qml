import QtQuick
import QtQuick.Controls
import Cpp.MyComponents
import FluentUI

// The frame around the selected mark: eight handles scale it, the area between them moves it.
Item {
    id: root

    required property MyPainter painter
    /// The mark's bounds, in the canvas's coordinates.
    property rect elementRect
    /// Which handle is held down; "move" for the inner area.
    property string activeHandle: ""
    /// Where the handle was pressed and last seen, in its own coordinates: it moves with the frame,
    /// so what lies between is what the mark has yet to follow.
    property point startPos
    property point lastPos

    /// Puts the frame around the selected mark; false when there is none to be seen.
    function follow(): bool {
        const bounds = root.painter.getSelectedElementBoundingRect();
        if (!root.painter.hasSelectedElement() || bounds.width <= 0 || bounds.height <= 0)
            return false;
        root.elementRect = bounds;
        root.visible = true;
        return true;
    }

    /// Hides the frame and lets go of the mark.
    function dismiss(): void {
        root.visible = false;
        root.painter.clearSelection();
    }

    function covers(pos: point): bool {
        return root.visible && pos.x >= root.x && pos.y >= root.y && pos.x <= root.x + root.width
            && pos.y <= root.y + root.height;
    }

    function grab(handle: string, pos: point): void {
        root.activeHandle = handle;
        root.startPos = root.lastPos = pos;
        root.painter.beginTransformBatch();
    }

    function release(): void {
        root.activeHandle = "";
        root.painter.endTransformBatch();
    }

    /// Moves the held handle to `pos`. `horizontal` and `vertical` tell where it sits: -1 at the
    /// left or top edge, 1 at the right or bottom one, 0 between them.
    function drag(pos: point, horizontal: int, vertical: int): void {
        if (pos.x === root.lastPos.x && pos.y === root.lastPos.y)
            return;
        root.lastPos = pos;
        const dx = pos.x - root.startPos.x;
        const dy = pos.y - root.startPos.y;
        if (horizontal === 0 && vertical === 0)
            root.painter.translateSelectedElement(Math.round(dx), Math.round(dy));
        else
            root.scaleBy(horizontal, vertical, (root.width + horizontal * dx) / root.width,
                (root.height + vertical * dy) / root.height);
        root.follow();
    }

    function scaleBy(horizontal: int, vertical: int, factorX: real, factorY: real): void {
        const factor = horizontal === 0 ? factorY : vertical === 0 ? factorX
            : Math.min(factorX, factorY);
        if (factor <= 0.1)
            return;
        if (horizontal !== 0 && vertical !== 0)
            root.painter.scaleSelectedElement(factor);
        else
            root.painter.scaleSelectedElement(horizontal === 0 ? 1.0 : factor,
                vertical === 0 ? 1.0 : factor);
    }

    x: elementRect.x
    y: elementRect.y
    z: 100
    width: elementRect.width
    height: elementRect.height
    visible: false

    // The mark may change or go without the frame's doing: undo, clear, fading.
    Connections {
        target: root.painter
        enabled: root.visible && root.activeHandle === ""
        function onCanUndoChanged() { root.visible = root.follow(); }
        function onCanRedoChanged() { root.visible = root.follow(); }
        function onSelectedElementChanged() { root.visible = root.follow(); }
    }

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }

    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.color: "blue"
        border.width: 2
    }

    HintText {
        readonly property bool fits: root.y + root.height + 5 + height <= root.parent.height

        y: fits ? root.height + 5 : -5 - height
        text: qsTr("按ESC键隐藏控制点")
        textColor: "blue"
        font.pixelSize: 12
    }

    MouseArea {
        id: inner

        // A thin mark, such as a level line, still offers something to take hold of.
        anchors.centerIn: parent
        width: Math.max(root.width - 10, 10)
        height: Math.max(root.height - 10, 10)
        hoverEnabled: true
        cursorShape: Qt.SizeAllCursor
        ToolTip.text: qsTr("拖动可移动元素")
        ToolTip.delay: 500
        ToolTip.visible: containsMouse && !pressed

        onPressed: mouse => root.grab("move", Qt.point(mouse.x, mouse.y))
        onPositionChanged: mouse => {
            if (pressed)
                root.drag(Qt.point(mouse.x, mouse.y), 0, 0);
        }
        onReleased: root.release()
        onCanceled: root.release()
    }

    Repeater {
        // The corners last: on a small frame they cover the others.
        model: [
            { name: "topMiddle", horizontal: 0, vertical: -1, cursor: Qt.SizeVerCursor },
            { name: "bottomMiddle", horizontal: 0, vertical: 1, cursor: Qt.SizeVerCursor },
            { name: "leftMiddle", horizontal: -1, vertical: 0, cursor: Qt.SizeHorCursor },
            { name: "rightMiddle", horizontal: 1, vertical: 0, cursor: Qt.SizeHorCursor },
            { name: "topLeft", horizontal: -1, vertical: -1, cursor: Qt.SizeFDiagCursor },
            { name: "topRight", horizontal: 1, vertical: -1, cursor: Qt.SizeBDiagCursor },
            { name: "bottomLeft", horizontal: -1, vertical: 1, cursor: Qt.SizeBDiagCursor },
            { name: "bottomRight", horizontal: 1, vertical: 1, cursor: Qt.SizeFDiagCursor }
        ]

        FrameHandle {
            required property var modelData

            name: modelData.name
            horizontal: modelData.horizontal
            vertical: modelData.vertical
            cursorShape: modelData.cursor
            onGrabbed: pos => root.grab(name, pos)
            onDragged: pos => root.drag(pos, horizontal, vertical)
            onReleased: () => root.release()
        }
    }
}
