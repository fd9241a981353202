#pragma once

#include <QLocalSocket>
#include <QLockFile>
#include <QString>

#include <memory>

/// The names under which the running instances of a user are found, one instance for each display.
/// The first has the name that all know; another, and whoever finds that name with another user,
/// has one of user and display.
class InstanceName
{
public:
    /// `display` as `ownDisplay()` tells it.
    explicit InstanceName(const QString &display);

    [[nodiscard]] static QString shared();
    [[nodiscard]] QString own() const { return m_own; }

    /// Connected to the instance on this display, or nothing. Blocks for the time-outs of the
    /// connection.
    [[nodiscard]] std::unique_ptr<QLocalSocket> connectToInstance() const;

    /// The name for a start that has found no instance on this display.
    [[nodiscard]] QString toTake() const;

    /// The name for a start that takes over from whatever runs on this display. `predecessor` is
    /// the name of the one that has started it, if that has told. Connects to nobody.
    [[nodiscard]] QString toTakeOver(const QString &predecessor) const;

    /// The file of a name's socket, where sockets are files.
    [[nodiscard]] static QString pathOf(const QString &name);

    /// Why nobody could listen under a name: it is another user's.
    [[nodiscard]] static bool belongsElsewhere(const QString &name);

private:
    [[nodiscard]] bool isOnOtherDisplay(const QLocalSocket &holder) const;

    QString m_display;
    QString m_own;
};

/// Two starts at the same moment must not both find the name free, and a start must not take the
/// name while the one before is giving it up. Whoever cannot get the lock goes on without it.
class InstanceLock
{
public:
    InstanceLock();

private:
    QLockFile m_file;
};
