import QtQuick
import FluentUI

Text {
    id: root

    property color textColor: FluTheme.fontPrimaryColor

    color: textColor
    font: FluTextStyle.Body
}
