import QtQuick

// One of the eight handles of a selection frame, its parent.
Rectangle {
    id: root

    required property string name
    /// -1 at the left or top edge, 1 at the right or bottom one, 0 in the middle between them.
    required property int horizontal
    required property int vertical
    readonly property int handleSize: 10
    property alias cursorShape: area.cursorShape

    /// Positions are in the handle's own coordinates, and the handle moves with the frame.
    signal grabbed(point pos)
    signal dragged(point pos)
    signal released

    x: (root.horizontal + 1) / 2 * root.parent.width - root.width / 2
    y: (root.vertical + 1) / 2 * root.parent.height - root.height / 2
    width: root.handleSize
    height: root.handleSize
    color: "white"
    border.color: "blue"
    border.width: 1

    MouseArea {
        id: area

        anchors.fill: parent
        anchors.margins: -3 // easier to hit than it looks

        onPressed: mouse => root.grabbed(Qt.point(mouse.x, mouse.y))
        onPositionChanged: mouse => root.dragged(Qt.point(mouse.x, mouse.y))
        onReleased: root.released()
        onCanceled: root.released()
    }
}
