import QtQuick
import QtQuick.Templates as T
import FluentUI

T.ComboBox {
    id: root

    signal commit(string text)

    property bool disabled: false
    property color normalColor: FluTheme.dark ? "#3E3E3E" : "#FEFEFE"
    property color hoverColor: FluTheme.dark ? "#444444" : "#FBFBFB"
    property color disableColor: FluTheme.dark ? "#3B3B3B" : "#FCFCFC"
    property alias textBox: input

    readonly property color contentColor: {
        if (!enabled)
            return FluTheme.dark ? "#838383" : "#A0A0A0";
        return FluTheme.fontPrimaryColor;
    }

    function sendText(event) {
        if (editable && input.acceptableInput)
            commit(editText);
        event.accepted = false;
    }

    enabled: !disabled
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    implicitWidth: 140
    implicitHeight: 32
    leftPadding: 11
    rightPadding: 32
    font: FluTextStyle.Body

    Accessible.role: Accessible.ComboBox
    Accessible.name: displayText

    indicator: FluIcon {
        x: root.width - width - 11
        y: Math.round((root.height - height) / 2)
        iconSource: FluentIcons.ChevronDown
        iconSize: 10
        color: root.contentColor
    }

    contentItem: T.TextField {
        id: input

        text: root.editable ? root.editText : root.displayText
        enabled: root.editable
        readOnly: root.down || !root.editable
        autoScroll: root.editable
        selectByMouse: root.selectTextByMouse
        inputMethodHints: root.inputMethodHints
        validator: root.validator
        font: root.font
        color: root.contentColor
        selectionColor: FluTheme.primaryColor
        selectedTextColor: FluTheme.accentTextColor
        renderType: Text.QtRendering
        verticalAlignment: TextInput.AlignVCenter
        clip: true

        Keys.onReturnPressed: event => root.sendText(event)
        Keys.onEnterPressed: event => root.sendText(event)
    }

    background: FluControlBackground {
        color: {
            if (!root.enabled)
                return root.disableColor;
            return root.hovered ? root.hoverColor : root.normalColor;
        }
        raised: root.enabled && !root.down

        FluFocusFrame {
            anchors.fill: parent
            visible: root.activeFocus && popup.formerFocus === null
        }
    }

    delegate: FluComboItem {
        required property int index

        width: ListView.view.width
        text: root.textAt(index)
        chosen: root.currentIndex === index
        highlighted: root.highlightedIndex === index
    }

    popup: T.Popup {
        id: popup

        /// What had the keyboard before the pointer opened the list.
        property Item formerFocus: null

        // An open list is left with Escape, whatever else the key would do.
        onAboutToShow: {
            if (root.activeFocus)
                return;
            formerFocus = root.Window.activeFocusItem;
            root.forceActiveFocus(Qt.PopupFocusReason);
        }
        onClosed: {
            if (formerFocus)
                formerFocus.forceActiveFocus(Qt.PopupFocusReason);
            formerFocus = null;
        }

        y: root.height + 1
        width: root.width
        height: Math.min(implicitHeight, root.Window.window ? root.Window.window.height - 2 * margins : implicitHeight)
        implicitHeight: list.contentHeight + topPadding + bottomPadding
        modal: true
        dim: false
        padding: 4
        margins: 4

        contentItem: ListView {
            id: list

            clip: true
            model: root.delegateModel
            currentIndex: root.highlightedIndex
            // A list that moves, be it to its first place, would take the first press for itself.
            interactive: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: 0
        }
        background: FluFlyoutBackground {}
    }
}
