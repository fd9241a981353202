import QtQuick
import QtQuick.Layouts
import Dravelin.Update
import FluentUI
import "Theme.js" as Theme

/// A newer version: asks whether to install it, shows how the download gets on, and says why when
/// it fails.
PanelWindow {
    id: root

    /// The reply of the update service, with "version" and "notes" as texts.
    required property var offer
    required property string currentVersion

    readonly property bool busy: downloader.state === UpdateDownloader.Downloading
                                 || downloader.state === UpdateDownloader.Installing
    /// The program cannot be updated from here: there is only something to be read.
    readonly property bool refused: downloader.refusal !== ""
    readonly property bool failed: downloader.state === UpdateDownloader.Failed

    width: 380
    height: body.implicitHeight + stripHeight + 24
    title: qsTr("软件更新")
    // It comes unasked: only the pointer gives it the keyboard.
    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
           | (visited ? 0 : Qt.WindowDoesNotAcceptFocus)
    property bool visited: false

    HoverHandler {
        onHoveredChanged: {
            if (hovered)
                root.visited = true;
        }
    }

    UpdateDownloader { id: downloader }

    ColumnLayout {
        id: body
        width: parent.width
        spacing: 8

        PanelText {
            Layout.fillWidth: true
            text: qsTr("发现新版本 %1").arg(root.offer.version)
            font { pixelSize: Theme.titleText; weight: Font.DemiBold }
        }

        PanelText {
            Layout.fillWidth: true
            text: qsTr("当前版本 %1").arg(root.currentVersion)
            color: Theme.inkMuted
        }

        UpdateNotes {
            Layout.fillWidth: true
            Layout.preferredHeight: Math.min(160, implicitHeight)
            visible: text !== ""
            text: root.offer.notes
        }

        ProgressLine {
            Layout.fillWidth: true
            Layout.topMargin: 6
            visible: root.busy
            value: downloader.progress
            label: downloader.state === UpdateDownloader.Installing
                   ? qsTr("正在安装…") : qsTr("正在下载… %1%").arg(Math.round(downloader.progress * 100))
        }

        PanelText {
            Layout.fillWidth: true
            Layout.topMargin: 6
            visible: root.refused
            text: downloader.refusal
        }

        PanelText {
            Layout.fillWidth: true
            visible: root.failed || downloader.state === UpdateDownloader.Cancelled
            text: root.failed ? downloader.reason : qsTr("已取消下载，没有更改任何文件。")
            color: root.failed ? Theme.danger : Theme.inkMuted
        }

        RowLayout {
            Layout.topMargin: 10
            Layout.alignment: Qt.AlignRight
            spacing: 10

            FluButton {
                text: root.busy ? qsTr("取消") : root.refused ? qsTr("知道了") : qsTr("以后再说")
                disabled: downloader.state === UpdateDownloader.Installing
                onClicked: {
                    if (root.busy)
                        downloader.cancel();
                    else
                        root.dismissed();
                }
            }

            AccentButton {
                visible: !root.busy && !root.refused
                text: root.failed ? qsTr("重试") : qsTr("立即更新")
                onClicked: downloader.start(root.offer)
            }
        }
    }
}
