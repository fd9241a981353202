import QtQuick
import QtQuick.Window
import Cpp.MyComponents
import Dravelin.Platform
import Dravelin.Shell

/// The tool palette: the program's main window, always on top at the edge of the screen.
Window {
    id: root

    property real scaleFactor: 0.65
    /// True while the overlay takes the pointer, false while it lets it through.
    property bool drawAble: false
    /// A plain copy of all settings.
    property var hotKeys: ({})
    property var drawWindow: null
    property var selectWindow: null
    property var settingWindow: null
    property var aboutWindow: null
    property var updateW: null
    property var screenWindow: null
    property int savedPenSize: 3
    property int defPenSize: 2
    property string penIcon: "qrc:/icons/pen.png"
    property string lineIcon: "qrc:/icons/line.png"
    property string cuxiIcon: "qrc:/icons/b.png"
    property string cxiaoIcon: "qrc:/icons/chexiao.png"
    property string deleteIcon: "qrc:/icons/timer.png"
    property string repeatIcon: "qrc:/icons/re.png"
    property string yanshiIcon: "qrc:/icons/draw.png"
    property bool dragging: false
    property int dragX: 0
    property int dragY: 0
    property int seX: 0
    property int seY: 0
    readonly property int rightMargin: placement.rightMargin()
    property string appVersion: Shell.version

    readonly property bool drawing: drawAble && drawWindow !== null
    /// The monitor that the palette stands on, in the virtual desktop's coordinates.
    readonly property rect monitor: Qt.rect(Screen.virtualX, Screen.virtualY, Screen.width, Screen.height)
    readonly property alias collapsed: sheet.isOpen
    readonly property alias scrolled: sheet.scrolled
    readonly property alias tools: tools
    readonly property alias effects: effects
    readonly property alias overlayLink: overlayLink
    readonly property alias captures: captures
    readonly property alias shutter: screenShutter
    readonly property alias windows: windows
    readonly property alias tip: tip

    /// A click on the palette must not take the keyboard away from what the user types in. With the
    /// pointer elsewhere the palette may be reached with the window switcher.
    readonly property bool refusesKeyboard: !shownOnce || ((pointer.hovered || dragging) && !active)
    property bool shownOnce: false
    /// The window's flags, summed for the sake of a quick start: see MyIconButton.
    readonly property int kind: Qt.Window + Qt.FramelessWindowHint + Qt.WindowStaysOnTopHint
                                + (refusesKeyboard ? Qt.WindowDoesNotAcceptFocus : 0)

    function leaveText() {
        if (drawWindow)
            drawWindow.textInputMode = false;
    }

    function closeF() {
        flyouts.close();
        leaveText();
    }

    function raiseWithFlyout() {
        raise();
        if (selectWindow) {
            selectWindow.show();
            selectWindow.raise();
        }
    }

    function loadSettings() {
        hotKeys = JSON.parse(JSON.stringify(settingClazz.getAllSettings()));
        if (settingWindow)
            settingWindow.raise();
    }

    function onHotKeyChanged() {
        console.log("Hot key has been changed");
        loadSettings();
        const canvas = tools.canvas;
        if (canvas && canvas.penOpacity < 1.0 && !canvas.isEraserMode)
            canvas.penOpacity = 1.0;
    }

    title: qsTr("主窗口")
    flags: kind
    color: "transparent"
    width: 50 * scaleFactor
    height: Math.min((sheet.isOpen ? 99 : 800) * scaleFactor, monitor.height)
    x: placement.start.x
    y: placement.start.y
    visible: true

    onFrameSwapped: shownOnce = true
    onActiveChanged: {
        // A tap, without any hovering before it, was quicker than the refusal.
        if (active && pointer.hovered)
            focusReturn.giveBackAfterClick();
    }
    onVisibleChanged: {
        if (visible)
            return;
        flyouts.close();
        tip.hide();
    }
    onClosing: close => {
        // What was drawn would go with the program; the tray brings the palette back.
        close.accepted = false;
        if (Shell.hasTray())
            hide();
    }

    Component.onCompleted: {
        // From here on it stays where it is.
        x = x;
        y = y;
        if (settingClazz.getIniValue("UPDATE", "APPVersion") !== appVersion)
            settingClazz.setIniValue("UPDATE", "APPVersion", appVersion);
        updates.readAddresses();
        raise();
        loadSettings();
        updates.check();
    }

    SettingsClazz { id: settingClazz }
    VideoCaptureObject { id: videoCaptureObj }

    ToolController { id: tools; palette: root }
    EffectController { id: effects; palette: root }
    OverlayLink { id: overlayLink; palette: root }
    PalettePlacement { id: placement; palette: root; settings: settingClazz }
    PaletteHotkeys { palette: root }
    ToolNames { id: toolNames }
    PaletteWindows {
        id: windows
        palette: root
        settings: settingClazz
    }
    UpdateCheck {
        id: updates
        settings: settingClazz
        appVersion: root.appVersion
        onOffered: offer => windows.openUpdate(offer)
    }

    FlyoutHost { id: flyouts; palette: root; toolNames: toolNames }
    ScreenShutter { id: screenShutter; settings: settingClazz }
    CaptureWindows {
        id: captures
        palette: root
        videoCapture: videoCaptureObj
        settings: settingClazz
    }

    RemoteControl { palette: root; settings: settingClazz }

    ButtonToolTips { id: tip; palette: root; flyouts: flyouts }

    HoverHandler { id: pointer }
    FocusReturn { id: focusReturn; window: root }

    Column {
        spacing: Math.round(10 * root.scaleFactor)

        DragHandle {
            palette: root
            flyouts: flyouts
            onMoved: placement.remember()
        }

        PaletteSheet {
            id: sheet
            width: 50 * root.scaleFactor
            palette: root
            flyouts: flyouts
            toolNames: toolNames
            onUnfolded: placement.bringBack()
        }
    }

    Timer {
        id: reappear
        interval: 100
        onTriggered: root.show()
    }

    Connections {
        target: LanguageManager // qmllint disable unqualified
        // Hidden and shown again, the window comes back with every text in the new language.
        function onLanguageChanged(language) {
            console.log("语言已更改为: ", language);
            root.hide();
            reappear.start();
        }
    }
}
