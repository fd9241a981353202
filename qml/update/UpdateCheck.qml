import QtQml
import Dravelin.Update

/// Asks the update service once, at start, whether there is a newer version. The question waits
/// for nobody: a dead or slow server only means that no offer comes.
QtObject {
    id: root

    required property var settings
    required property string appVersion

    property string updateUrl: ""
    /// Base address of the product's web service.
    property string apiUrl: ""

    /// The service offers a newer version; `offer` is its reply.
    signal offered(var offer)

    function readAddresses() {
        updateUrl = settings.getIniValue("UPDATE", "UpdateURL");
        const api = settings.getIniValue("Network", "API");
        apiUrl = api ? api : "https://service.dravelin.example";
    }

    function check() {
        if (!updateUrl)
            return;
        if (!downloader.isAllowedAddress(updateUrl)) {
            console.warn("更新地址不安全，只允许 HTTPS:", updateUrl);
            return;
        }
        question.ask(updateUrl, {
            app: "Dravelin",
            version: appVersion,
            os: settings.getSysInfo()
        });
    }

    property UpdateDownloader downloader: UpdateDownloader {}
    property UpdateQuestion question: UpdateQuestion {
        onOffered: offer => root.offered(offer)
    }
}
