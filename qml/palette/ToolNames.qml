import QtQuick

/// What the pictures of the palette are called: for tool-tips and for screen readers.
QtObject {
    readonly property var menu: [qsTr("关于"), qsTr("帮助"), qsTr("设置"), qsTr("退出")]

    /// The name of the picture "qrc:/icons/<key>.png", or an empty text.
    function of(picture) {
        const key = picture.replace("qrc:/icons/", "").replace(".png", "");
        switch (key) {
        case "pen": return qsTr("画笔");
        case "ygpen": return qsTr("荧光笔");
        case "text": return qsTr("文字");
        case "line": return qsTr("直线");
        case "circle": return qsTr("圆形");
        case "jiantou": return qsTr("箭头");
        case "rect": return qsTr("矩形");
        case "munber": return qsTr("编号");
        case "chexiao": return qsTr("撤销");
        case "fanhui": return qsTr("恢复");
        case "draw": return qsTr("透明画板");
        case "whiteBorad": return qsTr("白板");
        case "blackBoard": return qsTr("黑板");
        case "tuku": return qsTr("图片背景");
        case "a": return qsTr("细");
        case "b": return qsTr("中");
        case "c": return qsTr("粗");
        case "d": return qsTr("特粗");
        case "timer": return qsTr("不自动消失");
        case "re": return qsTr("不呼吸");
        }
        const seconds = parseInt(key.replace(/^\D+/, ""));
        return key.startsWith("timer") ? qsTr("每 %1 秒消失一笔").arg(seconds)
             : key.startsWith("re") ? qsTr("呼吸 %1 秒").arg(seconds) : "";
    }
}
