import QtQuick

/// The surface of menus, lists and dialogs, with a soft shadow that needs no shader.
Rectangle {
    id: root

    property int depth: 4

    radius: 6
    color: FluTheme.flyoutColor
    border.width: 1
    border.color: FluTheme.flyoutStrokeColor

    Repeater {
        model: root.depth

        Rectangle {
            id: ring

            required property int index

            z: -1
            x: -index - 1
            y: -index
            width: root.width + 2 * index + 2
            height: root.height + 2 * index + 2
            radius: root.radius + index + 1
            color: "transparent"
            border.width: 1
            border.color: Qt.rgba(0, 0, 0, 0.06 * (1 - index / root.depth))
        }
    }
}
