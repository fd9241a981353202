#include "help/helpdesk.h"

#include "help/helppage.h"
#include "platform/wholefile.h"
#include "settings/settingsstore.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QUrl>

namespace
{

constexpr QFileDevice::Permissions kOwnerOnly =
    QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;

/// Writes the page where only this user reads it and returns its path; empty when no folder takes
/// it. A browser that has the former page open reads the whole old one or the whole new one.
QString write(const QString &fileName, const QString &page)
{
    for (const auto location : { QStandardPaths::CacheLocation, QStandardPaths::RuntimeLocation }) {
        const QString parent = QStandardPaths::writableLocation(location);
        const QString folder = parent + QLatin1String("/help");
        if (parent.isEmpty() || !QDir().mkpath(folder)
            || !QFile::setPermissions(folder, kOwnerOnly)) {
            continue;
        }
        const QString path = folder + QLatin1Char('/') + fileName;
        const QByteArray content = page.toUtf8();
        const QString problem = WholeFile::write(path, [&](QFileDevice &file) {
            return file.write(content) == content.size() ? QString() : file.errorString();
        });
        if (problem.isEmpty()) {
            return path;
        }
    }
    return {};
}

QString show(const QString &fileName, const QString &page)
{
    const QString path = write(fileName, page);
    if (path.isEmpty()) {
        return HelpDesk::tr("页面无法写入用户文件夹，请检查磁盘空间和文件夹权限");
    }
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
        return HelpDesk::tr("系统没有可用的浏览器，页面在 %1").arg(QDir::toNativeSeparators(path));
    }
    return {};
}

} // namespace

HelpDesk::HelpDesk(QObject *parent) : QObject(parent)
{
}

QString HelpDesk::openSheet() const
{
    return show(QStringLiteral("help.html"), HelpPage::sheet(SettingsStore::loadAll()));
}

QString HelpDesk::openLicence(const QString &name) const
{
    QFile file(QStringLiteral(":/help/licences/%1.txt").arg(name));
    if (!file.open(QIODevice::ReadOnly)) {
        return tr("程序里没有 %1 的许可证，请重新安装").arg(name);
    }
    return show(QStringLiteral("licence-%1.html").arg(name),
        HelpPage::document(name, QString::fromUtf8(file.readAll())));
}
