import QtQuick
import "RegionPlacement.js" as RegionPlacement

/// Shows that and for how long a recording runs, beside the recorded region where there is room.
Rectangle {
    id: root

    required property RegionSelector region
    /// What the recording goes without.
    property string note: ""

    property double startedAt: 0
    property double now: 0
    readonly property point place: RegionPlacement.outside(
        region.selection, Qt.size(region.width, region.height), Qt.size(width, height))

    function begin() {
        note = "";
        startedAt = Date.now();
        now = startedAt;
        visible = true;
    }

    function elapsed() {
        const seconds = Math.max(0, Math.floor((now - startedAt) / 1000));
        const two = number => String(number).padStart(2, "0");
        const minutes = two(Math.floor(seconds / 60) % 60) + ":" + two(seconds % 60);
        return seconds < 3600 ? minutes : Math.floor(seconds / 3600) + ":" + minutes;
    }

    x: Math.round(place.x)
    y: Math.round(place.y)
    width: label.implicitWidth + 20
    height: label.implicitHeight + 12
    radius: 4
    color: "#cc333333"
    visible: false

    Text {
        id: label
        anchors.centerIn: parent
        text: [qsTr("● 录制中"), root.elapsed(), root.note].filter(part => part !== "").join("  ")
        color: "white"
        font.pixelSize: 13
    }

    Timer {
        running: root.visible
        repeat: true
        interval: 200
        onTriggered: root.now = Date.now()
    }
}
