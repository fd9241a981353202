import QtQuick
import "Flyouts.js" as Flyouts

/// Opens the flyouts beside the palette; there is at most one. The palette keeps the keyboard, so
/// it passes the arrow keys, Return and Escape on to the open flyout.
Item {
    id: root

    /// The palette window, which holds the open flyout.
    required property var palette
    required property var toolNames

    readonly property real scaleFactor: palette.scaleFactor
    readonly property var tip: palette.tip
    readonly property bool isOpen: palette.selectWindow !== null
    readonly property real popupWidth: 55 * palette.scaleFactor
    /// Too little room on the right: flyouts, tool-tips and windows open on the left.
    readonly property bool onLeft: palette.rightMargin <= popupWidth + 10

    /// The flyout that is or was open last.
    property string kind: ""

    readonly property var handlers: ({
        pen: palette.tools.choosePen,
        shape: palette.tools.chooseShape,
        history: (index, picture) => palette.cxiaoIcon = picture,
        board: palette.tools.chooseBoard,
        thickness: palette.tools.chooseThickness,
        fade: palette.effects.chooseFade,
        breath: palette.effects.chooseBreath,
        menu: palette.windows.chooseMenu
    })

    function allowed(kind) {
        return palette.drawAble || !["pen", "shape", "board"].includes(kind);
    }

    function rowsDisabled(kind) {
        switch (kind) {
        case "board":
        case "fade":
            return !palette.drawing;
        case "breath":
            return !palette.drawing || !palette.drawWindow.painter.canUndo;
        }
        return false;
    }

    /// Opens the flyout `kind` beside `button`; the one that is open already stays as it is.
    function open(kind, button) {
        if (!allowed(kind) || (isOpen && root.kind === kind))
            return;
        close();
        const component = Qt.createComponent("qrc:/select.qml");
        const flyoutKind = Flyouts.table[kind];
        const rows = flyoutKind.rows ?? toolNames.menu;
        const flyout = component.createObject(null, {
            customData: rows,
            btnType: flyoutKind.btnType,
            names: flyoutKind.rows ? rows.map(toolNames.of) : rows,
            scaleFactor: palette.scaleFactor,
            tip: palette.tip,
            pointsRight: onLeft
        });
        if (!flyout) {
            console.warn("创建选择窗口失败:", component.errorString());
            return;
        }
        flyout.enableEvent = Qt.binding(() => rowsDisabled(kind));
        flyout.changeSelect.connect((index, value) => {
            palette.selectWindow = null;
            handlers[kind](index, value);
        });
        root.kind = kind;
        palette.seX = onLeft ? -popupWidth : Math.round(50 * palette.scaleFactor);
        palette.seY = flyoutKind.seY * palette.scaleFactor - palette.scrolled;
        place(flyout, button);
        palette.selectWindow = flyout;
        flyout.show();
        palette.raise();
    }

    /// Puts the flyout where it belongs, but never below the bottom of the screen.
    function place(flyout, button) {
        const area = palette.monitor;
        const lowest = area.y + area.height - flyout.height;
        flyout.x = palette.x + palette.seX;
        flyout.y = Math.max(area.y, Math.min(palette.y + palette.seY, lowest));
        flyout.arrowY = button.mapToGlobal(0, button.height / 2).y - flyout.y;
    }

    function close() {
        if (!palette.selectWindow)
            return;
        palette.selectWindow.destroy();
        palette.selectWindow = null;
    }

    /// For the keyboard: opens the flyout on its first row.
    function openForKeys(kind, button) {
        open(kind, button);
        if (isOpen)
            palette.selectWindow.moveRow(1);
    }

    Shortcut {
        enabled: root.isOpen
        sequence: "Down"
        onActivated: root.palette.selectWindow.moveRow(1)
    }
    Shortcut {
        enabled: root.isOpen
        sequence: "Up"
        onActivated: root.palette.selectWindow.moveRow(-1)
    }
    Shortcut {
        enabled: root.isOpen
        sequences: ["Return", "Enter", "Space"]
        onActivated: root.palette.selectWindow.choose(root.palette.selectWindow.nowIdx)
    }
    Shortcut {
        enabled: root.isOpen
        sequence: "Escape"
        onActivated: root.close()
    }
}
