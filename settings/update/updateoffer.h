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
    /// How many bytes it has, if the service says so, else -1.
    qint64 size = -1;
};

/// A new version as the update service describes it, checked before anything is fetched.
struct UpdateOffer {
    Q_DECLARE_TR_FUNCTIONS(UpdateOffer)

public:
    QList<UpdateFile> files;
    /// The program that finishes the update, relative to the application folder.
    QString updater;

    /// More than any update weighs, all files together; an endless answer must not fill the disk.
    static constexpr qint64 kMaxBytes = qint64{ 1 } << 30;

    struct Parsed;
    /// Reads the service's reply: "files" (a list of "url", "name", "sha256" and perhaps "size")
    /// and "updater". What has another type than it should is refused like what is missing.
    [[nodiscard]] static Parsed parse(const QVariantMap &reply);

    /// The bytes of all files, as far as the service says; -1 when it does not for one of them.
    [[nodiscard]] qint64 size() const;

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
