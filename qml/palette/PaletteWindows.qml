import QtQuick
import Dravelin.Help
import "Notices.js" as Notices

/// The windows behind the palette's menu, and the update notice.
Item {
    id: root

    /// The palette window, which holds the open ones.
    required property var palette
    required property var settings

    function create(document, properties) {
        const component = Qt.createComponent(document);
        const window = component.createObject(null, properties);
        if (!window)
            console.warn("创建窗口失败:", document, component.errorString());
        return window;
    }

    function chooseMenu(index) {
        [openAbout, openHelp, openSettings, Qt.quit][index]();
    }

    function openAbout() {
        closeSettings();
        closeAbout();
        const window = create("qrc:/AboutWindow.qml",
                              { interfaceVersion: palette.appVersion });
        if (!window)
            return;
        palette.aboutWindow = window;
        window.helpWanted.connect(openHelp);
        window.licenceWanted.connect(openLicence);
        window.dismissed.connect(closeAbout);
        window.placeBeside(palette, palette.x + (palette.rightMargin <= 400 ? -400 : 60));
        window.show();
        window.requestActivate();
    }

    function closeAbout() {
        if (palette.aboutWindow)
            palette.aboutWindow.destroy();
        palette.aboutWindow = null;
    }

    function openHelp() {
        tellFailure(qsTr("帮助无法打开"), help.openSheet());
    }

    function openLicence(name) {
        tellFailure(qsTr("许可证无法打开"), help.openLicence(name));
    }

    function tellFailure(heading, reason) {
        if (reason !== "")
            Notices.show({ heading: heading, detail: reason, isFailure: true });
    }

    function openSettings() {
        closeAbout();
        closeSettings();
        const window = create("qrc:/settings.qml", {});
        if (!window)
            return;
        palette.settingWindow = window;
        window.changeHotKey.connect(palette.onHotKeyChanged);
        // Its first announcement came while it was made.
        palette.onHotKeyChanged();
        window.x = palette.x + (palette.rightMargin <= 350 ? -360 : 60);
        window.coveredRight = Qt.binding(() => coveredBy(palette, window));
        // A window manager raises what it gives the keyboard to: the palette comes after that, once,
        // for later it would rise above the settings' own dialogs.
        const raisePalette = () => {
            window.activeChanged.disconnect(raisePalette);
            palette.raise();
        };
        window.activeChanged.connect(raisePalette);
        window.raise();
        palette.raise();
    }

    HelpDesk { id: help }

    /// How far the palette reaches into the window from the right.
    function coveredBy(palette, window) {
        const overlap = window.x + window.width - palette.x;
        return overlap > 0 && palette.x > window.x + window.width / 2 ? overlap : 0;
    }

    function closeSettings() {
        if (palette.settingWindow)
            palette.settingWindow.destroy();
        palette.settingWindow = null;
    }

    function openUpdate(offer) {
        closeUpdate();
        const window = create("qrc:/UpdateNotice.qml",
                              { offer: offer, currentVersion: palette.appVersion });
        if (!window)
            return;
        palette.updateW = window;
        window.dismissed.connect(closeUpdate);
        window.placeBeside(palette, palette.x + (palette.rightMargin <= 400 ? -400 : 60));
        window.show();
    }

    function closeUpdate() {
        if (palette.updateW)
            palette.updateW.destroy();
        palette.updateW = null;
    }
}
