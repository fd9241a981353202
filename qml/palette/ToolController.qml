import QtQuick

/// What the palette's drawing tools do to the overlay and its canvas.
QtObject {
    id: root

    /// The palette window, which holds the state of the tools.
    required property var palette

    readonly property var overlay: palette.drawWindow
    readonly property var canvas: overlay ? overlay.painter : null

    function iconName(picture) {
        return picture.replace("qrc:/icons/", "").replace(".png", "");
    }

    /// The numbered circle draws with a size of its own; leaving it gives the former one back.
    function restorePenSize() {
        if (canvas && canvas.drawMode === 6)
            canvas.penSize = palette.savedPenSize;
    }

    function plainPen(mode) {
        restorePenSize();
        canvas.isEraserMode = false;
        canvas.drawMode = mode;
        canvas.penOpacity = 1.0;
    }

    /// A tool is clicked while the pointer goes to the desktop: whoever picks it up wants to draw.
    function takeUp(choose, picture) {
        if (palette.drawAble)
            return;
        palette.overlayLink.toggle();
        choose(0, picture);
    }

    function choosePen(index, picture) {
        palette.raise();
        palette.penIcon = picture;
        palette.leaveText();
        if (!palette.overlayLink.ensureShown())
            return;
        canvas.penSize = palette.defPenSize;
        switch (iconName(picture)) {
        case "pen":
            plainPen(0);
            break;
        case "ygpen":
            console.log("切换到荧光笔模式");
            canvas.isEraserMode = false;
            restorePenSize();
            canvas.drawMode = 0;
            canvas.penOpacity = 0.4;
            canvas.penSize = palette.defPenSize;
            console.log("使用荧光笔模式，透明度设置为: ", canvas.penOpacity);
            break;
        case "text":
            restorePenSize();
            overlay.textInputMode = true;
            break;
        }
    }

    function chooseShape(index, picture) {
        palette.raise();
        palette.leaveText();
        palette.lineIcon = picture;
        if (!canvas)
            return;
        // Read before the tool's default size replaces it.
        const sizeBefore = canvas.drawMode === 6 ? palette.savedPenSize : canvas.penSize;
        canvas.penSize = palette.defPenSize;
        switch (iconName(picture)) {
        case "line":
            plainPen(1);
            overlay.showWarning(qsTr("Shit+绘制:绘制90°,45°,180°直线"), 6000);
            break;
        case "circle":
            plainPen(2);
            break;
        case "jiantou":
            plainPen(4);
            break;
        case "rect":
            plainPen(3);
            overlay.showWarning(qsTr("Shit+绘制:绘制正方形"), 6000);
            break;
        case "munber":
            canvas.isEraserMode = false;
            canvas.penOpacity = 1.0;
            palette.savedPenSize = sizeBefore;
            canvas.drawMode = 6;
            break;
        }
    }

    function toggleEraser() {
        if (!canvas)
            return;
        restorePenSize();
        palette.leaveText();
        canvas.isEraserMode = !canvas.isEraserMode;
        if (canvas.isEraserMode)
            canvas.drawMode = 0;
    }

    function startText() {
        if (!overlay)
            return;
        restorePenSize();
        overlay.textInputMode = true;
    }

    function undo() {
        if (canvas && canvas.canUndo)
            canvas.undo();
    }

    function redo() {
        if (canvas && canvas.canRedo)
            canvas.redo();
    }

    /// Does what the picture of the button names.
    function undoOrRedo() {
        if (iconName(palette.cxiaoIcon) === "fanhui")
            redo();
        else
            undo();
    }

    /// Empties the board: the background picture as well as the marks.
    function clearBoard() {
        if (!overlay)
            return;
        overlay.closeBackImg();
        canvas.clear();
    }

    function clearMarks() {
        if (canvas)
            canvas.clear();
    }

    function chooseBoard(index, picture) {
        palette.raise();
        palette.leaveText();
        palette.yanshiIcon = picture;
        if (!canvas)
            return;
        canvas.penSize = palette.defPenSize;
        const colours = { whiteBorad: "white", blackBoard: "black", draw: "transparent" };
        const colour = colours[iconName(picture)];
        if (colour === undefined) {
            overlay.getImgToBack();
            return;
        }
        overlay.color = colour;
        overlay.closeBackImg();
    }

    function chooseThickness(index, picture) {
        palette.leaveText();
        palette.cuxiIcon = picture;
        if (canvas)
            canvas.penSize = { a: 3, b: 8, c: 15, d: 20 }[iconName(picture)];
    }

    function openColours() {
        palette.raise();
        if (palette.drawAble && overlay)
            overlay.openColorDialog();
    }
}
