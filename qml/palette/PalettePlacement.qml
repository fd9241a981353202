import QtQuick

/// Where the palette stands: at the right edge of the main screen at first, where it was left
/// afterwards, and never where no monitor shows it.
QtObject {
    id: root

    /// The palette window.
    required property var palette
    required property var settings

    readonly property string key: "palettePosition"

    /// Distance from the palette's right edge to that of the virtual desktop; 0 without a screen.
    function rightMargin() {
        const screens = Array.from(Application.screens);
        if (screens.length === 0)
            return 0;
        const right = Math.max(...screens.map(screen => screen.virtualX + screen.width));
        return right - (palette.x + palette.width);
    }

    /// Where the palette appears when the program starts.
    readonly property point start: startPosition(Math.floor(50 * palette.scaleFactor),
                                                 Math.floor(800 * palette.scaleFactor))

    function startPosition(width, height) {
        const main = Application.screens[0];
        if (!main)
            return Qt.point(0, 0);
        const stored = settings.getSettingByKey(key).split(",").map(Number);
        if (stored.length === 2 && stored.every(Number.isFinite))
            return fitted(Qt.rect(stored[0], stored[1], width, height));
        return fitted(Qt.rect(main.virtualX + main.width - width,
                              main.virtualY + Math.round((main.height - height) / 2), width, height));
    }

    function overlap(area, screen) {
        const width = Math.min(area.x + area.width, screen.virtualX + screen.width)
                      - Math.max(area.x, screen.virtualX);
        const height = Math.min(area.y + area.height, screen.virtualY + screen.height)
                       - Math.max(area.y, screen.virtualY);
        return Math.max(0, width) * Math.max(0, height);
    }

    function distance(area, screen) {
        const dx = Math.max(screen.virtualX - area.x, 0, area.x - screen.virtualX - screen.width);
        const dy = Math.max(screen.virtualY - area.y, 0, area.y - screen.virtualY - screen.height);
        return Math.hypot(dx, dy);
    }

    /// The position for `area` that shows all of it, on the screen that holds most of it or else
    /// is nearest; unchanged where monitors show it whole already.
    function fitted(area) {
        const screens = Array.from(Application.screens);
        const shown = screens.reduce((sum, screen) => sum + overlap(area, screen), 0);
        if (screens.length === 0 || shown >= area.width * area.height)
            return Qt.point(area.x, area.y);
        const best = screens.reduce((a, b) => {
            const more = overlap(area, b) - overlap(area, a);
            return more > 0 || (more === 0 && distance(area, b) < distance(area, a)) ? b : a;
        });
        return Qt.point(
            Math.max(best.virtualX, Math.min(area.x, best.virtualX + best.width - area.width)),
            Math.max(best.virtualY, Math.min(area.y, best.virtualY + best.height - area.height)));
    }

    function bringBack() {
        const point = fitted(Qt.rect(palette.x, palette.y, palette.width, palette.height));
        if (point.x === palette.x && point.y === palette.y)
            return;
        palette.x = point.x;
        palette.y = point.y;
    }

    function remember() {
        bringBack();
        settings.addSetting(key, palette.x + "," + palette.y);
    }

    // Window managers move windows themselves when monitors change; the last word comes after them.
    property Timer settle: Timer {
        interval: 300
        onTriggered: root.bringBack()
    }

    readonly property string monitors: Array.from(Application.screens).map(
        screen => [screen.virtualX, screen.virtualY, screen.width, screen.height].join()).join("|")
    onMonitorsChanged: settle.restart()
}
