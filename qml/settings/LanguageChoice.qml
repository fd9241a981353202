import QtQuick
import QtQuick.Layouts
import FluentUI

/// The language of the interface and the button that restarts the program in it.
RowLayout {
    id: root

    required property var settings

    /// The user asked for a language; empty when none is chosen.
    signal apply(string code)

    property var languages: []
    property bool offered: false

    function fill() {
        const known = settings.getAvailableLanguages()
            .map(entry => ({ display: entry.name ? entry.name : entry.code, code: entry.code }));
        languages = known.length > 0 ? known : [
            { display: "简体中文", code: "zh_CN" },
            { display: "English", code: "en" }
        ];
        chooseCurrent.start();
    }

    function selectedCode() {
        return languages[box.currentIndex]?.code ?? "";
    }

    function compare(index) {
        const current = settings.getCurrentLanguage();
        console.log("ComboBox currentIndex changed to: ", index);
        console.log("Selected: ", selectedCode(), ", Current: ", current);
        offered = selectedCode() !== current;
    }

    /// Room for the label, so that rows below each other line up.
    property real labelWidth: ownLabelWidth
    readonly property real ownLabelWidth: label.implicitWidth

    spacing: 8
    Component.onCompleted: Qt.callLater(fill) // qmllint disable

    FluText {
        id: label
        Layout.preferredWidth: root.labelWidth
        text: qsTr("语言设置")
        font.pixelSize: 14
    }

    FluComboBox {
        id: box
        Layout.fillWidth: true
        Layout.minimumWidth: 120
        model: root.languages
        textRole: "display"
        onCurrentIndexChanged: root.compare(currentIndex)
    }

    AccentButton {
        Layout.preferredHeight: box.height
        // The list's first entry is selected for a moment before the current language is.
        visible: root.offered && !chooseCurrent.running
        text: qsTr("应用")
        onClicked: root.apply(root.selectedCode())
    }

    Timer {
        id: chooseCurrent
        interval: 100
        onTriggered: {
            const current = root.settings.getCurrentLanguage();
            box.currentIndex = root.languages.findIndex(entry => entry.code === current);
        }
    }
}
