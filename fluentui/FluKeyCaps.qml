import QtQuick
import FluentUI

/// A row of caps in the accent colour, one for each key.
Row {
    id: root

    property alias keys: caps.model
    property int capHeight: 26
    property font font: FluTextStyle.BodyStrong

    spacing: 5

    Repeater {
        id: caps

        Rectangle {
            required property string modelData

            width: Math.max(height, Math.ceil(label.implicitWidth) + 14)
            height: root.capHeight
            radius: 4
            color: FluTheme.primaryColor

            Text {
                id: label

                anchors.centerIn: parent
                text: parent.modelData
                font: root.font
                color: FluTheme.accentTextColor
            }
        }
    }
}
