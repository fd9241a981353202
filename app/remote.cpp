#include "app/remote.h"

#include <QJSEngine>

Remote::Remote(int timeoutMs, QObject *parent) : QObject(parent)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(timeoutMs);
    m_patience.callOnTimeout(this, &Remote::expire);
}

Remote *Remote::instance()
{
    static auto *const remote = new Remote(kTimeoutMs);
    return remote;
}

Remote *Remote::create(QQmlEngine *, QJSEngine *)
{
    QJSEngine::setObjectOwnership(instance(), QJSEngine::CppOwnership);
    return instance();
}

void Remote::submit(const QList<Command> &commands, const Answer &answer, const QObject *asker)
{
    Request request;
    request.commands.append(commands);
    request.answer = answer;
    request.asker = asker;
    m_requests.enqueue(request);
    startNext();
}

void Remote::startNext()
{
    if (m_busy) {
        return;
    }
    while (!m_requests.isEmpty() && !m_requests.head().asker) {
        m_requests.dequeue();
    }
    if (m_requests.isEmpty()) {
        return;
    }
    m_busy = true;
    m_patience.start();
    requestNextCommand();
}

void Remote::requestNextCommand()
{
    Request &request = m_requests.head();
    if (request.commands.isEmpty()) {
        finish(true, {});
        return;
    }
    const Command command = request.commands.dequeue();
    emit requested(++m_ticket, command.verb, command.file);
}

void Remote::succeed(int ticket, const QString &file)
{
    if (isInHand(ticket)) {
        note(file);
        requestNextCommand();
    }
}

void Remote::refuse(int ticket, const QString &message, const QString &file)
{
    if (isInHand(ticket)) {
        note(file);
        finish(false, message);
    }
}

void Remote::note(const QString &file)
{
    if (!file.isEmpty()) {
        m_requests.head().reply.outputs << file;
    }
}

void Remote::expire()
{
    const int ticket = m_ticket;
    finish(false, tr("命令没有在规定时间内完成"));
    emit expired(ticket);
}

void Remote::finish(bool done, const QString &message)
{
    m_patience.stop();
    ++m_ticket;
    Request request = m_requests.dequeue();
    request.reply.done = done;
    request.reply.message = message;
    if (request.asker) {
        request.answer(request.reply);
    }
    m_busy = false;
    // On the next turn: what was asked for last, such as the end of the program, comes first.
    QMetaObject::invokeMethod(this, &Remote::startNext, Qt::QueuedConnection);
}
