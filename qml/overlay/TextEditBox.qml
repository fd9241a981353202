import QtQuick
import Cpp.MyComponents
import FluentUI
import "OverlayLog.js" as OverlayLog

// The floating editor for a text mark. Its text lands on the canvas where it stands here.
Rectangle {
    id: root

    required property MyPainter painter
    required property var parentWindow
    /// Explains itself: a red frame, and the keys above it.
    required property bool showText
    readonly property int textMargin: 5
    /// The canvas refuses this text too.
    readonly property string placeholder: "添加文字..."
    property bool opened: false

    /// The text is complete: to be submitted, and the editor closed.
    signal completed
    signal editorDestroyed

    /// The text as it is seen, with what an input method is still composing.
    function seenText(): string {
        const composing = edit.preeditText;
        const before = edit.text;
        const position = edit.cursorPosition;
        InputMethod.commit();
        const kept = edit.text !== before || composing === "";
        return kept ? edit.text : before.slice(0, position) + composing + before.slice(position);
    }

    /// Adds the text to the canvas; false when there is nothing worth adding.
    function submit(): bool {
        const text = root.seenText();
        const trimmed = text.trim();
        if (trimmed === "" || trimmed === root.placeholder)
            return false;
        root.painter.addText(text.replace(/\r\n/g, "\n"), root.x + root.textMargin,
            root.y + root.textMargin, edit.font.pixelSize);
        return true;
    }

    function takeFocus(): void {
        root.opened = true;
        edit.forceActiveFocus();
    }

    function fitText(): void {
        root.width = Math.max(200, Math.min(800, edit.contentWidth + 25));
        root.height = Math.max(50, Math.min(400, edit.contentHeight + 10));
    }

    function breakLine(): void {
        edit.remove(edit.selectionStart, edit.selectionEnd);
        edit.insert(edit.cursorPosition, "\n");
    }

    width: 200
    height: 100
    color: "transparent"
    border.width: 1
    border.color: root.showText ? "red" : "transparent"

    Component.onCompleted: {
        const other = root.parentWindow.currentTextEditor;
        if (other) {
            console.log(OverlayLog.editorReplaced);
            other.destroy();
        }
    }
    Component.onDestruction: root.editorDestroyed()

    HintText {
        visible: root.showText
        // Above the frame, or below it where the screen ends.
        y: root.y >= height + 2 ? -height - 2 : root.height + 2
        text: qsTr("Ctrl+滚轮调整字体|Ctrl+Enter换行|ESC:取消")
        textColor: "red"
        font.pixelSize: 10
    }

    TextEdit {
        id: edit

        anchors.fill: parent
        anchors.margins: root.textMargin
        textFormat: TextEdit.PlainText
        wrapMode: TextEdit.NoWrap
        selectByMouse: true
        color: root.painter.penColor
        font.family: "Arial" // as text marks are drawn
        font.pixelSize: 16

        onContentSizeChanged: if (root.opened)
            root.fitText()

        Keys.onEscapePressed: root.destroy()
        Keys.onPressed: event => {
            // The editor itself knows Return, but not together with Ctrl, and another key to redo.
            const ctrl = (event.modifiers & Qt.ControlModifier) !== 0;
            const enter = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
            event.accepted = ctrl && (enter || event.key === Qt.Key_Y);
            if (event.accepted && enter)
                root.breakLine();
            else if (event.accepted)
                edit.redo();
        }
    }

    TextEditBoxPointer {
        anchors.fill: parent
        box: root
        edit: edit
        dragAnywhere: !root.showText
        onDoubleClicked: root.completed()
    }
}
