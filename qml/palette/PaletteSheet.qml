import QtQuick
import "Theme.js" as Theme

/// The white sheet with the palette's buttons, below the drag handle.
Item {
    id: root

    /// The palette window, which holds the state of the tools.
    required property var palette
    required property var flyouts
    required property var toolNames

    /// Set while the palette is collapsed.
    property bool isOpen: false

    /// The palette has its full height again, which may reach below the screen.
    signal unfolded()

    readonly property real scaleFactor: palette.scaleFactor
    readonly property bool drawing: palette.drawing
    readonly property var canvas: drawing ? palette.drawWindow.painter : null
    readonly property bool erasing: canvas !== null && canvas.isEraserMode
    readonly property bool writing: drawing && palette.drawWindow.textInputMode
    readonly property int mode: canvas ? canvas.drawMode : -1
    /// How far the tools are scrolled up.
    readonly property alias scrolled: list.contentY

    height: 800 * scaleFactor

    Rectangle {
        id: paper
        width: root.palette.width
        height: Math.min(parent.height, root.palette.height - root.y)
        radius: 6
        color: Theme.paper
    }

    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: Math.round(4 * root.scaleFactor)

        PaletteButton {
            flyouts: root.flyouts
            unfolds: true
            img_src: root.isOpen ? "qrc:/icons/up.png" : "qrc:/icons/down.png"
            color: Theme.accent
            radius: paper.radius
            isBackTransparent: true
            toolTipText: root.isOpen ? qsTr("展开") : qsTr("收起")
            onClickedLeft: {
                root.flyouts.close();
                root.isOpen = !root.isOpen;
                if (!root.isOpen)
                    root.unfolded();
            }
        }
        PaletteDivider {}

        ToolList {
            id: list
            width: root.width
            // Above the rounded corners.
            height: Math.max(0, Math.floor(paper.height - y - paper.radius))
            spacing: parent.spacing
            visible: !root.isOpen
            onContentYChanged: {
                root.flyouts.close();
                root.palette.tip.hide();
            }

            PaletteButton {
                flyouts: root.flyouts
                img_src: root.palette.drawAble ? "qrc:/icons/on.png" : "qrc:/icons/off.png"
                toolTipText: root.palette.drawAble ? qsTr("鼠标") : qsTr("画笔")
                onClickedLeft: root.palette.overlayLink.toggle()
            }
            PaletteDivider {}
            PaletteButton {
                flyouts: root.flyouts
                img_src: root.palette.penIcon
                flyout: "pen"
                actsOnClick: !root.palette.drawAble
                onClickedLeft: root.palette.tools.takeUp(root.palette.tools.choosePen, root.palette.penIcon)
                toolTipText: root.toolNames.of(root.palette.penIcon)
                active: root.writing || (root.mode === 0 && !root.erasing)

                InkSample {
                    picture: root.palette.penIcon
                    frame: parent.picture
                    backdrop: parent.color
                    canvas: root.canvas
                }
            }
            PaletteDivider {}
            PaletteButton {
                flyouts: root.flyouts
                img_src: root.palette.lineIcon
                flyout: "shape"
                actsOnClick: !root.palette.drawAble
                onClickedLeft: root.palette.tools.takeUp(root.palette.tools.chooseShape, root.palette.lineIcon)
                toolTipText: root.toolNames.of(root.palette.lineIcon)
                active: root.mode > 0 && !root.writing && !root.erasing
            }
            PaletteDivider {}
            PaletteButton {
                flyouts: root.flyouts
                img_src: "qrc:/icons/erase.png"
                toolTipText: qsTr("橡皮擦")
                active: root.erasing
                onClickedLeft: root.palette.tools.toggleEraser()
            }
            PaletteDivider {}
            PaletteButton {
                flyouts: root.flyouts
                img_src: root.palette.cxiaoIcon
                flyout: "history"
                actsOnClick: true
                toolTipText: root.toolNames.of(root.palette.cxiaoIcon)
                enableEvent: !root.drawing
                onClickedLeft: root.palette.tools.undoOrRedo()
            }
            PaletteDivider {}
            PaletteButton {
                flyouts: root.flyouts
                img_src: "qrc:/icons/clear.png"
                toolTipText: qsTr("清除画布")
                onClickedLeft: root.palette.tools.clearBoard()
            }
            PaletteDivider {}
            PaletteButton {
                flyouts: root.flyouts
                img_src: "qrc:/icons/whiteBorad.png"
                flyout: "board"
                toolTipText: qsTr("画板")
                enableEvent: !root.drawing
            }
            PaletteDivider {}
            PaletteButton {
                flyouts: root.flyouts
                img_src: "qrc:/icons/screen.png"
                toolTipText: qsTr("截屏")
                onClickedLeft: root.palette.captures.openScreenshot()
            }
            PaletteDivider {}
            PaletteButton {
                flyouts: root.flyouts
                img_src: root.palette.captures.recordIcon
                miniSize: 0.7
                btn_txt: root.palette.captures.elapsed
                textVisible: btn_txt !== ""
                toolTipText: root.palette.captures.isRecordIcon ? qsTr("录屏") : qsTr("停止录屏")
                onClickedLeft: root.palette.captures.toggleRecording()
            }
            PaletteDivider {}
            PaletteButton {
                flyouts: root.flyouts
                img_src: "qrc:/icons/color.png"
                toolTipText: qsTr("画笔颜色")
                enableEvent: !root.drawing
                onClickedLeft: root.palette.tools.openColours()
            }
            PaletteDivider {}
            PaletteButton {
                flyouts: root.flyouts
                img_src: root.palette.cuxiIcon
                flyout: "thickness"
                toolTipText: qsTr("画笔粗细")
            }
            PaletteDivider {}
            PaletteButton {
                flyouts: root.flyouts
                img_src: root.palette.deleteIcon
                flyout: "fade"
                toolTipText: qsTr("自动消失")
                enableEvent: !root.drawing
            }
            PaletteDivider {}
            PaletteButton {
                flyouts: root.flyouts
                // The marks go on pulsing while the pointer is let through.
                img_src: root.palette.drawWindow?.painter.isBreath ? root.palette.repeatIcon
                                                                  : "qrc:/icons/re.png"
                flyout: "breath"
                toolTipText: qsTr("呼吸效果")
                enableEvent: !root.drawing
            }
            PaletteDivider {}
            PaletteButton {
                flyouts: root.flyouts
                img_src: "qrc:/icons/menue.png"
                flyout: "menu"
                toolTipText: qsTr("菜单")
            }
        }
    }

    Connections {
        target: root.palette
        function onActiveFocusItemChanged() { list.reveal(root.palette.activeFocusItem); }
    }

    // Above the buttons, which reach to the edges.
    Rectangle {
        anchors.fill: paper
        radius: paper.radius
        color: "transparent"
        border { color: Theme.hairline; width: 1 }
    }
}
