import QtQuick
import QtQuick.Templates as T
import FluentUI

T.ToolTip {
    id: root

    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: -height - 4
    implicitWidth: Math.ceil(contentItem.implicitWidth) + leftPadding + rightPadding
    implicitHeight: Math.ceil(contentItem.implicitHeight) + topPadding + bottomPadding
    margins: 6
    horizontalPadding: 8
    verticalPadding: 5
    font: FluTextStyle.Caption
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent | T.Popup.CloseOnReleaseOutsideParent

    contentItem: Text {
        text: root.text
        textFormat: Text.PlainText
        font: root.font
        color: FluTheme.fontPrimaryColor
        wrapMode: Text.Wrap
    }

    background: Rectangle {
        radius: 4
        color: FluTheme.dark ? "#323232" : "#F9F9F9"
        border.color: FluTheme.flyoutStrokeColor
    }
}
