import QtQuick

/// The frame around the control that has the keyboard focus.
Rectangle {
    id: root

    color: "transparent"
    radius: 4
    border.width: 2
    border.color: FluTheme.focusColor
}
