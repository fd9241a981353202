import FluentUI

/// The palette's system-wide hot keys. Each takes the stored sequence, or its default when none is
/// stored; all follow a change of the settings.
FluObject {
    id: root

    /// The palette window.
    required property var palette

    readonly property var tools: palette.tools

    function keysOf(setting, fallback) {
        const stored = palette.hotKeys[setting];
        return stored ? stored : fallback;
    }

    /// A shape by hot key keeps the pen size, unlike the flyout.
    function startShape(mode) {
        if (tools.canvas)
            tools.plainPen(mode);
    }

    FluHotkey {
        name: qsTr("截屏")
        sequence: root.keysOf("screenKey", "Ctrl+P")
        onActivated: {
            if (root.palette.hotKeys.screenSavePath)
                root.palette.shutter.capture();
        }
    }
    FluHotkey {
        name: qsTr("确认变换")
        // Outside of drawing the key belongs to whatever the user types in.
        sequence: root.palette.drawAble ? "Return" : ""
        onActivated: console.log("确认变换")
    }
    FluHotkey {
        name: qsTr("橡皮擦")
        sequence: root.keysOf("eraseKey", "Ctrl+D")
        onActivated: root.tools.toggleEraser()
    }
    FluHotkey {
        name: qsTr("画笔")
        sequence: root.keysOf("penKey", "Ctrl+E")
        onActivated: root.palette.overlayLink.startPen()
    }
    FluHotkey {
        name: qsTr("退出绘制模式")
        sequence: root.keysOf("closeDrawKey", "Ctrl+Q")
        onActivated: root.palette.overlayLink.leave()
    }
    FluHotkey {
        name: qsTr("文字")
        sequence: root.keysOf("textKey", "Ctrl+T")
        onActivated: root.tools.startText()
    }
    FluHotkey {
        name: qsTr("清除画布")
        sequence: root.keysOf("clearKey", "Ctrl+L")
        onActivated: root.tools.clearMarks()
    }
    FluHotkey {
        name: qsTr("撤销")
        sequence: root.keysOf("undoKey", "Ctrl+Z")
        onActivated: root.tools.undo()
    }
    FluHotkey {
        name: qsTr("恢复")
        sequence: root.keysOf("redoKey", "Ctrl+Y")
        onActivated: root.tools.redo()
    }
    FluHotkey {
        name: qsTr("直线模式")
        sequence: root.keysOf("lineKey", "Ctrl+L")
        onActivated: root.startShape(1)
    }
    FluHotkey {
        name: qsTr("圆形模式")
        sequence: root.keysOf("circleKey", "Ctrl+O")
        onActivated: root.startShape(2)
    }
    FluHotkey {
        name: qsTr("矩形模式")
        sequence: root.keysOf("rectangleKey", "Ctrl+R")
        onActivated: root.startShape(3)
    }
    FluHotkey {
        name: qsTr("箭头模式")
        sequence: root.keysOf("arrowKey", "Ctrl+A")
        onActivated: root.startShape(4)
    }
}
