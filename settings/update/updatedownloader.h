#pragma once

#include "settings/update/updateinstaller.h"
#include "settings/update/updateoffer.h"

#include <QCryptographicHash>
#include <QFile>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QThread>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <memory>

class QNetworkReply;

/// Fetches the files of an update, checks each against its SHA-256, has them take their places in
/// the program's folder and hands over to the updater.
///
/// None of the program's files is touched before every file has arrived and matched; then all are
/// replaced or none, and nothing is started after a failure. Use on the GUI thread; network and
/// installation work in the background.
class UpdateDownloader : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(State state READ state NOTIFY stateChanged FINAL)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged FINAL)
    Q_PROPERTY(QString reason READ reason NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString refusal READ refusal CONSTANT FINAL)

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

    /// Why this program cannot be updated from here at all, for the user; empty when it can.
    [[nodiscard]] static QString refusal();

    /// How long a server may send nothing before it is given up.
    void setStallTimeoutMs(int timeoutMs) { m_stallTimeoutMs = timeoutMs; }
    /// How long all files together may take.
    void setTimeoutMs(int timeoutMs) { m_deadline.setInterval(timeoutMs); }

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
    [[nodiscard]] QString prepare(const QVariantMap &reply);
    void fetchNext();
    bool openNext();
    void followRedirect(const QUrl &target);
    void receive();
    void finishFile();
    void showProgress();
    void install();
    void finishInstalling(const QString &problem);
    void fail(const QString &reason);
    void drop();
    void setState(State state);
    void setProgress(double progress);
    void dropReply();
    [[nodiscard]] const UpdateFile &currentFile() const { return m_offer.files[m_current]; }

    QNetworkAccessManager m_network;
    QCryptographicHash m_hash{ QCryptographicHash::Sha256 };
    UpdateOffer m_offer;
    std::unique_ptr<UpdateInstaller> m_installer; ///< while a download runs or is installed
    qsizetype m_current = -1; ///< which of the offer's files is being fetched
    QFile m_file;
    qint64 m_received = 0; ///< bytes of all files
    QPointer<QNetworkReply> m_reply;
    QTimer m_deadline;
    std::unique_ptr<QThread> m_worker;
    QString m_reason;
    State m_state = Idle;
    double m_progress = 0;
    int m_stallTimeoutMs = 30000;
};
