import QtQuick

/// The column of message bars in a window's overlay, as wide as the item they belong to.
Column {
    id: root

    required property Item area

    signal emptied

    function newest() {
        for (let i = children.length - 1; i >= 0; --i) {
            if (children[i].isOpen)
                return children[i];
        }
        return null;
    }

    function add(properties) {
        return barComponent.createObject(root, properties);
    }

    readonly property Component barComponent: Component {
        FluInfoBarItem {
            x: Math.round((root.width - width) / 2)
            textWidth: Math.min(300, root.parent.width - 120)
            onClosed: {
                destroy();
                if (!root.newest())
                    root.emptied();
            }
        }
    }

    x: area.mapToItem(parent, 0, 0).x
    width: area.width
    spacing: 20

    add: Transition {
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: 167
        }
    }
    move: Transition {
        NumberAnimation {
            properties: "y"
            duration: 167
            easing.type: Easing.OutCubic
        }
    }
}
