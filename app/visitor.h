#pragma once

#include "app/command.h"

#include <QObject>
#include <QTimer>

class QLocalSocket;

/// Another start of the program that has connected to this one, as long as its connection lasts. It
/// is given little room and little time; the object deletes itself.
class Visitor : public QObject
{
    Q_OBJECT

public:
    /// Takes the connection over.
    Visitor(QLocalSocket *connection, QObject *parent);

    /// Whether it has yet to say what it came for.
    [[nodiscard]] bool isSilent() const { return !m_heard; }

    /// Tells it what became of its commands and lets it go.
    void answer(const CommandReply &reply);
    /// Ends the connection at once.
    void dismiss();

signals:
    /// It was a start without commands.
    void startedAgain();
    void asked(const QList<Command> &commands);

private:
    void read();
    void readRequest();
    void leave();

    QLocalSocket *m_connection;
    QTimer m_patience;
    bool m_heard = false;
};
