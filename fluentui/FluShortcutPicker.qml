import QtQuick

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
    onClicked: dialog.active = true

    contentItem: Row {
        spacing: 10

        FluText {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.text !== ""
            text: root.text
            font: root.font
            textColor: root.textColor
        }
        FluControlBackground {
            anchors.verticalCenter: parent.verticalCenter
            width: keys.width + 20
            height: Math.min(42, root.availableHeight)
            color: FluTheme.fieldColor

            Row {
                id: keys

                anchors.centerIn: parent
                spacing: 5

                FluKeyCaps {
                    anchors.verticalCenter: parent.verticalCenter
                    keys: root.current
                }
                FluIcon {
                    anchors.verticalCenter: parent.verticalCenter
                    iconSource: FluentIcons.EditMirrored
                    iconSize: 14
                    color: root.iconColor
                }
            }
        }
        FluText {
            id: conflict

            anchors.verticalCenter: parent.verticalCenter
            visible: !root.registered
            text: qsTr("Conflict")
            textColor: root.errorColor
        }
    }

    Loader {
        id: dialog

        active: false
        sourceComponent: FluShortcutDialog {
            picker: root
            visible: true
            onClosed: dialog.active = false
        }
    }
}
