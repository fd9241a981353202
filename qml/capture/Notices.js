.pragma library

// The notice about the latest capture. It outlives the window that made the capture.

let current = null;

function clear() {
    if (current)
        current.destroy();
    current = null;
}

/// `properties` of CaptureNotice. A new notice takes the place of the former one.
function show(properties) {
    clear();
    const component = Qt.createComponent("qrc:/CaptureNotice.qml");
    current = component.createObject(null, properties);
    if (!current)
        console.warn("创建窗口失败:", component.errorString());
}
