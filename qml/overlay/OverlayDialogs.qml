import QtQuick
import Cpp.MyComponents
import Dravelin.Platform

// The overlay's colour dialog and its choice of a background picture.
Item {
    id: root

    required property MyPainter painter
    /// The window beside which the colour dialog opens, in the overlay's coordinates.
    required property rect palette

    signal pictureChosen(url picture)

    function openColor(): void {
        colorDialog.place();
        colorDialog.openWith(root.painter.penColor);
    }

    function closeColor(): void { colorDialog.close(); }
    function openPicture(): void { pictureDialog.open(); }

    PenColorDialog {
        id: colorDialog

        function place(): void {
            const gap = 12;
            const beside = root.palette.x + root.palette.width + gap;
            const fits = beside + width + gap <= root.width;
            x = fits ? beside : Math.max(gap, root.palette.x - width - gap);
            const middle = root.palette.y + (root.palette.height - height) / 2;
            y = Math.max(gap, Math.min(middle, root.height - height - gap));
        }

        parent: root
        onChosen: color => root.painter.penColor = color
    }

    PictureDialog {
        id: pictureDialog

        title: qsTr("请选择一个文件")
        acceptLabel: qsTr("确定")
        rejectLabel: qsTr("取消")
        nameFilter: "Image files (*.png *.jpg)"
        onAccepted: picture => root.pictureChosen(picture)
    }
}
