import QtQuick
import QtQuick.Templates as T
import FluentUI

T.Button {
    id: root

    property bool disabled: false
    property int iconSource: 0
    property int iconSize: 20
    property int radius: 4
    property string contentDescription: ""
    property color normalColor: "transparent"
    property color hoverColor: FluTheme.dark ? Qt.rgba(1, 1, 1, 0.06) : Qt.rgba(0, 0, 0, 0.03)
    property color pressedColor: FluTheme.dark ? Qt.rgba(1, 1, 1, 0.09) : Qt.rgba(0, 0, 0, 0.06)
    property color disableColor: "transparent"
    property color color: {
        if (!enabled)
            return disableColor;
        if (down)
            return pressedColor;
        return hovered ? hoverColor : normalColor;
    }
    property color iconColor: plainColor
    property color textColor: plainColor
    property Component iconDelegate: FluIcon {
        iconSource: root.iconSource
        iconSize: root.iconSize
        color: root.iconColor
    }

    readonly property color plainColor: {
        if (!enabled)
            return FluTheme.dark ? "#828282" : "#A1A1A1";
        return FluTheme.dark ? "#FFFFFF" : "#000000";
    }
    readonly property bool showsIcon: display !== T.AbstractButton.TextOnly
    readonly property bool showsText: display !== T.AbstractButton.IconOnly && text !== ""

    enabled: !disabled
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    display: T.AbstractButton.IconOnly
    font: FluTextStyle.Caption
    padding: 8
    spacing: 6
    implicitWidth: Math.max(30, Math.ceil(implicitContentWidth) + leftPadding + rightPadding)
    implicitHeight: Math.max(30, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)

    Accessible.role: Accessible.Button
    Accessible.name: contentDescription !== "" ? contentDescription : text
    Accessible.onPressAction: root.clicked()

    contentItem: Item {
        implicitWidth: content.implicitWidth
        implicitHeight: content.implicitHeight

        Grid {
            id: content

            anchors.centerIn: parent
            spacing: root.spacing
            columns: root.display === T.AbstractButton.TextBesideIcon ? 2 : 1
            horizontalItemAlignment: Grid.AlignHCenter
            verticalItemAlignment: Grid.AlignVCenter

            Loader {
                active: root.showsIcon
                visible: active
                sourceComponent: root.iconDelegate
            }
            Text {
                visible: root.showsText
                text: root.text
                font: root.font
                color: root.textColor
            }
        }
    }

    background: Rectangle {
        radius: root.radius
        color: root.color

        FluFocusFrame {
            anchors.fill: parent
            radius: root.radius
            visible: root.activeFocus
        }
    }

    Loader {
        active: root.hovered && root.text !== "" && !root.showsText
        sourceComponent: FluTooltip {
            parent: root
            visible: true
            delay: 1000
            text: root.text
        }
    }
}
