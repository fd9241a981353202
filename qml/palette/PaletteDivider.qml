import QtQuick
import QtQuick.Window
import "Theme.js" as Theme

/// The grey line between two buttons. It stands in the middle of the gap and takes no room of its
/// own, so that the last button ends above the palette's bottom edge.
Item {
    anchors.horizontalCenter: parent.horizontalCenter
    width: parent.width / 2
    // A positioner passes over items without height, and with them their share of the spacing.
    height: 1e-6

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        y: -Math.round(height / 2)
        width: parent.width
        // Whole device pixels, or lines would differ in thickness between two whole scale factors.
        height: Math.max(1, Math.floor(Screen.devicePixelRatio)) / Screen.devicePixelRatio
        // The separators' grey, as a shade: of an opaque line between two pixels, the software renderer
        // leaves holes behind when the list is scrolled.
        color: Theme.separatorShade
    }
}
