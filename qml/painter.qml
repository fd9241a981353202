import QtQuick
import QtQuick.Window
import Cpp.MyComponents

Window {
    id: root

    title: qsTr("主窗口")
    flags: Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
    width: 33
    height: 520
    visible: true

    SettingsClazz {
        id: settingClazz
    }

    Rectangle {
        anchors.fill: parent
        radius: 6
        color: "white"
        border.color: "#cccccc"
    }

    Component.onCompleted: settingClazz.getAllSettings()
}
