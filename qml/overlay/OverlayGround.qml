import QtQuick
import Dravelin.Platform

// What lies under the marks where the desktop cannot show a transparent window: a frozen picture of
// the screen while drawing, nothing but the marks' own shape while the pointer goes through.
ScreenGround {
    id: root

    required property OverlaySurface surface
    property bool explained: false

    /// The first picture of a run stands; people should hear why the screen is frozen.
    signal firstFrozen

    /// Does what the desktop and the state of the overlay ask for now.
    function prepare(): void {
        if (compositor.composited)
            root.release();
        else if (root.surface.passThrough)
            root.cut();
        else
            root.freeze();
    }

    onFrozen: {
        if (!root.explained)
            root.firstFrozen();
        root.explained = true;
    }

    CompositorWatch {
        id: compositor
        onCompositedChanged: root.prepare()
    }

    Connections {
        target: root.surface
        function onPassThroughChanged() { root.prepare(); }
    }
}
