#pragma once

#include <QByteArray>
#include <QHash>
#include <QTcpServer>
#include <QUrl>

class QTcpSocket;

/// A web server on the loopback address that answers each path as a test wishes.
class LocalServer : public QTcpServer
{
    Q_OBJECT

public:
    enum Behaviour {
        Whole, ///< sends everything
        Dropped, ///< closes the connection in the middle of the body
        Stalled, ///< sends half of the body and then nothing more
        Endless ///< sends the body and then zeros, as long as somebody takes them
    };

    LocalServer();

    void serve(const QString &path, const QByteArray &body, Behaviour behaviour = Whole);
    void redirect(const QString &path, const QUrl &target);
    /// Address of `path`, whether it is served or not; unknown paths give 404.
    [[nodiscard]] QUrl url(const QString &path) const;
    /// How many requests came.
    [[nodiscard]] int requests() const { return m_requests; }

    /// How many bytes went out.
    [[nodiscard]] qint64 sent() const { return m_sent; }

private:
    struct Answer {
        QByteArray head;
        QByteArray body;
        Behaviour behaviour = Whole;
    };

    void answer(QTcpSocket *socket);

    QHash<QByteArray, Answer> m_answers;
    int m_requests = 0;
    qint64 m_sent = 0;
};
