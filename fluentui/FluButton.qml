import QtQuick
import QtQuick.Templates as T
import FluentUI

T.Button {
    id: root

    property bool disabled: false
    property string contentDescription: ""
    property color normalColor: FluTheme.dark ? "#3E3E3E" : "#FEFEFE"
    property color hoverColor: FluTheme.dark ? "#444444" : "#F6F6F6"
    property color disableColor: FluTheme.dark ? "#3B3B3B" : "#FBFBFB"
    property color dividerColor: FluTheme.strokeColor
    property color textColor: {
        if (!enabled)
            return FluTheme.dark ? "#838383" : "#A0A0A0";
        if (down)
            return FluTheme.dark ? "#A2A2A2" : "#606060";
        return FluTheme.dark ? "#FFFFFF" : "#000000";
    }

    enabled: !disabled
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    font: FluTextStyle.Body
    horizontalPadding: 12
    verticalPadding: 0
    implicitWidth: Math.max(30, Math.ceil(implicitContentWidth) + leftPadding + rightPadding)
    implicitHeight: Math.max(30, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.description: contentDescription
    Accessible.onPressAction: root.clicked()

    contentItem: Text {
        text: root.text
        font: root.font
        color: root.textColor
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    background: FluControlBackground {
        color: {
            if (!root.enabled)
                return root.disableColor;
            return root.hovered && !root.down ? root.hoverColor : root.normalColor;
        }
        strokeColor: root.dividerColor
        raised: root.enabled && !root.down

        FluFocusFrame {
            anchors.fill: parent
            visible: root.activeFocus
        }
    }
}
