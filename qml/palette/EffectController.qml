import QtQuick

/// The two timed effects: marks that fade away one by one, and the newest mark that breathes.
QtObject {
    id: root

    /// The palette window, which holds the state of the tools.
    required property var palette

    readonly property var canvas: palette.drawWindow ? palette.drawWindow.painter : null

    /// The pictures carry their period: "qrc:/icons/timer30.png" stands for 30 s. 0 without a number.
    function periodMs(picture, family) {
        const ms = parseInt(picture.replace("qrc:/icons/" + family, "").replace(".png", "")) * 1000;
        return ms >= 1000 ? ms : 0;
    }

    function chooseFade(index, picture) {
        palette.deleteIcon = picture;
        fadeTimer.stop();
        const ms = periodMs(picture, "timer");
        if (ms === 0)
            return;
        fadeTimer.interval = ms;
        fadeTimer.start();
    }

    function chooseBreath(index, picture) {
        palette.repeatIcon = picture;
        if (!canvas)
            return;
        try {
            canvas.repeatDraw(periodMs(picture, "re"));
        } catch (error) {
            console.log("设置渐变时间错误:", error);
            canvas.repeatDraw(0);
            palette.repeatIcon = "qrc:/icons/re.png";
        }
    }

    property Timer fadeTimer: Timer {
        repeat: true
        onTriggered: {
            if (root.canvas)
                root.canvas.undoGradient();
        }
    }
}
