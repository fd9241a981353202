import QtQuick
import FluentUI

/// Every control in its states, to be looked at.
Window {
    id: root

    property bool dark: false
    readonly property var iconNames: ["Add", "Camera", "Cancel", "Checkbox", "CheckMark", "ChevronDown", "ChevronLeft", "ChevronRight", "ChevronUp", "ChromeClose", "CircleRing", "Clear", "ClearAllInk", "Color", "CompletedSolid", "Copy", "Cut", "Delete", "Download", "Edit", "EditMirrored", "EraseTool", "Folder", "FontSize", "Globe", "Help", "Highlight", "Home", "Info", "InfoSolid", "InkingTool", "Keyboard", "Marker", "More", "Mouse", "Paste", "Pause", "Pencil", "Play", "Redo", "Refresh", "Save", "Search", "Settings", "StatusErrorFull", "Stop", "Undo", "Video", "Warning"]

    width: 760
    height: 620
    visible: true
    color: FluTheme.dark ? "#202020" : "#FFFFFF"

    Component.onCompleted: {
        if (dark)
            FluTheme.darkMode = 2;
        bars.showSuccess("Saved", 0);
        bars.showInfo("已复制到剪贴板", 0);
        bars.showWarning("Shit+绘制:绘制90°,45°,180°直线", 0, "Three more words");
        bars.showError("The folder cannot be written to: there is no space left on the device. Choose another one.", 0);
    }

    FluInfoBar {
        id: bars

        root: right
        layoutY: 20
    }
    FluHotkey {
        id: hotkey

        sequence: "Ctrl+P"
    }

    Item {
        id: right

        x: 400
        width: 360
        height: 300
    }

    Column {
        x: 20
        y: 20
        spacing: 14

        FluText {
            text: "Screen pen 截图路径"
            font: FluTextStyle.Title
        }
        Row {
            spacing: 10

            FluButton {
                text: "浏览"
            }
            FluButton {
                text: "Browse"
                focus: true
            }
            FluButton {
                text: "Disabled"
                disabled: true
            }
            FluFilledButton {
                text: "Save"
            }
        }
        Row {
            spacing: 10

            FluIconButton {
                iconSource: FluentIcons.Cancel
                text: "Close"
            }
            FluIconButton {
                iconSource: FluentIcons.Settings
                normalColor: FluTheme.itemPressedColor
            }
            FluIconButton {
                iconSource: FluentIcons.Delete
                disabled: true
            }
            FluIconButton {
                iconSource: FluentIcons.Save
                text: "Save"
                display: FluIconButton.TextBesideIcon
            }
            FluIconButton {
                iconSource: FluentIcons.Camera
                text: "截屏"
                display: FluIconButton.TextUnderIcon
            }
        }
        Row {
            spacing: 10

            FluTextBox {
                width: 170
                placeholderText: "截图保存路径"
            }
            FluTextBox {
                width: 170
                text: "/home/pen/Pictures"
            }
        }
        Row {
            spacing: 10

            FluTextBox {
                width: 170
                text: "Disabled"
                disabled: true
            }
            FluTextBox {
                width: 170
                iconSource: FluentIcons.Search
                placeholderText: "Search"
            }
        }
        Row {
            spacing: 10

            FluComboBox {
                model: ["简体中文", "English"]
            }
            FluComboBox {
                editable: true
                model: ["12", "16", "20"]
            }
            FluComboBox {
                disabled: true
                model: ["Disabled"]
            }
        }
        FluShortcutPicker {
            height: 40
            text: "截屏热键"
            syncHotkey: hotkey
        }
        FluShortcutPicker {
            text: "Circle"
            current: ["Ctrl", "Shift", "PgUp"]
            registered: false
        }
    }

    Grid {
        x: 20
        y: 470
        columns: 17
        spacing: 6

        Repeater {
            model: root.iconNames

            FluIconButton {
                required property string modelData

                iconSource: FluentIcons[modelData]
            }
        }
    }
}
