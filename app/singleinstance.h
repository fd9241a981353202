#pragma once

#include "platform/fileidentity.h"

#include <QLocalServer>
#include <QObject>
#include <QStringList>

#include <memory>
#include <optional>

/// Keeps a single running instance per user, by a local socket that is open while the program
/// runs. A later start hands its arguments over and gives way; nobody acts on the arguments.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    enum class Claim {
        Granted, ///< this process is the instance
        HandedOver, ///< another one runs and has been told
        Refused, ///< the name cannot be had
    };

    SingleInstance() = default;
    /// Gives the name up, unless a restarted instance has taken it over meanwhile.
    ~SingleInstance() override;

    /// `arguments` as the program got them, its path included. Blocks for the time-outs of the
    /// hand-over.
    [[nodiscard]] Claim claim(const QStringList &arguments);

signals:
    /// The user started the program once more.
    void startedAgain();

private:
    [[nodiscard]] bool listen(const QString &name);
    [[nodiscard]] bool nameIsTakenOver() const;
    void closeBesidesSuccessor();
    void receiveAnotherStart();

    std::unique_ptr<QLocalServer> m_server;
    std::optional<FileIdentity> m_socketIdentity;
};
