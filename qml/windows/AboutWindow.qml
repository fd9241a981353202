import QtQuick
import QtQuick.Layouts
import FluentUI
import "Theme.js" as Theme

/// What this program is: name, version, rights, the licences of what it is built on.
PanelWindow {
    id: root

    /// Version with which the program asks for updates.
    required property string interfaceVersion

    readonly property var licences: [
        { name: "Qt 6", licence: "LGPL-3.0", text: "LGPL-3.0" },
        { name: "OpenSSL 3", licence: "Apache-2.0", text: "Apache-2.0" },
        { name: "XCB", licence: "MIT", text: "XCB" }
    ]

    signal helpWanted()
    /// The user wants to read a licence, one of the texts of `licences`.
    signal licenceWanted(string text)

    width: 380
    height: body.implicitHeight + stripHeight + 24
    title: qsTr("关于")

    ColumnLayout {
        id: body
        width: parent.width
        spacing: 6

        Image {
            Layout.alignment: Qt.AlignHCenter
            Layout.preferredWidth: 62
            Layout.preferredHeight: 62
            source: "qrc:/icons/logo@3x.png"
            mipmap: true
        }

        PanelText {
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: 8
            text: AppDescription // qmllint disable unqualified
            font { pixelSize: Theme.titleText; weight: Font.DemiBold }
        }

        PanelText {
            Layout.alignment: Qt.AlignHCenter
            text: qsTr("版本 %1 · 界面 %2").arg(AppVersion).arg(root.interfaceVersion) // qmllint disable unqualified
            color: Theme.inkMuted
        }

        PanelText {
            Layout.fillWidth: true
            Layout.topMargin: 10
            horizontalAlignment: Text.AlignHCenter
            text: AppCopyright // qmllint disable unqualified
            color: Theme.inkMuted
            font.pixelSize: 12
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.topMargin: 12
            Layout.bottomMargin: 6
            implicitHeight: 1
            color: Theme.hairline
        }

        PanelText {
            text: qsTr("第三方组件及许可")
            font.weight: Font.DemiBold
        }

        Repeater {
            model: root.licences

            LinkRow {
                required property var modelData
                Layout.fillWidth: true
                text: modelData.name
                note: modelData.licence
                onOpened: root.licenceWanted(modelData.text) // qmllint disable unqualified
            }
        }

        FluButton {
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: 14
            text: qsTr("帮助")
            onClicked: root.helpWanted()
        }
    }
}
