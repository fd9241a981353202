import QtQuick
import FluentUI
import "Theme.js" as Theme

/// The button that does what a panel is for.
FluButton {
    normalColor: down ? Qt.darker(Theme.accent, 1.15) : Theme.accent
    hoverColor: Qt.lighter(Theme.accent, 1.12)
    textColor: Theme.paper
}
