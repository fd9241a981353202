import QtQuick

// The drawing overlay where the window stays and lets the pointer through: the marks remain on the
// screen. Its flags never change, for that would map it anew.
OverlayWindow {
    id: root

    flags: Qt.Window | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint

    onDrawingWanted: {
        root.surface.passThrough = false;
        root.ground.prepare();
        root.surface.cover();
    }
    onPassThroughWanted: root.surface.passThrough = true
}
