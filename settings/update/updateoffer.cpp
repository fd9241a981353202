#include "settings/update/updateoffer.h"

#include <QHostAddress>
#include <QRegularExpression>

#include <algorithm>

namespace
{

constexpr qsizetype kSha256HexDigits = 64;

#ifdef Q_OS_WIN
constexpr const char *kDefaultUpdater = "updater.exe";
#else
constexpr const char *kDefaultUpdater = "updater";
#endif

bool isSafeSegment(const QString &segment)
{
    // Windows drops dots and spaces at the end, so that "..  " would be "..", and opens devices
    // under their names in any folder.
    static const QRegularExpression kDevice(
        QStringLiteral("^(con|prn|aux|nul|com[0-9]|lpt[0-9])(\\.|$)"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression kForbidden(QStringLiteral("[\\x00-\\x1f\\x7f<>:\"|?*\\\\]"));
    return !segment.isEmpty() && !segment.endsWith(QLatin1Char('.'))
        && !segment.endsWith(QLatin1Char(' ')) && !segment.contains(kForbidden)
        && !segment.contains(kDevice);
}

QByteArray sha256FromHex(const QString &text)
{
    static const QRegularExpression kHex(QStringLiteral("^[0-9a-fA-F]+$"));
    if (text.size() != kSha256HexDigits || !text.contains(kHex))
        return {};
    return QByteArray::fromHex(text.toLatin1());
}

} // namespace

bool UpdateOffer::isAllowedAddress(const QUrl &url)
{
    if (!url.isValid() || url.host().isEmpty())
        return false;
    if (url.scheme() == QLatin1String("https"))
        return true;
    if (url.scheme() != QLatin1String("http"))
        return false;
    return url.host() == QLatin1String("localhost") || QHostAddress(url.host()).isLoopback();
}

bool UpdateOffer::staysInFolder(const QString &name)
{
    const QStringList segments = name.split(QLatin1Char('/'));
    return std::all_of(segments.begin(), segments.end(), isSafeSegment);
}

UpdateOffer::Parsed UpdateOffer::parse(const QVariantMap &reply)
{
    Parsed parsed;
    const auto refuse = [&parsed](const QString &reason) {
        parsed.offer = {};
        parsed.reason = reason;
        return parsed;
    };

    const QVariantList entries = reply.value(QStringLiteral("files")).toList();
    if (entries.isEmpty())
        return refuse(tr("更新服务没有提供任何文件。"));
    for (const QVariant &entry : entries) {
        const QVariantMap map = entry.toMap();
        UpdateFile file;
        file.url = QUrl(map.value(QStringLiteral("url")).toString(), QUrl::StrictMode);
        file.name = map.value(QStringLiteral("name")).toString();
        file.sha256 = sha256FromHex(map.value(QStringLiteral("sha256")).toString());
        if (!staysInFolder(file.name))
            return refuse(tr("文件名“%1”不允许使用：它会离开程序文件夹。").arg(file.name));
        if (!isAllowedAddress(file.url))
            return refuse(tr("“%1”的下载地址不安全：只允许 HTTPS。").arg(file.name));
        if (file.sha256.isEmpty())
            return refuse(tr("“%1”没有有效的 SHA-256 校验值。").arg(file.name));
        parsed.offer.files.append(file);
    }

    parsed.offer.updater =
        reply.value(QStringLiteral("updater"), QString::fromLatin1(kDefaultUpdater)).toString();
    if (!staysInFolder(parsed.offer.updater))
        return refuse(tr("文件名“%1”不允许使用：它会离开程序文件夹。").arg(parsed.offer.updater));
    return parsed;
}
