#pragma once

#include "settings/update/updateoffer.h"

#include <QCryptographicHash>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QTemporaryFile>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

class QNetworkReply;

/// Fetches the files of an update, checks each against its SHA-256, writes them below the
/// application folder and hands over to the updater.
///
/// Nothing is written before every file has arrived and matched, and nothing is started after a
/// failure. Use on the GUI thread; the network works in the background.
class UpdateDownloader : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(State state READ state NOTIFY stateChanged FINAL)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged FINAL)
    Q_PROPERTY(QString reason READ reason NOTIFY stateChanged FINAL)

public:
    enum State { Idle, Downloading, Installing, Finished, Cancelled, Failed };
    Q_ENUM(State)

    explicit UpdateDownloader(QObject *parent = nullptr);
    ~UpdateDownloader() override;

    [[nodiscard]] State state() const { return m_state; }
    /// 0.0 to 1.0 over all files.
    [[nodiscard]] double progress() const { return m_progress; }
    /// Why the update failed, for the user; empty otherwise.
    [[nodiscard]] QString reason() const { return m_reason; }

    /// How long a server may send nothing before it is given up.
    void setStallTimeoutMs(int timeoutMs) { m_stallTimeoutMs = timeoutMs; }

    /// Starts with the update service's reply. Does nothing while a download runs.
    Q_INVOKABLE void start(const QVariantMap &reply);
    /// Ends a running download; what was fetched is dropped.
    Q_INVOKABLE void cancel();
    /// Whether the program talks to this address at all.
    Q_INVOKABLE static bool isAllowedAddress(const QUrl &url)
    {
        return UpdateOffer::isAllowedAddress(url);
    }

Q_SIGNALS:
    void stateChanged();
    void progressChanged();

private:
    void fetchNext();
    void followRedirect(const QUrl &target);
    void receive();
    void finishFile();
    void install();
    bool writeFile(std::size_t index);
    void handOver();
    void fail(const QString &reason);
    void setState(State state);
    void setProgress(double progress);
    void dropReply();
    [[nodiscard]] const UpdateFile &currentFile() const;

    QNetworkAccessManager m_network;
    QCryptographicHash m_hash{ QCryptographicHash::Sha256 };
    UpdateOffer m_offer;
    /// One for each file that is fetched or being fetched; they vanish with this list.
    std::vector<std::unique_ptr<QTemporaryFile>> m_fetched;
    QPointer<QNetworkReply> m_reply;
    QString m_reason;
    State m_state = Idle;
    double m_progress = 0;
    int m_stallTimeoutMs = 30000;
};
