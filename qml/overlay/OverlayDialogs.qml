import QtQuick
import QtQuick.Dialogs
import Cpp.MyComponents

// The overlay's colour dialog and its choice of a background picture.
Item {
    id: root

    required property MyPainter painter

    signal pictureChosen(url picture)

    function openColor(): void {
        colorDialog.selectedColor = root.painter.penColor;
        colorDialog.open();
    }

    function closeColor(): void { colorDialog.close(); }
    function openPicture(): void { fileDialog.open(); }

    ColorDialog {
        id: colorDialog

        function apply(): void { root.painter.penColor = selectedColor; }

        onSelectedColorChanged: if (visible)
            apply()
        onAccepted: apply()
    }

    FileDialog {
        id: fileDialog

        title: qsTr("请选择一个文件")
        acceptLabel: qsTr("确定")
        rejectLabel: qsTr("取消")
        nameFilters: ["Image files (*.png *.jpg)"]
        fileMode: FileDialog.OpenFile
        onAccepted: root.pictureChosen(selectedFile)
    }
}
