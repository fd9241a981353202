import QtQuick

/// The strip at the lower end of a dialog with its buttons side by side, all of one width.
Rectangle {
    id: root

    default property alias buttons: row.data

    height: 68
    color: FluTheme.dialogFooterColor

    // Only the lower corners are round.
    Rectangle {
        width: parent.width
        height: parent.radius
        color: parent.color
    }
    Rectangle {
        width: parent.width
        height: 1
        color: FluTheme.strokeColor
    }
    Row {
        id: row

        readonly property real buttonWidth: (width - (children.length - 1) * spacing) / Math.max(1, children.length)

        x: 20
        y: 18
        width: parent.width - 40
        spacing: 10
    }
}
