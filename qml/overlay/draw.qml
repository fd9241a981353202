import QtQuick

// The drawing overlay where a minimised window is how the pointer reaches the desktop.
OverlayWindow {
    id: root

    flags: Qt.Tool | Qt.FramelessWindowHint

    onDrawingWanted: {
        root.surface.passThrough = false;
        root.showNormal();
        root.flags = Qt.Window | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint;
        root.surface.moveToAnchor();
        root.showMaximized();
        root.surface.takeOver();
    }
    onPassThroughWanted: {
        root.surface.passThrough = true;
        root.showMinimized();
    }
}
