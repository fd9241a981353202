import QtQuick
import QtQuick.Templates as T
import FluentUI

/// Captures a key combination for a shortcut picker. It is left by its buttons only.
T.Popup {
    id: root

    required property string title
    required property string message
    required property string positiveText
    required property string neutralText
    required property string negativeText
    /// The keys that the dialog opens with and that resetting shows again.
    required property var current

    property var keys: current

    signal saved(var keys)

    parent: T.Overlay.overlay
    x: Math.round((parent.width - width) / 2)
    y: Math.round((parent.height - height) / 2)
    width: Math.min(400, parent.width - 40)
    height: layout.height
    modal: true
    focus: true
    closePolicy: T.Popup.NoAutoClose

    onOpened: capture.forceActiveFocus()

    background: FluFlyoutBackground {
        radius: 8
    }

    T.Overlay.modal: Rectangle {
        color: FluTheme.dimColor
    }

    contentItem: FluKeyCapture {
        id: capture

        focus: true
        activeFocusOnTab: true
        onCaptured: names => root.keys = names

        Accessible.role: Accessible.Dialog
        Accessible.name: root.title
        Accessible.description: root.message

        Column {
            id: layout

            width: capture.width

            Column {
                width: parent.width
                padding: 20
                bottomPadding: 24
                spacing: 12

                FluText {
                    width: parent.width - 40
                    text: root.title
                    font: FluTextStyle.Subtitle
                    wrapMode: Text.Wrap
                }
                FluText {
                    width: parent.width - 40
                    text: root.message
                    textColor: FluTheme.secondaryTextColor
                    wrapMode: Text.Wrap
                }
                Item {
                    width: parent.width - 40
                    height: 92

                    FluKeyCaps {
                        anchors.centerIn: parent
                        capHeight: 44
                        spacing: 8
                        font: FluTextStyle.BodyLarge
                        keys: root.keys
                    }
                }
            }
            FluDialogFooter {
                id: footer

                width: parent.width
                radius: 8

                FluButton {
                    width: footer.buttonWidth
                    text: root.neutralText
                    onClicked: root.close()
                }
                FluButton {
                    width: footer.buttonWidth
                    text: root.negativeText
                    onClicked: root.keys = root.current
                }
                FluFilledButton {
                    width: footer.buttonWidth
                    text: root.positiveText
                    onClicked: {
                        root.saved(root.keys);
                        root.close();
                    }
                }
            }
        }
    }
}
