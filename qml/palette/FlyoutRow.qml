import QtQuick
import FluentUI
import "Theme.js" as Theme

/// One row of a flyout and the line beneath it.
Column {
    id: root

    required property int rowHeight
    required property real scaleFactor
    required property var value
    required property string name
    /// 0 an icon code, 1 a picture, 2 text.
    required property int kind
    property bool enableEvent: false
    /// The row that the keyboard stands on.
    property bool current: false
    property bool last: false
    property bool tipOnLeft: false

    signal chosen()

    spacing: Math.round(2 * scaleFactor)

    Loader {
        width: root.width
        height: root.rowHeight
        clip: true
        sourceComponent: [iconRow, pictureRow, textRow][root.kind]

        Rectangle {
            anchors.fill: parent
            z: 1
            visible: root.current
            color: "transparent"
            radius: 4
            border { color: Theme.accent; width: 2 }
        }
    }

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.round(root.width * 0.7)
        height: Math.round(root.scaleFactor)
        color: Theme.separator
        opacity: root.last ? 0 : 1
    }

    Component {
        id: iconRow

        FluIconButton {
            iconSource: Number(root.value)
            hoverColor: "gray"
            contentDescription: root.name
            onClicked: root.chosen()
        }
    }

    Component {
        id: pictureRow

        Item {
            MyIconButton {
                anchors.centerIn: parent
                width: 50 * root.scaleFactor
                height: 40 * root.scaleFactor
                img_src: root.value
                enableEvent: root.enableEvent
                toolTipText: root.name
                tipOnLeft: root.tipOnLeft
                activeFocusOnTab: false
                onClickedLeft: root.chosen()
            }
        }
    }

    Component {
        id: textRow

        Rectangle {
            color: area.containsMouse ? Theme.rowHover : Theme.paper
            Accessible.role: Accessible.MenuItem
            Accessible.name: root.name
            Accessible.onPressAction: root.chosen()

            Text {
                anchors.fill: parent
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                text: root.name
                color: Theme.ink
                font.pixelSize: Math.round(12 * root.scaleFactor)
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 6
            }

            MouseArea {
                id: area
                anchors.fill: parent
                hoverEnabled: true
                onClicked: root.chosen()
            }
        }
    }
}
