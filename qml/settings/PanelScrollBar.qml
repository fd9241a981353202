import QtQuick
import QtQuick.Templates as T

/// The thin scroll bar of a panel; it takes no room of its own.
T.ScrollBar {
    id: root

    implicitWidth: 8
    minimumSize: 0.1
    policy: size < 1 ? T.ScrollBar.AlwaysOn : T.ScrollBar.AlwaysOff

    contentItem: Rectangle {
        implicitWidth: 4
        radius: 2
        color: "black"
        opacity: root.pressed ? 0.45 : root.hovered ? 0.3 : 0.15
    }
}
