import QtQuick
import QtQuick.Templates as T
import FluentUI
import "Theme.js" as Theme

// The choice of the pen's colour. Every choice is reported at once, so that people see it on what
// they draw; a press beside the dialog closes it and draws. Built of plain rectangles, because the
// software renderer knows no shaders.
T.Popup {
    id: root

    /// What the dialog shows as chosen.
    property color selectedColor: "red"
    property color startColor: "red"
    property real hue: 0
    property real saturation: 1
    property real brightness: 1

    /// The user chose a colour, or took the choice back.
    signal chosen(color color)

    function openWith(color: color): void {
        root.startColor = color;
        root.show(color);
        root.open();
    }

    function show(color: color): void {
        if (color.hsvHue >= 0) // greys have none: the field keeps the one that it shows
            root.hue = color.hsvHue;
        root.saturation = color.hsvSaturation;
        root.brightness = color.hsvValue;
        root.selectedColor = color;
    }

    function choose(color: color): void {
        root.show(color);
        root.chosen(color);
    }

    function chooseShade(hue: real, saturation: real, brightness: real): void {
        root.hue = hue;
        root.saturation = saturation;
        root.brightness = brightness;
        root.selectedColor = Qt.hsva(hue, saturation, brightness, 1);
        root.chosen(root.selectedColor);
    }

    /// "#rrggbb", with or without the "#"; anything else brings the shown colour back.
    function chooseText(text: string): void {
        const digits = text.trim().replace(/^#/, "");
        if (/^[0-9a-fA-F]{6}$/.test(digits))
            root.choose("#" + digits);
        root.showChosenText();
    }

    function showChosenText(): void {
        hex.text = Qt.binding(() => root.selectedColor.toString());
    }

    /// The pen keeps its colour from before; what was typed meanwhile is dropped.
    function cancel(): void {
        root.showChosenText();
        root.choose(root.startColor);
        root.close();
    }

    width: 260
    height: implicitContentHeight + topPadding + bottomPadding
    padding: 16
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    background: Rectangle {
        radius: Theme.windowRadius
        color: Theme.paper
        border { color: Theme.hairline; width: 1 }
    }

    contentItem: Column { // qmllint disable deferred-property-id
        spacing: 12

        FluText {
            text: qsTr("画笔颜色")
            textColor: Theme.ink
            font.bold: true
        }

        ColorSwatches {
            width: parent.width
            current: root.selectedColor
            onPicked: color => root.choose(color)
        }

        ColorField {
            width: parent.width
            height: 130
            hue: root.hue
            saturation: root.saturation
            brightness: root.brightness
            onPicked: (saturation, brightness) => root.chooseShade(root.hue, saturation, brightness)
        }

        HueSlider {
            width: parent.width
            hue: root.hue
            onPicked: hue => root.chooseShade(hue, root.saturation, root.brightness)
        }

        Row {
            width: parent.width
            spacing: 8

            Rectangle {
                width: 32
                height: 32
                radius: 4
                color: root.selectedColor
                border.color: Theme.hairline
                border.width: 1
            }

            FluTextBox {
                id: hex

                width: parent.width - 40
                cleanEnabled: false
                text: root.selectedColor.toString()
                Accessible.name: qsTr("颜色代码")
                Keys.onEscapePressed: event => {
                    root.showChosenText();
                    event.accepted = false; // it also closes the dialog
                }
                onCommit: text => root.chooseText(text)
                onEditingFinished: root.chooseText(text)
            }
        }

        Row {
            anchors.right: parent.right
            spacing: 8

            FluButton {
                width: 72
                text: qsTr("取消")
                onClicked: root.cancel()
            }

            AccentButton {
                width: 72
                text: qsTr("确定")
                onClicked: {
                    root.chosen(root.selectedColor);
                    root.close();
                }
            }
        }
    }
}
