import QtQuick

/// A flyout row that shows a picture.
Item {
    id: root

    required property var row

    MyIconButton {
        anchors.centerIn: parent
        width: 50 * root.row.scaleFactor
        height: 40 * root.row.scaleFactor
        img_src: root.row.modelData.value
        enableEvent: root.row.flyout.enableEvent
        toolTipText: root.row.modelData.name
        tip: root.row.flyout.tip
        activeFocusOnTab: false
        onClickedLeft: root.row.choose()
    }
}
