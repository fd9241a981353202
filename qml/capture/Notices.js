.pragma library

// The notice about the latest capture. It outlives the window that made the capture.

let current = null;

/// Returns whether a notice was shown until now.
function clear() {
    const shown = current !== null;
    if (shown)
        current.destroy();
    current = null;
    return shown;
}

/// A notice that goes by itself says so: what is left of it must not be touched again.
function forget(notice) {
    if (current === notice)
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
