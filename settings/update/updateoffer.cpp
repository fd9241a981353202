#include "settings/update/updateoffer.h"

#include "settings/update/updateinstaller.h"

#include <QHostAddress>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <optional>

namespace
{

constexpr qsizetype kSha256HexDigits = 64;
constexpr qsizetype kMaxFiles = 2000;

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

/// Only a text is one: a number or a list would be turned into some text, too.
QString text(const QVariant &value)
{
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

/// -1 when there is none; nothing when it is no number of bytes.
std::optional<qint64> sizeOf(const QVariant &value)
{
    if (!value.isValid())
        return -1;
    const double size = value.toDouble();
    const int type = value.typeId();
    const bool isNumber =
        type == QMetaType::Double || type == QMetaType::LongLong || type == QMetaType::Int;
    if (!isNumber || !(size >= 0) || size > static_cast<double>(UpdateOffer::kMaxBytes))
        return std::nullopt;
    return static_cast<qint64>(size);
}

/// Fills `file`. An empty text, or why the entry cannot be taken.
QString parseFile(const QVariantMap &map, UpdateFile &file)
{
    file.name = text(map.value(QStringLiteral("name")));
    file.url = QUrl(text(map.value(QStringLiteral("url"))), QUrl::StrictMode);
    file.sha256 = sha256FromHex(text(map.value(QStringLiteral("sha256"))));
    const std::optional<qint64> size = sizeOf(map.value(QStringLiteral("size")));
    if (!UpdateOffer::staysInFolder(file.name))
        return UpdateOffer::tr("文件名“%1”不允许使用：它会离开程序文件夹。").arg(file.name);
    if (UpdateInstaller::isReserved(file.name))
        return UpdateOffer::tr("文件名“%1”不允许使用：它由更新程序自己使用。").arg(file.name);
    if (!UpdateOffer::isAllowedAddress(file.url))
        return UpdateOffer::tr("“%1”的下载地址不安全：只允许 HTTPS。").arg(file.name);
    if (file.sha256.isEmpty())
        return UpdateOffer::tr("“%1”没有有效的 SHA-256 校验值。").arg(file.name);
    if (!size)
        return UpdateOffer::tr("“%1”的大小无效。").arg(file.name);
    file.size = *size;
    return {};
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

qint64 UpdateOffer::size() const
{
    qint64 total = 0;
    for (const UpdateFile &file : files) {
        if (file.size < 0)
            return -1;
        total += file.size;
    }
    return total;
}

UpdateOffer::Parsed UpdateOffer::parse(const QVariantMap &reply)
{
    const QVariantList entries = reply.value(QStringLiteral("files")).toList();
    if (entries.isEmpty())
        return { {}, tr("更新服务没有提供任何文件。") };
    if (entries.size() > kMaxFiles)
        return { {}, tr("更新过大。") };
    UpdateOffer offer;
    QSet<QString> names;
    qint64 stated = 0;
    for (const QVariant &entry : entries) {
        UpdateFile file;
        const QString reason = parseFile(entry.toMap(), file);
        if (!reason.isEmpty())
            return { {}, reason };
        // Some file systems do not tell upper case from lower.
        if (names.contains(file.name.toLower()))
            return { {}, tr("更新中“%1”出现了两次。").arg(file.name) };
        names.insert(file.name.toLower());
        stated += qMax(file.size, qint64{ 0 });
        if (stated > kMaxBytes)
            return { {}, tr("更新过大。") };
        offer.files.append(file);
    }
    const QVariant updater =
        reply.value(QStringLiteral("updater"), QString::fromLatin1(kDefaultUpdater));
    offer.updater = text(updater);
    if (!staysInFolder(offer.updater))
        return { {}, tr("文件名“%1”不允许使用：它会离开程序文件夹。").arg(offer.updater) };
    return { offer, {} };
}
