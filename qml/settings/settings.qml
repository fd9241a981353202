import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import QtQuick.Window
import Cpp.MyComponents
import FluentUI
import "FileUrls.js" as FileUrls

/// The settings window. Every change is stored at once and announced with `changeHotKey`.
PanelWindow {
    id: root

    property var hotKeys: ({
        screenSavePath: "",
        screenKey: "Ctrl+P",
        penKey: "Ctrl+E",
        closeDrawKey: "Ctrl+Q",
        eraseKey: "Ctrl+D",
        textKey: "Ctrl+T",
        clearKey: "Ctrl+K",
        circleKey: "Ctrl+O",
        lineKey: "Ctrl+L"
    })

    signal changeHotKey()

    readonly property var pickers: [
        { text: qsTr("截屏热键"), key: "screenKey", fallback: "Ctrl+P" },
        { text: qsTr("画笔热键"), key: "penKey", fallback: "Ctrl+E" },
        { text: qsTr("关闭画笔"), key: "closeDrawKey", fallback: "Ctrl+Q" },
        { text: qsTr("橡皮擦"), key: "eraseKey", fallback: "Ctrl+D" },
        { text: qsTr("添加文字"), key: "textKey", fallback: "Ctrl+T" },
        { text: qsTr("清除绘制"), key: "clearKey", fallback: "Ctrl+K" },
        { text: qsTr("直线绘制"), key: "lineKey", fallback: "Ctrl+L" },
        { text: qsTr("圆形绘制"), key: "circleKey", fallback: "Ctrl+O" }
    ]
    readonly property int messageMs: 4000
    readonly property int problemMs: 8000 // there is more to read

    function loadSettings() {
        hotKeys = JSON.parse(JSON.stringify(settingClazz.getAllSettings()));
        console.log("加载设置成功:", JSON.stringify(hotKeys));
        changeHotKey();
    }

    /// The latest change is in effect nowhere when it could not be stored.
    function tellProblem(heading) {
        infoBar.showError(heading, problemMs, FileUrls.shown(settingClazz.storeProblem()));
    }

    function saveKeyAndReload(key, value) {
        settingClazz.addSetting(key, value);
        if (settingClazz.storeProblem() !== "")
            tellProblem(qsTr("设置无法保存"));
        console.log("保存设置:", key, value);
        loadSettings();
    }

    function browse() {
        const folder = settingClazz.selectSaveDirectory(hotKeys.screenSavePath ?? "");
        if (folder === "")
            return;
        if (settingClazz.storeProblem() !== "")
            tellProblem(qsTr("设置无法保存"));
        loadSettings();
        folderChoice.show(hotKeys.screenSavePath);
    }

    function applyLanguage(code) {
        if (code === "") {
            infoBar.showError(qsTr("选择的语言无效"), messageMs);
        } else if (settingClazz.setLanguage(code)) {
            languageChoice.offered = false;
            settingClazz.restartApplication();
        } else {
            tellProblem(qsTr("语言切换失败"));
        }
    }

    title: qsTr("设置")
    width: 400
    height: Math.min(600, Screen.height) // its content scrolls
    contentMargin: 15
    closeMargin: 5
    visible: true
    x: Screen.virtualX + Math.round((Screen.width - width) / 2)
    y: Screen.virtualY + Math.round((Screen.height - height) / 2)

    onDismissed: {
        folderChoice.finish(); // a click on the cross leaves the focus, and the edit, in the box
        destroy();
    }
    Component.onCompleted: {
        loadSettings();
        requestActivate();
        raise();
    }

    SettingsClazz { id: settingClazz }

    FluInfoBar {
        id: infoBar
        root: scroll
    }

    PanelText {
        y: -root.stripHeight + Math.round((root.stripHeight - height) / 2)
        text: root.title
        font { pixelSize: 15; weight: Font.DemiBold }
    }

    Flickable {
        id: scroll

        anchors.fill: parent
        contentWidth: width
        contentHeight: column.implicitHeight
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        T.ScrollBar.vertical: PanelScrollBar {
            parent: scroll.parent
            x: scroll.width + Math.round((root.contentMargin - width) / 2)
            height: scroll.height
        }

        ColumnLayout {
            id: column

            readonly property real labelWidth: Math.ceil(
                Math.max(folderChoice.ownLabelWidth, languageChoice.ownLabelWidth))

            width: scroll.width
            spacing: 15

            FolderChoice {
                id: folderChoice
                labelWidth: column.labelWidth
                Layout.fillWidth: true
                folder: root.hotKeys.screenSavePath ?? ""
                onEdited: folder => root.saveKeyAndReload("screenSavePath", folder)
                onBrowse: root.browse()
            }

            LanguageChoice {
                id: languageChoice
                labelWidth: column.labelWidth
                Layout.fillWidth: true
                settings: settingClazz
                onApply: code => root.applyLanguage(code)
            }

            Repeater {
                model: root.pickers

                HotkeyPicker {
                    required property var modelData

                    Layout.fillWidth: true
                    Layout.preferredHeight: 40
                    text: modelData.text
                    settingsKey: modelData.key
                    fallback: modelData.fallback
                    hotKeys: root.hotKeys // qmllint disable unqualified
                    onChosen: sequence => root.saveKeyAndReload(settingsKey, sequence)
                }
            }
        }
    }
}
