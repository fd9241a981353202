import QtQuick
import QtQuick.Templates as T

/// The thin scroll bar of a panel; it stands in the margin.
T.ScrollBar {
    id: root

    implicitWidth: 8
    minimumSize: 0.1
    visible: size < 1

    contentItem: Rectangle {
        implicitWidth: 4
        radius: 2
        color: "black"
        opacity: root.pressed ? 0.45 : root.hovered ? 0.3 : 0.15
    }
}
