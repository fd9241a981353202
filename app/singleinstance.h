#pragma once

#include "app/command.h"
#include "app/instancename.h"
#include "platform/display.h"
#include "platform/fileidentity.h"

#include <QLocalServer>
#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

/// Keeps a single running instance per user and display, by a local socket that is open while the
/// program runs. A later start without commands hands over its arguments, on which nobody acts, and
/// gives way.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    enum class Claim {
        Granted, ///< this process is the instance
        HandedOver, ///< another one runs and has been told
        Refused, ///< the name cannot be had
    };
    using Answer = std::function<void(const CommandReply &)>;

    /// `display` is where this process shows its windows.
    explicit SingleInstance(const QString &display = ownDisplay({}));
    /// Gives the name up, unless a restarted instance has taken it over meanwhile.
    ~SingleInstance() override;

    /// `arguments` as the program got them, its path included; a running instance is told them.
    /// Blocks for the time-outs of that.
    [[nodiscard]] Claim claim(const QStringList &arguments);

signals:
    /// The user started the program once more.
    void startedAgain();
    /// Another start wants these carried out, and `answer` called once, whenever that is, but only
    /// as long as `asker` exists.
    void asked(const QList<Command> &commands, const Answer &answer, const QObject *asker);

private:
    [[nodiscard]] bool listen(const QString &name);
    [[nodiscard]] bool nameIsTakenOver() const;
    void closeBesidesSuccessor();
    void receiveVisitors();
    void receive(QLocalSocket *connection);
    [[nodiscard]] bool makeRoom();

    InstanceName m_name;
    std::unique_ptr<QLocalServer> m_server;
    std::optional<FileIdentity> m_socketIdentity;
};
