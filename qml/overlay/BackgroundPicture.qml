import QtQuick
import "OverlayLog.js" as OverlayLog

// A picture beneath the marks that Ctrl with the pointer moves and Ctrl with the wheel scales.
Rectangle {
    id: root

    readonly property int leastSide: 50
    /// File URL; empty for none.
    property string source: ""
    property bool shown: false
    readonly property bool ready: image.status === Image.Ready

    /// The picture can be seen now and has this many pixels.
    signal opened
    signal failed(string path)

    function moveBy(dx: real, dy: real): void {
        root.x += dx;
        root.y += dy;
    }

    function zoom(factor: real): void {
        if (root.width * factor < root.leastSide || root.height * factor < root.leastSide)
            return;
        root.width *= factor;
        root.height *= factor;
    }

    x: 200
    y: 200
    color: "transparent"
    visible: shown && ready

    Image {
        id: image

        anchors.fill: parent
        source: root.source
        asynchronous: true
        mipmap: true

        onStatusChanged: {
            if (status === Image.Ready) {
                root.width = implicitWidth;
                root.height = implicitHeight;
                console.log(OverlayLog.pictureSize, implicitWidth, "x", implicitHeight);
                root.opened();
            } else if (status === Image.Error) {
                root.failed(root.source);
            }
        }
    }
}
