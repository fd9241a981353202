import QtQuick
import QtQuick.Window

/// A square picture of this program's icons, centred in its parent, that covers whole device
/// pixels at every scale factor, so that its strokes stay sharp.
Image {
    id: root

    /// Side of the square that the picture may fill, in logical pixels.
    required property real boxSide
    /// Resource of the picture, without "@2x".
    required property string picture

    readonly property real ratio: Screen.devicePixelRatio
    readonly property bool wholeRatio: ratio === Math.round(ratio)
    readonly property int sidePx: Math.round(Math.floor(boxSide) * ratio)
    // Between two whole ratios the largest rendering is shrunk to the exact size while loading,
    // which is sharper than stretching on screen. At whole ratios Qt picks the rendering itself.
    readonly property bool shrinks: !wholeRatio && picture.startsWith("qrc:/icons/")

    /// Moves the picture by a fraction of a pixel onto the device's grid.
    function snapToPixels() {
        const centred = parent.mapToItem(null, (parent.width - width) / 2, (parent.height - height) / 2);
        const snapped = parent.mapFromItem(null, Math.round(centred.x * ratio) / ratio,
                                           Math.round(centred.y * ratio) / ratio);
        x = snapped.x;
        y = snapped.y;
    }

    width: sidePx / ratio
    height: sidePx / ratio
    source: shrinks ? picture.replace(/\.png$/, "@3x.png") : picture
    sourceSize: shrinks ? Qt.size(sidePx, sidePx) : undefined
    fillMode: Image.PreserveAspectFit
    // The cache keeps a picture that nobody shows any more and wakes up for a minute to drop it.
    cache: false

    onWidthChanged: snapToPixels()
    Component.onCompleted: snapToPixels()

    Connections {
        target: root.parent
        function onXChanged() { root.snapToPixels(); }
        function onYChanged() { root.snapToPixels(); }
        function onWidthChanged() { root.snapToPixels(); }
        function onHeightChanged() { root.snapToPixels(); }
    }
}
