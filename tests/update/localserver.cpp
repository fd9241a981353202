#include "tests/update/localserver.h"

#include <QTcpSocket>

LocalServer::LocalServer()
{
    listen(QHostAddress::LocalHost);
    connect(this, &QTcpServer::newConnection, this, [this] {
        QTcpSocket *socket = nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
            if (socket->peek(socket->bytesAvailable()).contains("\r\n\r\n"))
                answer(socket);
        });
    });
}

void LocalServer::serve(const QString &path, const QByteArray &body, Behaviour behaviour)
{
    m_answers[path.toUtf8()] = { "HTTP/1.1 200 OK\r\n", body, behaviour };
}

void LocalServer::redirect(const QString &path, const QUrl &target)
{
    m_answers[path.toUtf8()] = { "HTTP/1.1 302 Found\r\nLocation: " + target.toEncoded() + "\r\n",
        {}, Whole };
}

QUrl LocalServer::url(const QString &path) const
{
    return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(serverPort()).arg(path));
}

void LocalServer::answer(QTcpSocket *socket)
{
    ++m_requests;
    const QByteArray path = socket->readAll().split(' ').value(1);
    const Answer answer = m_answers.value(path, { "HTTP/1.1 404 Not Found\r\n", "none", Whole });
    connect(socket, &QTcpSocket::bytesWritten, this, [this](qint64 bytes) { m_sent += bytes; });
    const bool isEndless = answer.behaviour == Endless;
    socket->write(answer.head
        + (isEndless ? QByteArray()
                     : "Content-Length: " + QByteArray::number(answer.body.size()) + "\r\n")
        + "Connection: close\r\n\r\n");
    const bool isHalf = answer.behaviour == Dropped || answer.behaviour == Stalled;
    socket->write(isHalf ? answer.body.left(answer.body.size() / 2) : answer.body);
    if (isEndless) {
        connect(socket, &QTcpSocket::bytesWritten, socket, [socket] {
            if (socket->bytesToWrite() == 0)
                socket->write(QByteArray(1 << 16, '\0'));
        });
    } else if (answer.behaviour != Stalled) {
        socket->disconnectFromHost();
    }
}
