import FluentUI

/// A flyout row that shows an icon of the control library, given by its code.
FluIconButton {
    required property var row

    iconSource: Number(row.modelData.value)
    hoverColor: "gray"
    contentDescription: row.modelData.name
    onClicked: row.choose()
}
