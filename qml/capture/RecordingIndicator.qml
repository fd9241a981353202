import QtQuick
import "RegionPlacement.js" as RegionPlacement

/// Shows that and for how long a recording runs, beside the recorded region. Without room there it
/// stays away, as it would be in the recording; only what the recording goes without is told first.
Rectangle {
    id: root

    required property RegionSelector region
    /// What the recording goes without.
    property string note: ""
    /// How long the recording has run; empty while none does.
    readonly property string elapsed: running ? format(Math.floor((now - startedAt) / 1000)) : ""

    property bool running: false
    property double startedAt: 0
    property double now: 0
    readonly property int noteMs: 5000
    readonly property size area: Qt.size(region.width, region.height)
    readonly property var freePlace: RegionPlacement.outside(region.selection, area, Qt.size(width, height))
    readonly property point place: freePlace ?? RegionPlacement.beside(region.selection, area, Qt.size(width, height))

    function begin() {
        note = "";
        startedAt = Date.now();
        now = startedAt;
        running = true;
    }

    function end() {
        running = false;
    }

    function add(warning) {
        note += note === "" ? warning : " · " + warning;
        noteShown.restart();
    }

    function format(seconds) {
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
    visible: running && (freePlace !== null || noteShown.running)

    Text {
        id: label
        anchors.centerIn: parent
        text: qsTr("● 录制中") + "  " + root.elapsed + (root.note === "" ? "" : "  " + root.note)
        color: "white"
        font.pixelSize: 13
    }

    Timer {
        running: root.running
        repeat: true
        interval: 200
        onTriggered: root.now = Date.now()
    }

    Timer {
        id: noteShown
        interval: root.noteMs
    }
}
