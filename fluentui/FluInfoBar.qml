import QtQuick
import QtQuick.Templates as T

/// Short messages at the top of a window. Bars stand in a column, the newest at the bottom.
FluObject {
    id: bars

    /// The item in whose width the bars are centred.
    property var root
    /// Distance of the first bar from the top of the window.
    property int layoutY: 75

    property Item stack: null

    function showSuccess(text, duration = 1000, moremsg = "") {
        return show("success", text, duration, moremsg);
    }

    function showInfo(text, duration = 1000, moremsg = "") {
        return show("info", text, duration, moremsg);
    }

    function showWarning(text, duration = 1000, moremsg = "") {
        return show("warning", text, duration, moremsg);
    }

    function showError(text, duration = 1000, moremsg = "") {
        return show("error", text, duration, moremsg);
    }

    function showCustom(component, duration = 1000) {
        return ensureStack() ? stack.add({ type: "custom", customComponent: component, duration: duration }) : null;
    }

    function clearAllInfo() {
        if (stack)
            stack.destroy();
        stack = null;
        return true;
    }

    function show(type, text, duration, moremsg) {
        if (!ensureStack())
            return null;
        const newest = stack.newest();
        if (newest && newest.type === type && newest.text === text && newest.moremsg === moremsg) {
            newest.duration = duration;
            newest.restart();
            return newest;
        }
        return stack.add({ type: type, text: text, duration: duration, moremsg: moremsg });
    }

    /// Null while the item is in no window.
    function overlayOf(item: Item): Item {
        return item.T.Overlay.overlay;
    }

    function ensureStack() {
        const overlay = bars.root ? overlayOf(bars.root) : null;
        if (!overlay) {
            console.warn("FluInfoBar: root must be an item in a window");
            return false;
        }
        if (!stack)
            stack = stackComponent.createObject(overlay, { area: bars.root, y: layoutY });
        return true;
    }

    readonly property Component stackComponent: Component {
        FluInfoBarStack {
            onEmptied: bars.clearAllInfo()
        }
    }
}
