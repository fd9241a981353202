#include "app/visitor.h"

#include "app/commandwire.h"

#include <QCoreApplication>
#include <QLocalSocket>

namespace
{

/// For what it says, and again for taking the answer.
constexpr int kPatienceMs = 10000;

} // namespace

Visitor::Visitor(QLocalSocket *connection, QObject *parent)
    : QObject(parent), m_connection(connection)
{
    m_connection->setParent(this);
    m_connection->setReadBufferSize(CommandWire::kMaxRequestBytes);
    connect(m_connection, &QLocalSocket::readyRead, this, &Visitor::read);
    connect(m_connection, &QLocalSocket::disconnected, this, &Visitor::leave);
    m_patience.setSingleShot(true);
    m_patience.callOnTimeout(this, &Visitor::dismiss);
    m_patience.start(kPatienceMs);
}

void Visitor::answer(const CommandReply &reply)
{
    m_connection->write(CommandWire::reply(reply));
    m_connection->flush(); // the program may be about to end
    m_connection->disconnectFromServer();
    m_patience.start(kPatienceMs);
}

void Visitor::dismiss()
{
    m_heard = true;
    m_connection->abort();
    deleteLater();
}

void Visitor::read()
{
    if (m_heard) {
        dismiss();
        return;
    }
    if (m_connection->peek(1).startsWith(CommandWire::kRequestMark)) {
        readRequest();
        return;
    }
    emit startedAgain();
    dismiss(); // nobody acts on the words
}

void Visitor::readRequest()
{
    if (!m_connection->canReadLine()) {
        if (m_connection->bytesAvailable() >= CommandWire::kMaxRequestBytes) {
            dismiss();
        }
        return;
    }
    m_heard = true;
    const QByteArray line = m_connection->readLine();
    if (line == CommandWire::nothing()) {
        dismiss();
        return;
    }
    if (const auto commands = CommandWire::readRequest(line)) {
        m_patience.stop();
        emit asked(*commands);
        return;
    }
    answer({ false, {},
        QCoreApplication::translate(
            "Visitor", "正在运行的程序不认识这个命令。请退出后重新启动它") });
}

void Visitor::leave()
{
    if (!m_heard && m_connection->bytesAvailable() == 0) {
        emit startedAgain();
    }
    m_heard = true;
    deleteLater();
}
