import QtQuick
import QtQuick.Templates as T
import FluentUI

/// A row of a combo box's list; the chosen one bears a mark in the accent colour.
T.ItemDelegate {
    id: root

    property bool chosen: false

    implicitHeight: 32
    horizontalPadding: 11
    hoverEnabled: true
    font: FluTextStyle.Body

    contentItem: Text {
        text: root.text
        font: root.font
        color: FluTheme.fontPrimaryColor
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        radius: 4
        color: {
            if (root.down)
                return FluTheme.itemPressedColor;
            return root.highlighted || root.chosen ? FluTheme.itemHoverColor : "transparent";
        }

        Rectangle {
            y: Math.round((root.height - height) / 2)
            width: 3
            height: 16
            radius: 1.5
            visible: root.chosen
            color: FluTheme.primaryColor
        }
    }
}
