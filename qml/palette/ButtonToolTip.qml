import QtQuick
import QtQuick.Window
import "Theme.js" as Theme

/// The tool-tip of the palette's buttons: a window of its own, since the palette is narrower than
/// any text. It stands beside the palette and its open flyout, at the pointer's height, so that it
/// never covers what it explains or the next button.
Window {
    id: root

    /// The palette window.
    required property var palette
    required property var flyouts

    property Item button: null
    readonly property int gap: 8

    function showFor(target, pointerY) {
        if (palette.dragging)
            return; // the pointer only left the handle because the window follows it
        button = target;
        const reach = (flyouts.isOpen ? flyouts.popupWidth : 0) + gap;
        const right = palette.x + palette.width + reach;
        const area = palette.monitor; // its own monitor is the one where it was shown last
        const lowest = area.y + area.height - height;
        x = flyouts.onLeft ? palette.x - width - reach : right;
        y = Math.round(Math.max(area.y,
                                Math.min(target.mapToGlobal(0, pointerY).y - height / 2, lowest)));
        show();
        raise();
    }

    function hideFor(target) {
        if (button !== target)
            return;
        button = null;
        hide();
    }

    flags: Qt.ToolTip | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
           | Qt.WindowDoesNotAcceptFocus | Qt.WindowTransparentForInput
    color: "transparent"
    title: label.text
    transientParent: null
    width: Math.ceil(label.implicitWidth) + 18
    height: Math.ceil(label.implicitHeight) + 10

    Rectangle {
        anchors.fill: parent
        radius: 4
        color: Theme.tipBackground

        Text {
            id: label
            anchors.centerIn: parent
            text: (root.button as MyIconButton)?.toolTipText ?? ""
            color: Theme.tipText
            font.pixelSize: 12
        }
    }
}
