import QtQuick
import FluentUI

/// One hot key of the settings window. Its keys are really taken, so that it can tell when another
/// program holds them.
FluShortcutPicker {
    id: root

    /// Key under which the sequence is stored.
    required property string settingsKey
    /// What is shown while nothing is stored.
    required property string fallback
    required property var hotKeys

    /// The user chose other keys, in the form in which they are stored.
    signal chosen(string sequence)

    readonly property string stored: hotKeys[settingsKey] ? hotKeys[settingsKey] : fallback

    // The picker reads a hot key once; other keys need another one.
    function rebuild() {
        const former = syncHotkey;
        syncHotkey = hotkeyComponent.createObject(root, { name: text, sequence: stored });
        if (former)
            former.destroy();
    }

    title: text
    message: qsTr("按下键盘用于改变热键")
    positiveText: qsTr("保存")
    neutralText: qsTr("取消")
    negativeText: qsTr("重制")

    onStoredChanged: rebuild()
    onAccepted: chosen(current.join("+"))
    Component.onCompleted: {
        if (!syncHotkey)
            rebuild();
    }

    readonly property Component hotkeyComponent: Component {
        FluHotkey {}
    }
}
