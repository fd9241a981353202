import QtQuick

/// The surface of a control, with the darker lower edge of what can be pressed.
Rectangle {
    id: root

    property color strokeColor: FluTheme.strokeColor
    property bool raised: true

    radius: 4
    border.width: 1
    border.color: strokeColor

    Rectangle {
        x: root.radius
        y: root.height - 1
        width: root.width - 2 * root.radius
        height: 1
        visible: root.raised
        color: FluTheme.dark ? Qt.lighter(root.strokeColor, 1.2) : Qt.darker(root.strokeColor, 1.15)
    }
}
