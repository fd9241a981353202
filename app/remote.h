#pragma once

#include "app/command.h"

#include <QObject>
#include <QPointer>
#include <QQueue>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <functional>

class QJSEngine;
class QQmlEngine;

/// Has the interface carry out the commands that come from outside, one after the other. The
/// interface answers each by its ticket, at once or later. One instance for the whole process,
/// which is not freed.
class Remote : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using Answer = std::function<void(const CommandReply &)>;

    /// What all commands of a request may take together.
    static constexpr int kTimeoutMs = 25000;

    /// Without a default: the engine would prefer that to `create`.
    explicit Remote(int timeoutMs, QObject *parent = nullptr);

    [[nodiscard]] static Remote *instance();
    /// For the engine, which does not get to own it.
    [[nodiscard]] static Remote *create(QQmlEngine *, QJSEngine *);

    /// Carries the commands out in order, after those that are waiting. The first that is refused
    /// ends the request; then, or when all are done, `answer` is called. A request whose `asker` is
    /// deleted before its turn is dropped: whoever has been told that nothing came of it must not
    /// see it happen later.
    void submit(const QList<Command> &commands, const Answer &answer, const QObject *asker);

    /// The command was carried out and made `file`, if any.
    Q_INVOKABLE void succeed(int ticket, const QString &file = {});
    /// It was not, or not wholly; `message` tells people why and what to do.
    Q_INVOKABLE void refuse(int ticket, const QString &message, const QString &file = {});

signals:
    /// To be answered with `succeed` or `refuse`. `file` is absolute, and empty where none is
    /// named.
    void requested(int ticket, Verbs::Verb verb, const QString &file);
    /// The command has taken too long and counts as refused: what it began is to be given up.
    void expired(int ticket);

private:
    struct Request {
        QQueue<Command> commands;
        Answer answer;
        QPointer<const QObject> asker;
        CommandReply reply;
    };

    [[nodiscard]] bool isInHand(int ticket) const { return m_busy && ticket == m_ticket; }
    void note(const QString &file);
    void startNext();
    void requestNextCommand();
    void expire();
    void finish(bool done, const QString &message);

    QQueue<Request> m_requests;
    bool m_busy = false;
    int m_ticket = 0; ///< of the command in hand; an answer to a former one comes too late
    QTimer m_patience;
};
