#include "settings/update/updatedownloader.h"

#include "settings/settingsclazz.h"

#include <QDir>
#include <QFileInfo>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace
{

// More than any update weighs; an endless answer must not fill the disk.
constexpr qint64 kMaxFileBytes = qint64{ 2 } * 1024 * 1024 * 1024;

QString inApplicationFolder(const QString &name)
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(name);
}

/// A link inside the application folder may lead out of it; the nearest folder that exists tells.
bool leavesThroughLink(const QString &name)
{
    const QString root = QFileInfo(QCoreApplication::applicationDirPath()).canonicalFilePath();
    QFileInfo info(inApplicationFolder(name));
    while (!info.exists() && !info.isSymLink())
        info = QFileInfo(info.path());
    const QString real = info.canonicalFilePath();
    return real != root && !real.startsWith(root + QLatin1Char('/'));
}

} // namespace

UpdateDownloader::UpdateDownloader(QObject *parent) : QObject(parent)
{
}

UpdateDownloader::~UpdateDownloader()
{
    dropReply();
}

void UpdateDownloader::start(const QVariantMap &reply)
{
    if (m_state == Downloading || m_state == Installing)
        return;
    m_fetched.clear();
    m_reason.clear();
    setProgress(0);
    const UpdateOffer::Parsed parsed = UpdateOffer::parse(reply);
    if (!parsed.reason.isEmpty()) {
        fail(parsed.reason);
        return;
    }
    m_offer = parsed.offer;
    setState(Downloading);
    fetchNext();
}

void UpdateDownloader::cancel()
{
    if (m_state != Downloading)
        return;
    dropReply();
    m_fetched.clear();
    setState(Cancelled);
}

void UpdateDownloader::fetchNext()
{
    if (m_fetched.size() == static_cast<std::size_t>(m_offer.files.size())) {
        install();
        return;
    }
    m_fetched.push_back(std::make_unique<QTemporaryFile>());
    if (!m_fetched.back()->open()) {
        fail(tr("无法创建临时文件：%1").arg(m_fetched.back()->errorString()));
        return;
    }
    m_hash.reset();

    QNetworkRequest request(currentFile().url);
    // Each hop is looked at: a redirect must not lead to a plain connection.
    request.setAttribute(
        QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::UserVerifiedRedirectPolicy);
    // The bytes are checked as the server stores them.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setTransferTimeout(m_stallTimeoutMs);
    m_reply = m_network.get(request);
    connect(m_reply, &QNetworkReply::redirected, this, &UpdateDownloader::followRedirect);
    connect(m_reply, &QNetworkReply::readyRead, this, &UpdateDownloader::receive);
    connect(m_reply, &QNetworkReply::finished, this, &UpdateDownloader::finishFile);
    connect(m_reply, &QNetworkReply::downloadProgress, this, [this](qint64 received, qint64 total) {
        if (total <= 0)
            return;
        const double done = static_cast<double>(m_fetched.size() - 1)
            + static_cast<double>(received) / static_cast<double>(total);
        setProgress(done / static_cast<double>(m_offer.files.size()));
    });
}

void UpdateDownloader::followRedirect(const QUrl &target)
{
    if (UpdateOffer::isAllowedAddress(target))
        Q_EMIT m_reply->redirectAllowed();
    else
        fail(tr("“%1”的下载地址不安全：只允许 HTTPS。").arg(currentFile().name));
}

void UpdateDownloader::receive()
{
    QTemporaryFile &file = *m_fetched.back();
    const QByteArray bytes = m_reply->readAll();
    if (file.size() + bytes.size() > kMaxFileBytes) {
        fail(tr("“%1”过大。").arg(currentFile().name));
        return;
    }
    m_hash.addData(bytes);
    if (file.write(bytes) != bytes.size())
        fail(tr("无法写入临时文件：%1").arg(file.errorString()));
}

void UpdateDownloader::finishFile()
{
    if (m_reply->error() != QNetworkReply::NoError) {
        fail(tr("“%1”下载失败：%2").arg(currentFile().name, m_reply->errorString()));
        return;
    }
    receive();
    if (m_state != Downloading)
        return;
    QTemporaryFile &file = *m_fetched.back();
    if (!file.flush()) {
        fail(tr("无法写入临时文件：%1").arg(file.errorString()));
        return;
    }
    if (m_hash.result() != currentFile().sha256) {
        fail(tr("“%1”与校验值不符，已丢弃。").arg(currentFile().name));
        return;
    }
    dropReply();
    setProgress(static_cast<double>(m_fetched.size()) / static_cast<double>(m_offer.files.size()));
    fetchNext();
}

void UpdateDownloader::install()
{
    setState(Installing);
    for (std::size_t index = 0; index < m_fetched.size(); ++index) {
        if (!writeFile(index)) {
            const QString name = m_offer.files[static_cast<qsizetype>(index)].name;
            fail(tr("无法把“%1”写入程序文件夹，请检查写权限和剩余空间。").arg(name));
            return;
        }
    }
    handOver();
}

bool UpdateDownloader::writeFile(std::size_t index)
{
    const QString &name = m_offer.files[static_cast<qsizetype>(index)].name;
    if (leavesThroughLink(name))
        return false;
    QTemporaryFile &file = *m_fetched[index];
    if (!file.seek(0))
        return false;
    const QByteArray bytes = file.readAll();
    return bytes.size() == file.size() && SettingsClazz().saveFile(bytes.toBase64(), name);
}

void UpdateDownloader::handOver()
{
    m_fetched.clear();
    QFile updater(inApplicationFolder(m_offer.updater));
    if (!QFileInfo(updater).isFile() || leavesThroughLink(m_offer.updater)) {
        fail(tr("找不到更新程序“%1”。").arg(m_offer.updater));
        return;
    }
    updater.setPermissions(updater.permissions() | QFileDevice::ExeOwner | QFileDevice::ExeUser);
    if (!QFileInfo(updater).isExecutable()) {
        fail(tr("更新程序“%1”无法运行。").arg(m_offer.updater));
        return;
    }
    setState(Finished);
    SettingsClazz().startExeAndExitApp(m_offer.updater);
}

void UpdateDownloader::fail(const QString &reason)
{
    dropReply();
    m_fetched.clear();
    m_reason = reason;
    qWarning().noquote() << "更新失败:" << reason;
    setState(Failed);
}

void UpdateDownloader::setState(State state)
{
    m_state = state;
    Q_EMIT stateChanged();
}

void UpdateDownloader::setProgress(double progress)
{
    if (m_progress == progress)
        return;
    m_progress = progress;
    Q_EMIT progressChanged();
}

/// Disconnected first: an aborted reply would still report its end.
void UpdateDownloader::dropReply()
{
    if (!m_reply)
        return;
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply->deleteLater();
    m_reply.clear();
}

const UpdateFile &UpdateDownloader::currentFile() const
{
    return m_offer.files[static_cast<qsizetype>(m_fetched.size()) - 1];
}
