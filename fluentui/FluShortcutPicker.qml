import QtQuick
import FluentUI

/// Shows a key combination and lets the user press another one in a dialog.
FluIconButton {
    id: root

    signal accepted

    property var current: ["Ctrl", "Shift", "A"]
    property string title: "Activate the Shortcut"
    property string message: "Press the key combination to change the shortcut"
    property string positiveText: "Save"
    property string neutralText: "Cancel"
    property string negativeText: "Reset"
    property bool registered: true
    property color errorColor: "#FA5555"
    property FluHotkey syncHotkey: null

    function accept(keys) {
        current = keys;
        accepted();
        if (syncHotkey)
            syncHotkey.sequence = keys.join("+");
    }

    function followHotkey() {
        if (!syncHotkey) {
            registered = true;
            return;
        }
        current = syncHotkey.sequence.split("+").filter(name => name !== "");
        registered = Qt.binding(() => !root.syncHotkey || root.syncHotkey.isRegistered);
    }

    padding: 0
    display: FluIconButton.TextBesideIcon
    font: FluTextStyle.Body
    contentDescription: registered ? text + " " + current.join("+") : text + " " + current.join("+") + " " + conflict.text

    onSyncHotkeyChanged: followHotkey()
    onClicked: {
        dialog.hadFocus = activeFocus;
        dialog.active = true;
    }

    contentItem: Item {
        implicitWidth: label.width + label.gap + box.width + conflict.space
        implicitHeight: 42

        FluText {
            id: label

            readonly property int gap: text === "" ? 0 : 10

            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            font: root.font
            textColor: root.textColor
        }
        // In a picker wider than it needs to be, labels stand at the left and boxes at the right.
        FluControlBackground {
            id: box

            anchors.verticalCenter: parent.verticalCenter
            x: parent.width - conflict.space - width
            width: keys.width + 20
            height: Math.min(42, parent.height)
            color: root.hovered ? FluTheme.fieldHoverColor : FluTheme.fieldColor

            Row {
                id: keys

                anchors.centerIn: parent
                spacing: 8

                FluKeyCaps {
                    anchors.verticalCenter: parent.verticalCenter
                    keys: root.current
                }
                FluIcon {
                    anchors.verticalCenter: parent.verticalCenter
                    iconSource: FluentIcons.EditMirrored
                    iconSize: 15
                    color: root.iconColor
                }
            }
        }
        FluText {
            id: conflict

            readonly property real space: visible ? width + 10 : 0

            anchors.verticalCenter: parent.verticalCenter
            x: parent.width - width
            visible: !root.registered
            text: qsTr("Conflict")
            textColor: root.errorColor
        }
    }

    Loader {
        id: dialog

        property bool hadFocus: false

        active: false
        sourceComponent: FluShortcutDialog {
            title: root.title
            message: root.message
            positiveText: root.positiveText
            neutralText: root.neutralText
            negativeText: root.negativeText
            current: root.current
            visible: true
            onSaved: keys => root.accept(keys)
            onClosed: {
                dialog.active = false;
                if (dialog.hadFocus)
                    root.forceActiveFocus();
            }
        }
    }
}
