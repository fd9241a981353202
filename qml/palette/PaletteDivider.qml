import QtQuick
import QtQuick.Window
import "Theme.js" as Theme

/// The grey line between two buttons. It stands in the middle of the gap and takes no height of
/// its own, so that the last button ends above the palette's bottom edge.
Item {
    anchors.horizontalCenter: parent.horizontalCenter
    height: 0

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        y: -Math.round(height / 2)
        width: parent.width
        // Whole device pixels, or lines would differ in thickness between two whole scale factors.
        height: Math.max(1, Math.floor(Screen.devicePixelRatio)) / Screen.devicePixelRatio
        color: Theme.separator
    }
}
