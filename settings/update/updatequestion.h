#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

class QNetworkReply;

/// Asks the update service whether there is a newer version. The answer may take neither more than
/// a megabyte nor more than half a minute: whatever the service sends, the palette does not notice.
/// A failure is logged, and nobody is told. Use on the GUI thread; the network works in the
/// background.
class UpdateQuestion : public QObject
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit UpdateQuestion(QObject *parent = nullptr);
    ~UpdateQuestion() override;

    /// How long the answer may take.
    void setTimeoutMs(int timeoutMs) { m_deadline.setInterval(timeoutMs); }

    /// Posts `question` as JSON to `url`; a running question is dropped.
    Q_INVOKABLE void ask(const QUrl &url, const QVariantMap &question);

    struct Answer {
        QVariantMap offer; ///< empty when nothing is offered
        QString problem; ///< why the answer makes no sense; empty when it does
    };
    /// What an answer offers: the reply itself, with "version" and "notes" as texts.
    [[nodiscard]] static Answer read(const QByteArray &answer);

Q_SIGNALS:
    /// The service offers a newer version.
    void offered(const QVariantMap &offer);
    /// The question has its answer, whatever it is, or will get none.
    void ended();

private:
    void followRedirect(const QUrl &target);
    void receive();
    void finish();
    void end(const QString &problem);
    void drop();

    QNetworkAccessManager m_network;
    QPointer<QNetworkReply> m_reply;
    QTimer m_deadline;
    QByteArray m_answer;
};
