import QtQuick
import QtQuick.Layouts
import FluentUI
import "FileUrls.js" as FileUrls

/// The folder for screenshots and recordings: typed, or chosen in a dialog.
RowLayout {
    id: root

    required property string folder

    /// The user typed another folder.
    signal edited(string folder)
    signal browse()

    function finish() {
        const typed = FileUrls.meant(box.text, folder);
        if (typed === folder)
            return;
        edited(typed);
        show(folder); // what is stored may be another folder than the one typed
    }

    function show(folder) {
        box.text = FileUrls.shown(folder);
    }

    /// Room for the label, so that rows below each other line up.
    property real labelWidth: ownLabelWidth
    readonly property real ownLabelWidth: label.implicitWidth

    spacing: 8
    onFolderChanged: show(folder)

    FluText {
        id: label
        Layout.preferredWidth: root.labelWidth
        text: qsTr("截图路径")
        font.pixelSize: 14
    }

    FluTextBox {
        id: box
        Layout.fillWidth: true
        Layout.minimumWidth: 150
        placeholderText: qsTr("截图保存路径")
        cleanEnabled: false
        onCommit: root.finish()
        onEditingFinished: root.finish()

        FluTooltip {
            visible: box.hovered && !box.activeFocus && box.contentWidth > box.width - 14
            text: box.text
            delay: 500
        }
    }

    FluButton {
        Layout.preferredHeight: box.height
        text: qsTr("浏览")
        onClicked: {
            root.finish();
            root.browse();
        }
    }
}
