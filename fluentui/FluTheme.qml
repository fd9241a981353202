pragma Singleton
import QtQuick

/// The colours of all controls, light and dark.
QtObject {
    id: root

    /// 0 follows the system, 1 is light, 2 is dark.
    property int darkMode: 1
    readonly property bool dark: darkMode === 2 || (darkMode === 0 && systemPalette.window.hslLightness < 0.5)

    property color primaryColor: dark ? "#4CA0E0" : "#0066B4"
    property color fontPrimaryColor: dark ? "#F8F8F8" : "#070707"

    /// Text on a surface of primaryColor.
    readonly property color accentTextColor: dark ? "#000000" : "#FFFFFF"
    readonly property color secondaryTextColor: dark ? "#D2D2D2" : "#606060"
    readonly property color focusColor: dark ? "#FFFFFF" : "#000000"
    /// The outlines of controls, of text fields at their lower edge, and of what floats above.
    readonly property color strokeColor: dark ? "#4A4A4A" : "#E1E1E1"
    readonly property color textStrokeColor: dark ? "#9A9A9A" : "#868686"
    readonly property color flyoutStrokeColor: dark ? "#1C1C1C" : "#D8D8D8"
    readonly property color flyoutColor: dark ? "#2C2C2C" : "#FCFCFC"
    readonly property color dialogFooterColor: dark ? "#202020" : "#F3F3F3"
    readonly property color fieldColor: dark ? "#3E3E3E" : "#FEFEFE"
    readonly property color fieldHoverColor: dark ? "#444444" : "#FBFBFB"
    readonly property color fieldDisableColor: dark ? "#3B3B3B" : "#FCFCFC"
    readonly property color itemHoverColor: dark ? Qt.rgba(1, 1, 1, 0.06) : Qt.rgba(0, 0, 0, 0.04)
    readonly property color itemPressedColor: dark ? Qt.rgba(1, 1, 1, 0.09) : Qt.rgba(0, 0, 0, 0.07)
    /// What lies behind a modal dialog.
    readonly property color dimColor: Qt.rgba(0, 0, 0, 0.3)

    readonly property SystemPalette systemPalette: SystemPalette {
        colorGroup: SystemPalette.Active
    }
}
