import QtQuick
import FluentUI

/// The button that does what a dialog is for.
FluButton {
    id: root

    normalColor: down ? Qt.lighter(FluTheme.primaryColor, 1.2) : FluTheme.primaryColor
    hoverColor: Qt.lighter(FluTheme.primaryColor, 1.1)
    dividerColor: "transparent"
    textColor: FluTheme.accentTextColor
    font: FluTextStyle.BodyStrong
}
