import QtQuick
import "Theme.js" as Theme

// Colours that read well on most screens, one click away.
Grid {
    id: root

    required property color current
    readonly property var swatches: [
        "#ff0000", "#ff8c00", "#ffd400", "#12a150", "#00b7c3", "#0078d4", "#8764b8", "#e3008c",
        "#ffffff", "#c8c8c8", "#7a7a7a", "#000000", "#8e562e", "#004e8c", "#0b6a0b", "#a4262c"
    ]

    signal picked(color color)

    columns: 8
    columnSpacing: (width - columns * 22) / (columns - 1)
    rowSpacing: 6

    Repeater {
        model: root.swatches

        Rectangle {
            id: swatch

            required property string modelData
            readonly property bool chosen: Qt.colorEqual(swatch.modelData, root.current) // qmllint disable unqualified

            width: 22
            height: 22
            radius: 11
            color: "transparent"
            border.color: swatch.chosen || area.containsMouse ? Theme.ink : "transparent"
            border.width: swatch.chosen ? 2 : 1
            Accessible.role: Accessible.Button
            Accessible.name: swatch.modelData

            Rectangle {
                anchors.fill: parent
                anchors.margins: 3
                radius: width / 2
                color: swatch.modelData
                border.color: Theme.hairline
                border.width: Qt.colorEqual(swatch.modelData, "#ffffff") ? 1 : 0
            }

            MouseArea {
                id: area
                anchors.fill: parent
                hoverEnabled: true
                cursorShape: Qt.PointingHandCursor
                onClicked: root.picked(swatch.modelData) // qmllint disable unqualified
            }
        }
    }
}
