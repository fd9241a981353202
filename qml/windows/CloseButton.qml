import FluentUI

/// The cross in the corner of a panel window.
FluIconButton {
    iconSource: FluentIcons.Cancel
    iconSize: 12
    contentDescription: qsTr("关闭")
}
