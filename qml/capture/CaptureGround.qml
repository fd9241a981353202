import QtQuick
import QtQuick.Window
import Dravelin.Platform

/// What lies beneath a capture window where the desktop cannot show a transparent one: a frozen
/// picture of the screen to pick a region of, or only the window's own outline while the screen is
/// to be seen live. Opens the window once that is prepared.
ScreenGround {
    id: root

    /// The capture window; it starts hidden.
    required property Window host
    property bool live: false
    property bool opened: false

    function prepare() {
        if (compositor.composited) {
            release();
            open();
        } else if (live) {
            cut();
        } else {
            freeze();
        }
    }

    function open() {
        if (opened)
            return;
        opened = true;
        host.showFullScreen();
        host.requestActivate();
    }

    showsOwnWindows: true
    onFrozen: open()
    onLiveChanged: prepare()

    CompositorWatch {
        id: compositor
        onCompositedChanged: {
            if (!root.opened || root.host.visible)
                root.prepare();
        }
    }

    Connections {
        target: root.host
        function onVisibleChanged() {
            if (!root.host.visible)
                root.release();
        }
    }
}
