import QtQuick

/// A button of the palette's sheet, which may open a flyout when the pointer enters it.
MyIconButton {
    id: root

    required property var flyouts
    /// Key of the flyout that opens on entry; empty without one.
    property string flyout: ""
    /// A click does something of its own instead of opening the flyout.
    property bool actsOnClick: false
    /// Stays while the palette is collapsed; the others leave the keyboard's round as well.
    property bool unfolds: false

    readonly property real scaleFactor: flyouts.scaleFactor

    visible: unfolds || !flyouts.palette.collapsed
    width: 50 * scaleFactor
    height: 40 * scaleFactor
    radius: 4
    reach: Math.round(4 * scaleFactor)
    showRBIcon: flyout !== ""
    tip: flyouts.tip
    Accessible.description: flyout !== "" ? qsTr("按左右方向键打开选项") : ""

    onEntered: {
        if (flyouts.kind !== flyout)
            flyouts.close();
        if (flyout !== "")
            flyouts.open(flyout, root);
    }
    onClickedLeft: {
        if (flyout !== "" && !actsOnClick)
            flyouts.open(flyout, root);
    }
    Keys.onLeftPressed: openByKey()
    Keys.onRightPressed: openByKey()
    Keys.onDownPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    Keys.onUpPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

    function openByKey() {
        if (flyout !== "")
            flyouts.openForKeys(flyout, root);
    }

    /// Return and Space, unlike the pointer, go on to the flyout's first row.
    function trigger() {
        if (enableEvent)
            return;
        if (flyout === "" || actsOnClick)
            clickedLeft();
        else
            openByKey();
    }
}
