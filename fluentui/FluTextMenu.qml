import QtQuick
import QtQuick.Templates as T

/// The editing commands of a text field.
T.Menu {
    id: root

    required property T.TextField field

    implicitWidth: 140
    implicitHeight: Math.ceil(contentHeight) + topPadding + bottomPadding
    padding: 4
    margins: 4
    overlap: 0
    onClosed: field.forceActiveFocus()

    contentItem: ListView {
        implicitHeight: contentHeight
        model: root.contentModel
        interactive: false
        currentIndex: root.currentIndex
    }

    background: FluFlyoutBackground {}

    FluMenuItem {
        text: qsTr("Cut")
        enabled: !root.field.readOnly && root.field.selectedText !== ""
        onTriggered: root.field.cut()
    }
    FluMenuItem {
        text: qsTr("Copy")
        enabled: root.field.selectedText !== ""
        onTriggered: root.field.copy()
    }
    FluMenuItem {
        text: qsTr("Paste")
        enabled: !root.field.readOnly && root.field.canPaste
        onTriggered: root.field.paste()
    }
    FluMenuItem {
        text: qsTr("Select All")
        enabled: root.field.text !== ""
        onTriggered: root.field.selectAll()
    }
}
