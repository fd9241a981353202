import QtQuick

/// Eight arms that mark the corners of a region, inside its edges.
Item {
    id: root

    required property color color
    property int armLength: 20
    property int armWidth: 3

    anchors.fill: parent

    CornerMark {
        anchors.fill: parent
        color: root.color
        armLength: root.armLength
        armWidth: root.armWidth
    }

    CornerMark {
        anchors.fill: parent
        color: root.color
        armLength: root.armLength
        armWidth: root.armWidth
        isRight: true
    }

    CornerMark {
        anchors.fill: parent
        color: root.color
        armLength: root.armLength
        armWidth: root.armWidth
        isBottom: true
    }

    CornerMark {
        anchors.fill: parent
        color: root.color
        armLength: root.armLength
        armWidth: root.armWidth
        isRight: true
        isBottom: true
    }
}
