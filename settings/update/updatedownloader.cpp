#include "settings/update/updatedownloader.h"

#include "platform/programfolder.h"
#include "settings/processservices.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace
{

// What is read, hashed and written at once: the palette must answer in between.
constexpr qint64 kSliceBytes = 1 << 18;
constexpr int kTimeoutMs = 60 * 60 * 1000;

QStringList namesOf(const UpdateOffer &offer)
{
    QStringList names;
    for (const UpdateFile &file : offer.files)
        names.append(file.name);
    return names;
}

} // namespace

UpdateDownloader::UpdateDownloader(QObject *parent) : QObject(parent)
{
    m_deadline.setSingleShot(true);
    m_deadline.setInterval(kTimeoutMs);
    connect(&m_deadline, &QTimer::timeout, this, [this] { fail(tr("下载时间过长。")); });
}

UpdateDownloader::~UpdateDownloader()
{
    dropReply();
    if (m_worker)
        m_worker->wait(); // half an installation is none
}

QString UpdateDownloader::refusal()
{
    if (ProgramFolder::isPackaged())
        return tr("本程序由系统的软件包管理器安装，请用它来更新。");
    if (!ProgramFolder::isWritable())
        return tr("程序文件夹 %1 不可写入，无法更新。请用有写入权限的账户运行本程序。")
            .arg(QDir::toNativeSeparators(ProgramFolder::path()));
    return {};
}

void UpdateDownloader::start(const QVariantMap &reply)
{
    if (m_state == Downloading || m_state == Installing)
        return;
    m_reason.clear();
    m_current = -1;
    m_received = 0;
    setProgress(0);
    const QString problem = prepare(reply);
    if (!problem.isEmpty()) {
        fail(problem);
        return;
    }
    setState(Downloading);
    m_deadline.start();
    fetchNext();
}

/// An empty text when all is ready for the first file, else why not.
QString UpdateDownloader::prepare(const QVariantMap &reply)
{
    const QString refused = refusal();
    if (!refused.isEmpty())
        return refused;
    const UpdateOffer::Parsed parsed = UpdateOffer::parse(reply);
    if (!parsed.reason.isEmpty())
        return parsed.reason;
    m_offer = parsed.offer;
    const QFileInfo updater(QDir(ProgramFolder::path()).filePath(m_offer.updater));
    if (!namesOf(m_offer).contains(m_offer.updater)) {
        if (!updater.isFile())
            return tr("找不到更新程序“%1”。").arg(m_offer.updater);
        if (!updater.isExecutable())
            return tr("更新程序“%1”无法运行。").arg(m_offer.updater);
    }
    m_installer = std::make_unique<UpdateInstaller>(ProgramFolder::path());
    return m_installer->begin();
}

void UpdateDownloader::cancel()
{
    if (m_state != Downloading)
        return;
    drop();
    setState(Cancelled);
}

void UpdateDownloader::fetchNext()
{
    if (++m_current == m_offer.files.size()) {
        install();
        return;
    }
    if (!openNext())
        return;
    m_hash.reset();

    QNetworkRequest request(currentFile().url);
    // Each hop is looked at: a redirect must not lead to a plain connection.
    request.setAttribute(
        QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::UserVerifiedRedirectPolicy);
    // The bytes are checked as the server stores them.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setTransferTimeout(m_stallTimeoutMs);
    m_reply = m_network.get(request);
    m_reply->setReadBufferSize(kSliceBytes);
    connect(m_reply, &QNetworkReply::redirected, this, &UpdateDownloader::followRedirect);
    connect(m_reply, &QNetworkReply::readyRead, this, &UpdateDownloader::receive);
    connect(m_reply, &QNetworkReply::finished, this, &UpdateDownloader::finishFile);
}

bool UpdateDownloader::openNext()
{
    m_file.setFileName(m_installer->stagedPath(currentFile().name));
    // Unbuffered: a full disk shows at once.
    if (m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return true;
    fail(tr("无法写入“%1”：%2。").arg(currentFile().name, m_file.errorString()));
    return false;
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
    const QByteArray bytes = m_reply->readAll();
    m_received += bytes.size();
    const qint64 ownLimit = currentFile().size < 0 ? UpdateOffer::kMaxBytes : currentFile().size;
    if (m_file.size() + bytes.size() > ownLimit || m_received > UpdateOffer::kMaxBytes) {
        fail(tr("“%1”过大。").arg(currentFile().name));
        return;
    }
    m_hash.addData(bytes);
    if (m_file.write(bytes) != bytes.size()) {
        fail(tr("无法写入“%1”：%2。").arg(currentFile().name, m_file.errorString()));
        return;
    }
    showProgress();
}

/// By bytes where the service says how many there are, else file by file.
void UpdateDownloader::showProgress()
{
    const qint64 all = m_offer.size();
    if (all > 0) {
        setProgress(static_cast<double>(m_received) / static_cast<double>(all));
        return;
    }
    const qint64 told = m_reply->header(QNetworkRequest::ContentLengthHeader).toLongLong();
    const double ownShare =
        told > 0 ? static_cast<double>(m_file.size()) / static_cast<double>(told) : 0;
    setProgress((static_cast<double>(m_current) + qMin(ownShare, 1.0))
        / static_cast<double>(m_offer.files.size()));
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
    m_file.close();
    if (m_file.error() != QFileDevice::NoError) {
        fail(tr("无法写入“%1”：%2。").arg(currentFile().name, m_file.errorString()));
        return;
    }
    if (m_hash.result() != currentFile().sha256) {
        fail(tr("“%1”与校验值不符，已丢弃。").arg(currentFile().name));
        return;
    }
    dropReply();
    fetchNext();
}

void UpdateDownloader::install()
{
    m_deadline.stop();
    setProgress(1);
    setState(Installing);
    // Waiting for the disk takes seconds.
    auto problem = std::make_shared<QString>();
    m_worker.reset(QThread::create(
        [this, problem] { *problem = m_installer->install(namesOf(m_offer), m_offer.updater); }));
    connect(
        m_worker.get(), &QThread::finished, this, [this, problem] { finishInstalling(*problem); });
    m_worker->start();
}

void UpdateDownloader::finishInstalling(const QString &problem)
{
    if (!problem.isEmpty()) {
        fail(problem);
        return;
    }
    drop();
    setState(Finished);
    ProcessServices::startAndQuit(m_offer.updater);
}

void UpdateDownloader::fail(const QString &reason)
{
    drop();
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

/// What was fetched goes with the installer.
void UpdateDownloader::drop()
{
    m_deadline.stop();
    dropReply();
    m_file.close();
    m_installer.reset();
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
