import QtQuick
import "RegionPlacement.js" as RegionPlacement
import "Theme.js" as Theme

/// The row of controls that stays beside a region.
Rectangle {
    id: root

    required property RegionSelector region
    default property alias controls: row.data

    readonly property int gap: 5
    readonly property point place: RegionPlacement.beside(
        region.selection, Qt.size(region.width, region.height), Qt.size(width, height))

    x: Math.round(place.x)
    y: Math.round(place.y)
    width: row.implicitWidth + 2 * gap
    height: row.implicitHeight + 2 * gap
    radius: 8
    color: Theme.paper
    border { width: 1; color: Theme.hairline }

    // A press between the controls must not start a new selection.
    MouseArea { anchors.fill: parent }

    Row {
        id: row
        x: root.gap
        y: root.gap
        spacing: root.gap
    }
}
