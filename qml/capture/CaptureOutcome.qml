import QtQml
import "Notices.js" as Notices

/// Tells the user what became of a captured picture.
QtObject {
    /// `result` is SettingsClazz.captureResult().
    function tell(result) {
        const failed = result.message !== undefined && result.message !== "";
        Notices.show({
            heading: failed ? qsTr("截图失败") : qsTr("截图已保存"),
            detail: result.message ?? "",
            filePath: result.path ?? "",
            isFailure: failed
        });
    }
}
