import QtQuick

/// Lets the user mark a region of the window it fills: drawn anew anywhere, moved at its middle,
/// resized at eight handles.
Item {
    id: root

    /// Frame of the handles outside the selection.
    property int borderMargin: 3
    /// What lies around the selection.
    property color blurryColor: "transparent"
    property color selectBorderColor: "transparent"
    property color selectDot: "green"
    /// Whether frame, marks and handles are shown; what lies around stays.
    property bool marksVisible: true
    /// True from the first press of a new selection to its release.
    property bool drawing: false

    property alias selectionX: frame.x
    property alias selectionY: frame.y
    property alias selectionWidth: frame.width
    property alias selectionHeight: frame.height
    readonly property rect selection: Qt.rect(frame.x, frame.y, frame.width, frame.height)

    /// Decoration of the selection; it moves and grows with it.
    default property alias marks: decoration.data

    /// The selection's corners when it was last let go; resizing works against them.
    property point first
    property point last
    property bool touched: false

    readonly property int moveInset: 24
    readonly property real presetShare: 0.6
    /// A press that moves less is a click and changes nothing.
    readonly property int smallestSide: 2

    readonly property var handles: [
        { posType: "leftTop", h: -1, v: -1 }, { posType: "top", h: 0, v: -1 },
        { posType: "rightTop", h: 1, v: -1 }, { posType: "right", h: 1, v: 0 },
        { posType: "rightBottom", h: 1, v: 1 }, { posType: "bottom", h: 0, v: 1 },
        { posType: "leftBottom", h: -1, v: 1 }, { posType: "left", h: -1, v: 0 }
    ]

    function preset() {
        const w = Math.round(width * presetShare);
        const h = Math.round(height * presetShare);
        span(Math.round((width - w) / 2), Math.round((height - h) / 2), w, h);
        storeCorners();
    }

    function span(x, y, w, h) {
        frame.x = x;
        frame.y = y;
        frame.width = w;
        frame.height = h;
    }

    function storeCorners() {
        first = Qt.point(frame.x, frame.y);
        last = Qt.point(frame.x + frame.width, frame.y + frame.height);
    }

    /// Edges lie on whole logical pixels: rounded one by one, position and size of a region at the
    /// edge of the screen could reach beyond it.
    function snapped(point) {
        return Qt.point(Math.round(Math.max(0, Math.min(point.x, width))),
                        Math.round(Math.max(0, Math.min(point.y, height))));
    }

    function resize(h, v, point) {
        touched = true;
        const { x, y } = snapped(point);
        if (h !== 0) {
            const opposite = h < 0 ? last.x : first.x;
            frame.x = Math.min(x, opposite);
            frame.width = Math.abs(x - opposite);
        }
        if (v !== 0) {
            const opposite = v < 0 ? last.y : first.y;
            frame.y = Math.min(y, opposite);
            frame.height = Math.abs(y - opposite);
        }
    }

    // The window gets its size only after it has been made.
    onWidthChanged: if (!touched) preset()
    onHeightChanged: if (!touched) preset()

    MouseArea {
        property point start

        anchors.fill: parent
        cursorShape: Qt.CrossCursor
        onPressed: mouse => {
            start = root.snapped(Qt.point(mouse.x, mouse.y));
            root.touched = true;
            root.drawing = true;
            root.span(start.x, start.y, 0, 0);
        }
        onPositionChanged: mouse => {
            const { x, y } = root.snapped(Qt.point(mouse.x, mouse.y));
            root.span(Math.min(start.x, x), Math.min(start.y, y),
                      Math.abs(x - start.x), Math.abs(y - start.y));
        }
        onReleased: {
            root.drawing = false;
            if (frame.width < root.smallestSide || frame.height < root.smallestSide)
                root.span(root.first.x, root.first.y,
                          root.last.x - root.first.x, root.last.y - root.first.y);
            root.storeCorners();
        }
        onCanceled: root.drawing = false
    }

    Rectangle { width: root.width; height: frame.y; color: root.blurryColor }
    Rectangle { y: frame.y + frame.height; width: root.width; height: root.height - y; color: root.blurryColor }
    Rectangle { y: frame.y; width: frame.x; height: frame.height; color: root.blurryColor }
    Rectangle {
        x: frame.x + frame.width
        y: frame.y
        width: root.width - x
        height: frame.height
        color: root.blurryColor
    }

    Item {
        id: frame

        visible: root.marksVisible

        Rectangle {
            anchors.fill: parent
            color: "transparent"
            border { width: 1; color: root.selectBorderColor }
        }

        Item { id: decoration; anchors.fill: parent }

        MouseArea {
            anchors { fill: parent; margins: root.moveInset }
            enabled: parent.width > 2 * root.moveInset && parent.height > 2 * root.moveInset
            cursorShape: Qt.SizeAllCursor
            drag {
                target: frame
                minimumX: 0
                maximumX: root.width - frame.width
                minimumY: 0
                maximumY: root.height - frame.height
                threshold: 0
                smoothed: false
            }
            onPressed: root.touched = true
            onPositionChanged: root.storeCorners()
            onReleased: {
                root.span(Math.round(frame.x), Math.round(frame.y), frame.width, frame.height);
                root.storeCorners();
            }
        }

        Repeater {
            model: root.handles

            CusDragRect {
                id: handle

                required property var modelData

                x: (modelData.h + 1) / 2 * (frame.width + 2 * root.borderMargin) - root.borderMargin - width / 2
                y: (modelData.v + 1) / 2 * (frame.height + 2 * root.borderMargin) - root.borderMargin - height / 2
                posType: modelData.posType
                color: root.selectDot // qmllint disable unqualified
                border.color: color
                callBackFunc: () => root.storeCorners()
                onSigPosChanged: mousePoint => root.resize(modelData.h, modelData.v,
                                                           handle.mapToItem(root, mousePoint))
            }
        }
    }
}
