import QtQuick
import "Theme.js" as Theme

/// A button with a picture: the palette's tools, its drag handle and the flyouts' picture rows.
Rectangle {
    id: root

    property string img_src: ""
    property string btn_txt: ""
    property bool textVisible: false
    /// A mark in the corner: this button has a flyout.
    property bool showRBIcon: false
    /// Keeps `color` as it was set instead of following the pointer.
    property bool isBackTransparent: false
    /// Size of the picture relative to the button.
    property real miniSize: 1.0
    /// True disables the button.
    property bool enableEvent: false
    /// Shows a hand that grabs, for dragging.
    property bool isMoveStyle: false
    property string toolTipText: ""
    /// The tool that is in use wears a mark at its edge.
    property bool active: false
    /// Room around the button, above and below, in which it still takes the pointer.
    property real reach: 0
    /// The window that shows tool-tips; it is shared by all buttons.
    property var tip: null
    property string accessibleName: toolTipText

    // A sum becomes native code. For `|` the compiler leaves it to the engine, which first lists
    // every name that Qt knows, and the start waits for that.
    readonly property int buttons: Qt.LeftButton + Qt.RightButton
    readonly property alias picture: image
    readonly property alias hovered: mouseArea.containsMouse

    signal clickedLeft()
    signal clickedRight()
    signal pressed(var mouse)
    signal release(var mouse)
    /// The press ends without a release: something else took the pointer.
    signal canceled()
    signal positionChanged(var mouse)
    signal entered()
    signal exited()

    function setBackground(shade) {
        if (!isBackTransparent)
            color = shade;
    }

    function hideTip() {
        if (tip)
            tip.hideFor(root);
    }

    function trigger() {
        if (!enableEvent)
            clickedLeft();
    }

    color: Theme.paper
    activeFocusOnTab: true
    onToolTipTextChanged: hideTip()
    Component.onDestruction: hideTip()
    Accessible.role: Accessible.Button
    Accessible.name: accessibleName
    Accessible.focusable: true
    Accessible.onPressAction: root.trigger()
    Keys.onSpacePressed: root.trigger()
    Keys.onReturnPressed: root.trigger()
    Keys.onEnterPressed: root.trigger()

    Item {
        width: parent.width
        height: parent.height - (root.textVisible ? caption.height - 1 : 0)

        SharpImage {
            id: image
            boxSide: Math.min(root.width * root.miniSize, root.height * root.miniSize, parent.height)
            picture: root.img_src
            opacity: root.enableEvent ? Theme.disabledOpacity : 1
        }
    }

    Loader {
        id: caption
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom }
        active: root.textVisible

        sourceComponent: Text {
            text: root.btn_txt // qmllint disable unqualified
            color: Theme.ink
            font { bold: true; pointSize: 5 }
            // Letters this small need hinting.
            renderType: Text.NativeRendering
        }
    }

    Image {
        anchors { right: parent.right; bottom: parent.bottom; margins: 2 }
        width: 8
        height: 8
        visible: root.showRBIcon
        source: "qrc:/icons/morerb.png"
        opacity: image.opacity
    }

    Rectangle {
        anchors { left: parent.left; leftMargin: 1; verticalCenter: parent.verticalCenter }
        width: 2
        height: Math.round(parent.height / 2)
        radius: 1
        visible: root.active
        color: Theme.accent
    }

    Rectangle {
        anchors { fill: parent; margins: 1 }
        visible: root.activeFocus
        color: "transparent"
        radius: 4
        // The two buttons with a ground of their own have the accent's colour.
        border { color: root.isBackTransparent ? Theme.ink : Theme.accent; width: 2 }
    }

    MouseArea {
        id: mouseArea
        anchors { fill: parent; topMargin: -root.reach; bottomMargin: -root.reach }
        hoverEnabled: true
        acceptedButtons: root.buttons
        cursorShape: root.enableEvent ? Qt.ForbiddenCursor
                   : !root.isMoveStyle ? Qt.ArrowCursor
                   : pressed ? Qt.ClosedHandCursor : Qt.OpenHandCursor

        onEntered: {
            root.setBackground(Theme.buttonHover);
            root.entered();
            if (root.tip && root.toolTipText !== "")
                root.tip.showFor(root, mouseArea.mouseY - root.reach);
        }
        onExited: {
            root.setBackground(Theme.paper);
            root.exited();
            root.hideTip();
        }
        onPressed: mouse => {
            if (root.enableEvent)
                return;
            root.setBackground(Theme.buttonPressed);
            root.hideTip();
            root.pressed(mouse);
        }
        onReleased: mouse => {
            if (root.enableEvent)
                return;
            root.setBackground(mouseArea.containsMouse ? Theme.buttonHover : Theme.paper);
            root.release(mouse);
        }
        onCanceled: {
            root.setBackground(containsMouse ? Theme.buttonHover : Theme.paper);
            root.canceled();
        }
        onPositionChanged: mouse => root.positionChanged(mouse)
        onClicked: mouse => {
            if (root.enableEvent)
                return;
            if (mouse.button === Qt.RightButton)
                root.clickedRight();
            else
                root.clickedLeft();
        }
    }
}
