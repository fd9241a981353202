import QtQml

/// What the recorder reports, in the user's language.
QtObject {
    /// `text` is the recorder's own English sentence, for what has no words here.
    function failure(code, text) {
        switch (code) {
        case "region-too-small":
            return qsTr("选择的区域太小，请重新选择");
        case "no-screen":
            return qsTr("找不到可以录制的屏幕");
        case "no-encoder":
            return qsTr("没有找到 FFmpeg，请安装后再录制");
        case "cannot-write":
            return qsTr("无法写入录像文件，请在设置中另选文件夹");
        case "disk-full":
            return qsTr("磁盘已满，请清理后再录制。已录制的部分没有丢失");
        case "nothing-recorded":
            return qsTr("录制时间太短，没有内容");
        default:
            return qsTr("录制失败：%1").arg(text);
        }
    }

    /// `message` is what the recording controller says, in English.
    function controllerFailure(message) {
        const detail = message.slice(message.indexOf(": ") + 2);
        if (message.startsWith("Failed to create output directory: "))
            return qsTr("无法创建文件夹 %1，请在设置中另选一个").arg(detail);
        if (message.startsWith("Failed to start recorder.exe: "))
            return qsTr("无法启动录制程序：%1。请重新安装本程序").arg(detail);
        return qsTr("录制程序意外结束。已录制的部分没有丢失");
    }

    /// Short, as it stands beside the elapsed time.
    function warning(code, text) {
        switch (code) {
        case "no-sound-server":
            return qsTr("没有声音");
        case "no-microphone":
            return qsTr("没有麦克风");
        case "no-system-sound":
            return qsTr("没有系统声音");
        default:
            return text;
        }
    }
}
