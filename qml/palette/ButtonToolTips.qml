import QtQuick

/// Shows the tool-tips of the palette's buttons, one at a time, in a window made for the first one.
Item {
    id: root

    /// The palette window.
    required property var palette
    required property var flyouts

    readonly property ButtonToolTip tip: loader.item as ButtonToolTip

    function showFor(target, pointerY) {
        if (!tip)
            loader.setSource("qrc:/ButtonToolTip.qml", { palette: palette, flyouts: flyouts });
        tip.showFor(target, pointerY);
    }

    function hideFor(target) {
        if (tip)
            tip.hideFor(target);
    }

    function hide() {
        if (tip)
            tip.hide();
    }

    Loader { id: loader }
}
