import QtQuick
import Dravelin.Platform

/// The logo on top of the palette, by which it is dragged; the arrow keys move it as well.
MyIconButton {
    id: root

    /// The palette window.
    required property var palette
    required property var flyouts

    readonly property int keyStep: 10

    /// The palette was moved and let go.
    signal moved()

    function moveTo(x, y) {
        flyouts.close();
        palette.x = x;
        palette.y = y;
    }

    function followPointer() {
        const pos = pointer.now();
        moveTo(pos.x - palette.dragX, pos.y - palette.dragY);
    }

    function moveByKey(dx, dy) {
        moveTo(palette.x + dx * keyStep, palette.y + dy * keyStep);
        moved();
    }

    function letGo() {
        palette.dragging = false;
        moved();
    }

    width: 50 * palette.scaleFactor
    height: 48 * palette.scaleFactor
    img_src: "qrc:/icons/logo.png"
    color: "transparent"
    isBackTransparent: true
    isMoveStyle: true
    toolTipText: qsTr("移动工具栏")
    tip: palette.tip

    onPressed: mouse => {
        palette.dragging = true;
        palette.dragX = mouse.x;
        palette.dragY = mouse.y;
    }
    onPositionChanged: {
        if (palette.dragging)
            followPointer();
    }
    onRelease: letGo()
    onCanceled: letGo()
    PointerPosition { id: pointer }

    Keys.onLeftPressed: moveByKey(-1, 0)
    Keys.onRightPressed: moveByKey(1, 0)
    Keys.onUpPressed: moveByKey(0, -1)
    Keys.onDownPressed: moveByKey(0, 1)
}
