import QtQuick

/// The column of the palette's tools. On a screen that is too low for all of them it scrolls, with
/// the wheel, by dragging, with the keyboard, or with the hints at its edges.
Flickable {
    id: root

    default property alias tools: column.data
    property alias spacing: column.spacing
    /// What a hint moves the list by.
    readonly property real page: height * 2 / 3

    function scrollBy(step) {
        contentY = Math.max(0, Math.min(contentY + step, contentHeight - height));
    }

    /// Shows all of the tool that has the keyboard.
    function reveal(tool) {
        if (!tool || tool.parent !== column)
            return;
        const edge = Math.round(tool.height / 2); // beyond the hint
        if (tool.y - edge < contentY)
            scrollBy(tool.y - edge - contentY);
        else if (tool.y + tool.height + edge > contentY + height)
            scrollBy(tool.y + tool.height + edge - contentY - height);
    }

    contentWidth: width
    contentHeight: column.height
    flickableDirection: Flickable.VerticalFlick
    boundsBehavior: Flickable.StopAtBounds
    pixelAligned: true
    interactive: contentHeight > height
    clip: interactive
    onInteractiveChanged: if (!interactive) contentY = 0

    Column {
        id: column
        width: root.width
    }

    Loader {
        parent: root // the edge stays where it is
        z: 1
        y: -1 // the list may begin between two pixels
        width: root.width
        active: root.interactive && !root.atYBeginning
        sourceComponent: ScrollHint {
            isTop: true
            onClicked: root.scrollBy(-root.page) // qmllint disable unqualified
        }
    }
    Loader {
        parent: root
        z: 1
        y: root.height - height
        width: root.width
        active: root.interactive && !root.atYEnd
        sourceComponent: ScrollHint {
            onClicked: root.scrollBy(root.page) // qmllint disable unqualified
        }
    }
}
