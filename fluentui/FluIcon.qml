import QtQuick
import QtQuick.Controls.impl
import FluentUI

/// The drawing of an icon in one colour; it takes its space even when there is none.
ColorImage {
    id: root

    property int iconSource: 0
    property int iconSize: 20

    readonly property int devicePixels: Math.round(iconSize * Screen.devicePixelRatio)

    width: iconSize
    height: iconSize
    source: FluIconCatalogue.url(iconSource)
    sourceSize.width: devicePixels
    sourceSize.height: devicePixels
}
