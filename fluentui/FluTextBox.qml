import QtQuick
import QtQuick.Templates as T
import FluentUI

T.TextField {
    id: root

    signal commit(string text)

    property bool disabled: false
    property int iconSource: 0
    property bool cleanEnabled: true
    property color normalColor: FluTheme.dark ? "#FFFFFF" : "#1B1B1B"
    property color disableColor: FluTheme.dark ? "#838383" : "#A0A0A0"
    property color placeholderNormalColor: FluTheme.dark ? "#D2D2D2" : "#606060"
    property color placeholderFocusColor: FluTheme.dark ? "#989898" : "#8D8D8D"
    property color placeholderDisableColor: disableColor

    readonly property bool showsCleaner: cleanEnabled && enabled && !readOnly && text !== ""

    function sendText(event) {
        event.accepted = true;
        commit(text);
    }

    enabled: !disabled
    hoverEnabled: true
    width: 240
    padding: 7
    rightPadding: padding + ends.width
    implicitWidth: 240
    implicitHeight: Math.max(32, Math.ceil(contentHeight) + topPadding + bottomPadding)
    font: FluTextStyle.Body
    color: enabled ? normalColor : disableColor
    placeholderTextColor: {
        if (!enabled)
            return placeholderDisableColor;
        return activeFocus ? placeholderFocusColor : placeholderNormalColor;
    }
    selectionColor: FluTheme.primaryColor
    selectedTextColor: FluTheme.accentTextColor
    selectByMouse: true
    renderType: Text.QtRendering
    verticalAlignment: TextInput.AlignVCenter

    Accessible.role: Accessible.EditableText
    Accessible.name: placeholderText

    Keys.onReturnPressed: event => root.sendText(event)
    Keys.onEnterPressed: event => root.sendText(event)
    // The selection stays to be copied while the menu has the focus.
    persistentSelection: menu.item?.visible ?? false
    onReleased: event => {
        if (event.button === Qt.RightButton && echoMode === TextInput.Normal) {
            forceActiveFocus();
            menu.active = true;
            menu.item.popup(root, event.x, event.y);
        }
    }

    Text {
        x: root.leftPadding
        width: root.width - root.leftPadding - root.rightPadding
        height: root.height
        visible: root.length === 0 && root.preeditText === ""
        text: root.placeholderText
        font: root.font
        color: root.placeholderTextColor
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }

    Row {
        id: ends

        x: root.width - width - 4
        height: root.height
        spacing: 4

        FluIconButton {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.showsCleaner
            width: 24
            height: 24
            padding: 0
            iconSource: FluentIcons.Cancel
            iconSize: 12
            focusPolicy: Qt.NoFocus
            contentDescription: qsTr("Clear")
            onClicked: root.clear()
        }
        Item {
            visible: root.iconSource !== 0
            width: 20
            height: parent.height

            FluIcon {
                anchors.centerIn: parent
                iconSource: root.iconSource
                iconSize: 12
                color: root.placeholderTextColor
            }
        }
    }

    Loader {
        id: menu

        active: false
        sourceComponent: FluTextMenu {
            field: root
        }
    }

    background: FluFieldBackground {
        color: root.enabled ? (root.hovered && !root.activeFocus ? FluTheme.fieldHoverColor : FluTheme.fieldColor) : FluTheme.fieldDisableColor
        edited: root.activeFocus
    }
}
