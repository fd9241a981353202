#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QUrl>
#include <QVariantMap>

/// One file of an update: where it is fetched, where it goes and what it must contain.
struct UpdateFile {
    QUrl url;
    /// Relative to the application folder, with "/" between folders.
    QString name;
    /// The 32 bytes of its SHA-256.
    QByteArray sha256;
};

/// A new version as the update service describes it, checked before anything is fetched.
struct UpdateOffer {
    Q_DECLARE_TR_FUNCTIONS(UpdateOffer)

public:
    QList<UpdateFile> files;
    /// The program that finishes the update, relative to the application folder.
    QString updater;

    struct Parsed;
    /// Reads the service's reply: "files" (a list of "url", "name", "sha256") and "updater".
    [[nodiscard]] static Parsed parse(const QVariantMap &reply);

    /// True for HTTPS, and for plain HTTP when it does not leave this machine.
    [[nodiscard]] static bool isAllowedAddress(const QUrl &url);

    /// True when `name`, taken below a folder, is a file in that folder or further down, on every
    /// platform: no "..", no drive, no root, no device name.
    [[nodiscard]] static bool staysInFolder(const QString &name);
};

struct UpdateOffer::Parsed {
    UpdateOffer offer;
    /// Why the offer cannot be taken, for the user; empty when it can.
    QString reason;
};
