import QtQml
import Cpp.MyComponents

// Turns the canvas to erasing for one gesture with the eraser end of a tablet pen, and back to the
// tool that was chosen.
QtObject {
    id: root

    required property MyPainter painter
    property bool lent: false
    property int drawMode: MyPainter.FreehandMode

    function lend(): void {
        if (root.painter.isEraserMode)
            return;
        root.drawMode = root.painter.drawMode;
        root.painter.isEraserMode = true;
        root.lent = true;
    }

    function giveBack(): void {
        if (!root.lent)
            return;
        root.lent = false;
        if (!root.painter.isEraserMode)
            return; // another tool was chosen meanwhile
        root.painter.isEraserMode = false;
        root.painter.drawMode = root.drawMode;
    }
}
