import QtQuick
import Cpp.MyComponents
import "OverlayLog.js" as OverlayLog

// Opens and closes the overlay's text editors; at most one is open.
QtObject {
    id: root

    required property MyPainter painter
    required property var parentWindow
    property TextEditBox current: null
    readonly property bool open: root.current !== null
    /// Whether the next editor explains itself; only the first one of a run does.
    property bool showText: true

    /// An editor could not be made; the reason is in the log.
    signal failed

    /// Whether the point, in the canvas's coordinates, lies within `margin` of the open editor.
    function covers(pos: point, margin: int): bool {
        const box = root.current;
        return pos.x >= box.x - margin && pos.x <= box.x + box.width + margin
            && pos.y >= box.y - margin && pos.y <= box.y + box.height + margin;
    }

    /// Puts the open editor's text on the canvas and closes it. True when that added a text.
    function submitAndClose(): bool {
        const box = root.current;
        if (box === null)
            return false;
        root.current = null;
        const added = box.submit();
        box.destroy();
        return added;
    }

    function placeAt(pos: point): void {
        const component = Qt.createComponent("qrc:/TextEditBox.qml");
        const box = component.createObject(root.painter, {
            x: pos.x, y: pos.y, z: 200,
            painter: root.painter, showText: root.showText, parentWindow: root.parentWindow
        }) as TextEditBox;
        if (box === null) {
            console.log(OverlayLog.editorFailed, component.errorString());
            root.failed();
            return;
        }
        box.completed.connect(root.submitAndClose);
        box.editorDestroyed.connect(() => console.log(OverlayLog.editorGone));
        root.current = box;
        root.showText = false;
        box.takeFocus();
    }
}
