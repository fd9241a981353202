import QtQuick

/// Creates the drawing overlay on first use and switches it between drawing and letting the
/// pointer through. The overlay is never destroyed: it holds what was drawn.
QtObject {
    id: root

    /// The palette window, which holds the overlay.
    required property var palette

    readonly property string document: Qt.platform.os === "linux" ? "qrc:/drawLinux.qml" : "qrc:/draw.qml"

    function create() {
        const component = Qt.createComponent(document);
        // Without a parent: a child window would always stay above the palette.
        const overlay = component.createObject(null, { anchorWindow: palette });
        if (!overlay) {
            console.warn("创建绘图窗口失败:", component.errorString());
            return false;
        }
        overlay.clickDrawWin.connect(palette.closeF);
        overlay.requestRaiseMain.connect(palette.raiseWithFlyout);
        overlay.leaveRequested.connect(stop);
        palette.drawWindow = overlay;
        return true;
    }

    /// True when there is an overlay; a new one is shown at once.
    function ensureShown() {
        if (palette.drawWindow)
            return true;
        if (!create())
            return false;
        showNew();
        return true;
    }

    function showNew() {
        palette.drawWindow.showFullScreen();
        // The overlay asked for this while it was made, before anybody listened.
        palette.raiseWithFlyout();
    }

    function toggle() {
        palette.closeF();
        palette.windows.closeAbout();
        palette.drawAble = !palette.drawAble;
        const overlay = palette.drawWindow;
        if (!overlay) {
            start();
            return;
        }
        overlay.painter.isEraserMode = false;
        overlay.closeColorDialog();
        if (palette.drawAble)
            overlay.resetDraw();
        else
            overlay.chuantouMouse();
    }

    /// Lets the pointer through, with the tool kept for the next time.
    function stop() {
        if (palette.drawAble)
            toggle();
        else
            palette.drawWindow.chuantouMouse();
    }

    /// The first time: a new overlay takes the pen that the palette shows.
    function start() {
        if (!create()) {
            palette.drawAble = false;
            return;
        }
        palette.drawWindow.resetDraw();
        palette.raise();
        palette.tools.choosePen(0, palette.penIcon);
    }

    /// The hot key of the pen: a plain pen whatever tool was in use. Text entry goes on beside it.
    function startPen() {
        palette.drawAble = true;
        const overlay = palette.drawWindow;
        if (!overlay) {
            if (!create()) {
                palette.drawAble = false;
                return;
            }
            palette.drawWindow.painter.penSize = 3;
            showNew();
            return;
        }
        overlay.resetDraw();
        overlay.painter.penSize = 3;
        resetPen();
    }

    /// The hot key that ends drawing.
    function leave() {
        const overlay = palette.drawWindow;
        if (!overlay)
            return;
        overlay.closeColorDialog();
        resetPen();
        palette.drawAble = false;
        overlay.chuantouMouse();
    }

    function resetPen() {
        const canvas = palette.drawWindow.painter;
        canvas.isEraserMode = false;
        canvas.drawMode = 0;
        canvas.penOpacity = 1.0;
    }
}
