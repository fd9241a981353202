import QtQml

/// What the recorder reports, in the user's language.
QtObject {
    /// Enough of a program's own words to tell what they are about.
    readonly property int quotedLength: 300

    /// Why a recording failed, and what to do. `text` is the recorder's own English sentence;
    /// `saved` says whether a part of the recording is in a file.
    function failure(code, text, saved) {
        return withRemains(reason(code, text), saved);
    }

    /// `message` is what the recording controller says, in English.
    function controllerFailure(message, saved) {
        if (message.startsWith("Failed to create output directory: "))
            return qsTr("无法创建文件夹 %1，请在设置中另选一个").arg(message.slice(message.indexOf(": ") + 2));
        if (message.startsWith("Failed to start recorder.exe: "))
            return qsTr("无法启动录制程序，请重新安装本程序");
        return saved ? withRemains(qsTr("录制程序意外结束"), saved)
                     : qsTr("录制程序意外结束，没有录下内容，请重新录制");
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

    function withRemains(reason, saved) {
        return saved ? reason + " · " + qsTr("已录制的部分没有丢失") : reason;
    }

    function reason(code, text) {
        switch (code) {
        case "region-too-small":
            return qsTr("选择的区域太小，请重新选择");
        case "no-screen":
            return qsTr("找不到可以录制的屏幕");
        case "no-encoder":
            return qsTr("没有找到 FFmpeg。请安装软件包 ffmpeg，或把它所在的文件夹加入 PATH，然后再录制");
        case "encoder-lacking":
            return qsTr("这个 FFmpeg 不能编码 H.264 视频，请安装完整的 FFmpeg");
        case "encoder-hung":
            return qsTr("FFmpeg 没有按时结束，录像可能缺少最后一刻");
        case "encoder-ended":
            return qsTr("FFmpeg 意外结束，请重新录制");
        case "encoder-failed":
            return qsTr("FFmpeg 出错，录制中断。它的说明：%1").arg(quoted(text));
        case "cannot-write":
            return qsTr("无法写入录像文件，请在设置中另选文件夹");
        case "disk-full":
            return qsTr("磁盘已满，请清理后再录制");
        case "nothing-recorded":
            return qsTr("录制时间太短，没有内容");
        default:
            return qsTr("录制程序出错，请重新安装本程序。它的说明：%1").arg(quoted(text));
        }
    }

    /// Another program's words, without the recorder's introduction.
    function quoted(text) {
        const words = text.replace(/^FFmpeg failed: /, "");
        return words === "" ? qsTr("无") : words.slice(0, quotedLength);
    }
}
