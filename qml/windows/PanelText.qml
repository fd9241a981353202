import QtQuick
import "Theme.js" as Theme

/// Running text on a panel.
Text {
    color: Theme.ink
    font.pixelSize: Theme.bodyText
    wrapMode: Text.Wrap
}
