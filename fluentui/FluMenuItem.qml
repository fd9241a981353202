import QtQuick
import QtQuick.Templates as T
import FluentUI

T.MenuItem {
    id: root

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: 30
    horizontalPadding: 10
    hoverEnabled: true
    font: FluTextStyle.Body

    contentItem: Text {
        text: root.text
        font: root.font
        color: root.enabled ? FluTheme.fontPrimaryColor : (FluTheme.dark ? "#838383" : "#A0A0A0")
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        radius: 4
        color: {
            if (root.down)
                return FluTheme.itemPressedColor;
            return root.highlighted ? FluTheme.itemHoverColor : "transparent";
        }
    }
}
