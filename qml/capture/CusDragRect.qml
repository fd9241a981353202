import QtQuick

/// A round handle that resizes a region.
Rectangle {
    id: root

    /// Which handle of the region it is: "leftTop", "top", "rightTop", "right", "rightBottom",
    /// "bottom", "leftBottom" or "left".
    property string posType: "leftTop"
    /// Called when the handle is let go.
    property var callBackFunc: null

    /// The pointer's position while the handle is held, in the handle's own coordinates.
    signal sigPosChanged(point mousePoint)

    readonly property int cursor: {
        switch (posType) {
        case "leftTop":
        case "rightBottom":
            return Qt.SizeFDiagCursor;
        case "rightTop":
        case "leftBottom":
            return Qt.SizeBDiagCursor;
        case "left":
        case "right":
            return Qt.SizeHorCursor;
        default:
            return Qt.SizeVerCursor;
        }
    }

    width: 6
    height: 6
    radius: 3
    color: "green"
    border { width: 1; color: "green" }

    MouseArea {
        id: area

        // A hand cannot hit six pixels.
        anchors { fill: parent; margins: -6 }
        cursorShape: root.cursor
        preventStealing: true
        onPositionChanged: mouse => {
            if (pressed)
                root.sigPosChanged(area.mapToItem(root, mouse.x, mouse.y));
        }
        onReleased: {
            if (root.callBackFunc)
                root.callBackFunc(); // qmllint disable
        }
    }
}
