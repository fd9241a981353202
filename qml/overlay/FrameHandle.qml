import QtQuick

// One of the eight handles of a selection frame.
Rectangle {
    id: root

    required property SelectionFrame frame
    required property string name
    /// -1 at the left or top edge, 1 at the right or bottom one, 0 in the middle between them.
    property int horizontal: 0
    property int vertical: 0
    property alias cursorShape: area.cursorShape

    x: (horizontal + 1) / 2 * frame.width - width / 2
    y: (vertical + 1) / 2 * frame.height - height / 2
    width: frame.handleSize
    height: frame.handleSize
    color: "white"
    border.color: "blue"
    border.width: 1

    MouseArea {
        id: area

        anchors.fill: parent
        anchors.margins: -3 // easier to hit than it looks

        onPressed: mouse => root.frame.grab(root.name, Qt.point(mouse.x, mouse.y))
        onPositionChanged: mouse => root.frame.drag(
            Qt.point(mouse.x, mouse.y), root.horizontal, root.vertical)
        onReleased: root.frame.release()
        onCanceled: root.frame.release()
    }
}
