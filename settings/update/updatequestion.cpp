#include "settings/update/updatequestion.h"

#include "settings/update/updateoffer.h"

#include <QDebug>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace
{

constexpr qsizetype kMaxAnswerBytes = 1 << 20;
constexpr qint64 kSliceBytes = 1 << 16;
constexpr int kTimeoutMs = 30000;
// Laying out a text takes time, too.
constexpr qsizetype kMaxVersionLength = 64;
constexpr qsizetype kMaxNotesLength = 20000;
constexpr char kCheckFailed[] = "检查更新失败:";
constexpr char kNetworkError[] = "Network error";
constexpr char kNoSense[] = "The answer makes no sense";
constexpr char kTooLong[] = "The answer is too long";
constexpr char kTooSlow[] = "The answer takes too long";

bool isSuccess(int status)
{
    return status >= 200 && status <= 299;
}

/// An absent text is an empty one; nothing when there is something else in its place.
bool takeText(QVariantMap &offer, const QString &key, qsizetype maxLength)
{
    const QVariant value = offer.value(key);
    if (value.isValid() && value.typeId() != QMetaType::QString) {
        return false;
    }
    offer.insert(key, value.toString().left(maxLength));
    return true;
}

} // namespace

UpdateQuestion::UpdateQuestion(QObject *parent) : QObject(parent)
{
    m_deadline.setSingleShot(true);
    m_deadline.setInterval(kTimeoutMs);
    connect(&m_deadline, &QTimer::timeout, this, [this] { end(QLatin1String(kTooSlow)); });
}

UpdateQuestion::~UpdateQuestion()
{
    drop();
}

void UpdateQuestion::ask(const QUrl &url, const QVariantMap &question)
{
    drop();
    m_answer.clear();
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    // Packed, a short answer could become a long one.
    request.setRawHeader("Accept-Encoding", "identity");
    // Each hop is looked at: redirected to a plain connection, the reply may be anybody's.
    request.setAttribute(
        QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::UserVerifiedRedirectPolicy);
    m_reply = m_network.post(request,
        QJsonDocument(QJsonObject::fromVariantMap(question)).toJson(QJsonDocument::Compact));
    m_reply->setReadBufferSize(kSliceBytes);
    connect(m_reply, &QNetworkReply::redirected, this, &UpdateQuestion::followRedirect);
    connect(m_reply, &QNetworkReply::readyRead, this, &UpdateQuestion::receive);
    connect(m_reply, &QNetworkReply::finished, this, &UpdateQuestion::finish);
    m_deadline.start();
}

void UpdateQuestion::followRedirect(const QUrl &target)
{
    if (UpdateOffer::isAllowedAddress(target)) {
        Q_EMIT m_reply->redirectAllowed();
    } else {
        end(QLatin1String(kNetworkError));
    }
}

void UpdateQuestion::receive()
{
    m_answer += m_reply->readAll();
    if (m_answer.size() > kMaxAnswerBytes) {
        end(QLatin1String(kTooLong));
    }
}

void UpdateQuestion::finish()
{
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status != 0 && !isSuccess(status)) {
        end(QStringLiteral("Request failed with status %1").arg(status));
        return;
    }
    if (status == 0 || m_reply->error() != QNetworkReply::NoError) {
        end(QLatin1String(kNetworkError));
        return;
    }
    receive();
    if (!m_reply) {
        return;
    }
    const Answer answer = read(m_answer);
    end(answer.problem);
    if (!answer.offer.isEmpty()) {
        Q_EMIT offered(answer.offer);
    }
}

UpdateQuestion::Answer UpdateQuestion::read(const QByteArray &answer)
{
    const QJsonDocument document = QJsonDocument::fromJson(answer);
    if (!document.isObject()) {
        return { {}, QLatin1String(kNoSense) };
    }
    if (document.object().value(QStringLiteral("push")) != QJsonValue(true)) {
        return {};
    }
    QVariantMap offer = document.object().toVariantMap();
    if (!takeText(offer, QStringLiteral("version"), kMaxVersionLength)
        || !takeText(offer, QStringLiteral("notes"), kMaxNotesLength)) {
        return { {}, QLatin1String(kNoSense) };
    }
    return { offer, {} };
}

void UpdateQuestion::end(const QString &problem)
{
    drop();
    if (!problem.isEmpty()) {
        qDebug().noquote() << kCheckFailed << problem;
    }
    Q_EMIT ended();
}

/// Disconnected first: an aborted reply would still report its end.
void UpdateQuestion::drop()
{
    m_deadline.stop();
    if (!m_reply) {
        return;
    }
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply->deleteLater();
    m_reply.clear();
}
