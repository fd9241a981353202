import QtQuick
import QtQuick.Window
import Cpp.MyComponents
import FluentUI
import "FileUrls.js" as FileUrls
import "Notices.js" as Notices

/// The full-screen window in which a region of the screen is marked and captured.
Window {
    id: root

    property int borderMargin: 3
    property color blurryColor: Qt.rgba(0, 0, 0, 0.3)
    property color selectBorderColor: "green"
    /// Folder that receives the picture.
    property string sPath: ""
    property real devicePixelRatio: Screen.devicePixelRatio

    signal sigClose()

    property bool capturing: false

    function finish() {
        capturing = true;
        shutter.area = region.selection;
        shutter.start();
    }

    function openFolder() {
        if (sPath === "")
            return;
        Qt.openUrlExternally(FileUrls.ofFolder(sPath));
        close();
    }

    function capture(area) {
        console.log("截图 - 原始坐标:", area.x, area.y, area.width, area.height, "缩放比例:", devicePixelRatio);
        settingClazz.captureScreen(Math.round(area.x), Math.round(area.y),
                                   Math.round(area.width), Math.round(area.height));
        const result = settingClazz.captureResult();
        close();
        outcome.tell(result);
    }

    screen: Application.screens[0]
    title: qsTr("截图")
    flags: Qt.Window | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
    color: "transparent"

    Component.onCompleted: {
        console.log("截图组件 - 屏幕缩放比例:", devicePixelRatio);
        Notices.clear();
        ground.prepare();
    }

    SettingsClazz { id: settingClazz }
    CaptureOutcome { id: outcome }

    CaptureGround {
        id: ground
        anchors.fill: parent
        host: root
    }

    RegionSelector {
        id: region
        anchors.fill: parent
        borderMargin: root.borderMargin
        blurryColor: root.blurryColor
        selectBorderColor: root.selectBorderColor
        marksVisible: !root.capturing
    }

    RegionBar {
        region: region
        visible: !region.drawing && !root.capturing

        FluButton {
            text: qsTr("打开目录")
            onClicked: root.openFolder()
        }
        FluButton {
            text: qsTr("退出")
            onClicked: root.close()
        }
        AccentButton {
            text: qsTr("完成")
            onClicked: root.finish()
        }
    }

    // The screen is read once the window has been painted without its own marks.
    Timer {
        id: shutter
        property rect area
        interval: 100
        onTriggered: root.capture(area)
    }
}
