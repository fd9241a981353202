import QtQuick
import FluentUI

/// One message. It closes by itself after `duration` ms, or by its button when that is not positive.
Rectangle {
    id: root

    property string text: ""
    property string type: "info"
    property string moremsg: ""
    property int duration: 1000
    property Component customComponent: null
    property bool isOpen: true

    signal closed

    /// Texts wrap here, or earlier in a narrow window.
    property real textWidth: 300

    readonly property bool lasting: duration <= 0
    readonly property var look: looks[type] ?? looks.info
    readonly property var looks: ({
            success: { icon: FluentIcons.CompletedSolid, fill: ["#DFF6DD", "#393D1B"], mark: ["#0F7B0F", "#6CCB5F"] },
            info: { icon: FluentIcons.InfoSolid, fill: ["#F4F4F4", "#272727"], mark: ["#0066B4", "#4CA0E0"] },
            warning: { icon: FluentIcons.InfoSolid, fill: ["#FFF4CE", "#433519"], mark: ["#9D5D00", "#FCE100"] },
            error: { icon: FluentIcons.StatusErrorFull, fill: ["#FDE7E9", "#442726"], mark: ["#C42B1C", "#FF99A4"] }
        })

    function shade(pair) {
        return pair[FluTheme.dark ? 1 : 0];
    }

    function close() {
        if (!isOpen)
            return;
        isOpen = false;
        timer.stop();
        closed();
    }

    function restart() {
        if (lasting)
            timer.stop();
        else
            timer.restart();
    }

    width: content.width + (customComponent ? 0 : 2 * content.x)
    height: content.height + (customComponent ? 0 : 2 * content.y)
    radius: 4
    color: customComponent ? "transparent" : shade(look.fill)
    border.width: customComponent ? 0 : 1
    border.color: FluTheme.dark ? Qt.rgba(1, 1, 1, 0.08) : Qt.rgba(0, 0, 0, 0.08)

    Accessible.role: Accessible.AlertMessage
    Accessible.name: moremsg === "" ? text : text + "\n" + moremsg

    Component.onCompleted: restart()

    Timer {
        id: timer

        interval: root.duration
        onTriggered: root.close()
    }

    Loader {
        id: content

        x: root.customComponent ? 0 : 15
        y: root.customComponent ? 0 : 10
        sourceComponent: root.customComponent ? root.customComponent : message
    }

    Component {
        id: message

        Row {
            spacing: 10

            FluIcon {
                id: icon

                iconSource: root.look.icon
                color: root.shade(root.look.mark)
            }
            Column {
                topPadding: Math.round((icon.height - title.implicitHeight / title.lineCount) / 2)
                bottomPadding: topPadding
                spacing: 4

                FluText {
                    id: title

                    width: Math.min(implicitWidth, root.textWidth)
                    text: root.text
                    textFormat: Text.PlainText
                    wrapMode: Text.Wrap
                }
                FluText {
                    width: Math.min(implicitWidth, root.textWidth)
                    visible: text !== ""
                    text: root.moremsg
                    textFormat: Text.PlainText // it may hold a path, whose name may look like markup
                    textColor: FluTheme.secondaryTextColor
                    wrapMode: Text.Wrap
                }
            }
            Item {
                visible: root.lasting
                width: closer.width
                height: icon.height

                FluIconButton {
                    id: closer

                    anchors.verticalCenter: parent.verticalCenter
                    width: 26
                    height: 26
                    padding: 0
                    iconSource: FluentIcons.ChromeClose
                    iconSize: 10
                    contentDescription: qsTr("Close")
                    onClicked: root.close()
                }
            }
        }
    }
}
