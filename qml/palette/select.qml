import QtQuick
import QtQuick.Window
import "Theme.js" as Theme

/// A chooser that opens beside a palette button: one row for each value. It never takes the
/// keyboard from the window in which the user types; the palette passes keys on to it.
Window {
    id: root

    property var customData: []
    /// 0 rows of icon codes, 1 rows of pictures, 2 rows of text.
    property int btnType: 1
    /// True disables the picture rows.
    property bool enableEvent: false
    property real scaleFactor: 0.65
    property int nowIdx: -1
    /// What each row is called, in the order of `customData`.
    property var names: []
    /// The window that shows tool-tips.
    property var tip: null
    /// The palette stands to the right: the arrow points there.
    property bool pointsRight: false
    /// Height of the button that the arrow points at, in this window.
    property real arrowY: height / 2

    readonly property int arrowSide: Math.round(20 * scaleFactor)
    readonly property int arrowReach: Math.round(5 * scaleFactor)

    signal changeSelect(int index, var value)

    function choose(index) {
        if (index < 0 || index >= customData.length || (btnType === 1 && enableEvent))
            return;
        nowIdx = index;
        changeSelect(index, customData[index]);
        destroy();
    }

    /// Moves the highlighted row by `step`, around the ends.
    function moveRow(step) {
        const count = customData.length;
        nowIdx = nowIdx < 0 ? (step > 0 ? 0 : count - 1) : (nowIdx + step + count) % count;
    }

    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint | Qt.WindowDoesNotAcceptFocus
    color: "transparent"
    title: qsTr("选项")
    width: Math.round(50 * scaleFactor)
    height: Math.round(customData.length * 38 * scaleFactor + 20 * scaleFactor)

    Rectangle {
        id: panel
        x: root.pointsRight ? 0 : root.arrowReach
        width: root.width - root.arrowReach
        height: root.height
        // Between two whole ratios only multiples of four fall on whole device pixels.
        radius: Screen.devicePixelRatio === Math.round(Screen.devicePixelRatio)
                ? Math.round(10 * root.scaleFactor) : 4 * Math.round(10 * root.scaleFactor / 4)
        color: Theme.paper
        border { color: Theme.hairline; width: 1 }
    }

    FlyoutArrow {
        readonly property real margin: panel.radius + height / 2
        x: root.pointsRight ? root.width - width : 0
        y: Math.round(Math.max(margin, Math.min(root.arrowY, root.height - margin)) - height / 2)
        width: root.arrowReach + panel.border.width
        height: root.arrowSide
        pointsRight: root.pointsRight
    }

    Column {
        anchors.horizontalCenter: panel.horizontalCenter
        y: Math.round(10 * root.scaleFactor)
        spacing: Math.round(2 * root.scaleFactor)

        Repeater {
            model: root.customData.map((value, index) => ({
                flyout: root, value: value, name: root.names[index] ?? String(value)
            }))

            FlyoutRow {}
        }
    }
}
