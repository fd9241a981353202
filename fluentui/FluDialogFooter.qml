import QtQuick

/// The strip at the lower end of a dialog with its buttons side by side, all of one width.
Rectangle {
    id: root

    default property alias buttons: row.data
    /// How wide each button is, so that all of them fill the strip.
    readonly property real buttonWidth: (row.width - (row.children.length - 1) * row.spacing)
        / Math.max(1, row.children.length)

    height: 68
    color: FluTheme.dialogFooterColor

    // Only the lower corners are round.
    Rectangle {
        width: parent.width
        height: root.radius
        color: root.color
    }
    Rectangle {
        width: parent.width
        height: 1
        color: FluTheme.strokeColor
    }
    Row {
        id: row

        x: 20
        y: 18
        width: parent.width - 40
        spacing: 10
    }
}
