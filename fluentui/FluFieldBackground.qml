import QtQuick

/// The surface of a field that takes text, underlined while it is edited.
Rectangle {
    id: root

    property bool edited: false

    radius: 4
    border.width: 1
    border.color: FluTheme.strokeColor

    // Cut out of a rounded rectangle, so that the line follows the lower corners.
    Item {
        y: root.height - height
        width: root.width
        height: root.edited ? 2 : 1
        clip: true
        visible: root.enabled

        Rectangle {
            y: parent.height - height
            width: parent.width
            height: root.height
            radius: root.radius
            color: root.edited ? FluTheme.primaryColor : FluTheme.textStrokeColor
        }
    }
}
