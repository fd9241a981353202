import QtQuick

// The drawing overlay where a minimised window is how the pointer reaches the desktop.
OverlayWindow {
    id: root

    flags: Qt.Tool | Qt.FramelessWindowHint

    onDrawingWanted: {
        root.showNormal();
        root.flags = Qt.Window | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint;
        root.showMaximized();
    }
    onPassThroughWanted: root.showMinimized()
}
