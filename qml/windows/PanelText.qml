import QtQuick
import "Theme.js" as Theme

/// Running text on a panel. Some of it comes from a server, so it is never markup.
Text {
    textFormat: Text.PlainText
    color: Theme.ink
    font.pixelSize: Theme.bodyText
    wrapMode: Text.Wrap
}
