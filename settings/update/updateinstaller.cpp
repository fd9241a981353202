#include "settings/update/updateinstaller.h"

#include "platform/filesync.h"
#include "platform/wholefile.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <filesystem>

namespace
{

const QString kWorkFolder = QStringLiteral(".update");
const QString kLockFile = QStringLiteral(".update.lock");
const QString kReplaced = QStringLiteral("replaced");
const QString kAdded = QStringLiteral("added");
const QString kFolders = QStringLiteral("folders");

namespace fs = std::filesystem;

fs::path native(const QString &path)
{
    return QFileInfo(path).filesystemAbsoluteFilePath();
}

QString message(const std::error_code &problem)
{
    return QString::fromLocal8Bit(problem.message());
}

std::error_code rename(const QString &from, const QString &to)
{
    std::error_code problem;
    fs::rename(native(from), native(to), problem);
    return problem;
}

bool isThere(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

/// Puts `fresh` in the place of `path`, whose former content is kept as `former`, or goes there
/// where the disk knows no second names. At best there is never a moment without a file at `path`;
/// a running Windows program has to be moved out of the way.
std::error_code replace(const QString &path, const QString &fresh, const QString &former)
{
    if (isThere(former) && !rename(fresh, path)) {
        return {};
    }
    const std::error_code problem = rename(path, former);
    if (problem) {
        return problem;
    }
    syncFolder(QFileInfo(former).path());
    return rename(fresh, path);
}

QString syncContent(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly)) {
        return file.errorString();
    }
    return syncFile(file) ? QString() : qt_error_string();
}

/// All of them, down from `root`: each has the name of the next.
void syncFoldersOf(const QString &root, const QStringList &names)
{
    QSet<QString> folders{ root };
    for (const QString &name : names) {
        for (qsizetype end = name.indexOf(QLatin1Char('/')); end >= 0;
             end = name.indexOf(QLatin1Char('/'), end + 1)) {
            folders.insert(root + QLatin1Char('/') + name.left(end));
        }
    }
    for (const QString &folder : folders) {
        syncFolder(folder);
    }
}

} // namespace

UpdateInstaller::UpdateInstaller(const QString &folder)
    : m_folder(QFileInfo(folder).canonicalFilePath()),
      m_lock(m_folder + QLatin1Char('/') + kLockFile)
{
    // However long it takes: whoever holds it is asked whether it still lives.
    m_lock.setStaleLockTime(0);
}

UpdateInstaller::~UpdateInstaller()
{
    if (m_lock.isLocked() && !QFile::exists(journal())) {
        clear();
    }
}

bool UpdateInstaller::isReserved(const QString &name)
{
    const QString first = name.section(QLatin1Char('/'), 0, 0).toLower();
    return first == kWorkFolder || first == kLockFile;
}

QString UpdateInstaller::inFolder(const QString &name) const
{
    return m_folder + QLatin1Char('/') + name;
}

QString UpdateInstaller::fresh(const QString &name) const
{
    return inFolder(kWorkFolder + QLatin1String("/new/") + name);
}

QString UpdateInstaller::former(const QString &name) const
{
    return inFolder(kWorkFolder + QLatin1String("/old/") + name);
}

QString UpdateInstaller::journal() const
{
    return inFolder(kWorkFolder + QLatin1String("/journal"));
}

QString UpdateInstaller::begin()
{
    if (!m_lock.isLocked() && !m_lock.tryLock(0)) {
        return m_lock.error() == QLockFile::LockFailedError
            ? tr("另一个正在运行的本程序也在更新。")
            : tr("无法写入程序文件夹 %1。").arg(QDir::toNativeSeparators(m_folder));
    }
    if (QFile::exists(journal()) && (!readJournal() || !rollBack())) {
        return tr("上一次更新没有完成，也无法恢复。请重新安装本程序。");
    }
    clear();
    return QDir().mkpath(fresh({}))
        ? QString()
        : tr("无法写入程序文件夹 %1。").arg(QDir::toNativeSeparators(m_folder));
}

QString UpdateInstaller::stagedPath(const QString &name) const
{
    const QString path = fresh(name);
    return QDir().mkpath(QFileInfo(path).path()) ? path : QString();
}

QString UpdateInstaller::install(const QStringList &names, const QString &program)
{
    QString problem = prepare(names, program);
    if (problem.isEmpty()) {
        problem = swap();
    }
    if (problem.isEmpty()) {
        clear();
        return {};
    }
    if (QFile::exists(journal()) && !rollBack()) {
        return tr("%1。已替换的文件无法恢复，请重新安装本程序。").arg(problem);
    }
    clear();
    return tr("%1。没有更改任何文件。").arg(problem);
}

/// All that can be found out, and brought to the disk, before the first file is touched.
QString UpdateInstaller::prepare(const QStringList &names, const QString &program)
{
    m_plan = {};
    for (const QString &name : names) {
        QString problem = checkPlace(name);
        if (problem.isEmpty()) {
            problem = syncContent(fresh(name));
        }
        if (problem.isEmpty()) {
            problem = adoptPermissions(name, name == program);
        }
        if (!problem.isEmpty()) {
            return tr("无法安装“%1”：%2").arg(name, problem);
        }
        (isThere(inFolder(name)) ? m_plan.replaced : m_plan.added).append(name);
        for (qsizetype end = name.indexOf(QLatin1Char('/')); end >= 0;
             end = name.indexOf(QLatin1Char('/'), end + 1)) {
            const QString folder = name.left(end);
            if (!isThere(inFolder(folder)) && !m_plan.madeFolders.contains(folder)) {
                m_plan.madeFolders.append(folder);
            }
        }
    }
    syncFoldersOf(fresh({}), names);
    return {};
}

/// A link inside the program's folder may lead out of it, and a folder may stand in the way.
QString UpdateInstaller::checkPlace(const QString &name) const
{
    const QFileInfo place(inFolder(name));
    if (place.exists() && !place.isFile() && !place.isSymLink()) {
        return tr("这个位置上已有一个文件夹");
    }
    QFileInfo above(place.path());
    while (!above.exists() && !above.isSymLink()) {
        above = QFileInfo(above.path());
    }
    if (!above.isDir()) {
        return tr("“%1”不是文件夹").arg(above.fileName());
    }
    const QString real = above.canonicalFilePath();
    const bool inside = real == m_folder || real.startsWith(m_folder + QLatin1Char('/'));
    return inside ? QString() : tr("它会离开程序文件夹");
}

QString UpdateInstaller::adoptPermissions(const QString &name, bool isProgram) const
{
    QFile file(fresh(name));
    const QFileInfo present(inFolder(name));
    QFileDevice::Permissions wanted = present.isFile() ? present.permissions() : file.permissions();
    if (isProgram) {
        wanted |= QFileDevice::ExeOwner | QFileDevice::ExeUser;
    }
    const bool adopted = file.setPermissions(wanted);
    return adopted && (!isProgram || QFileInfo(file).isExecutable()) ? QString()
                                                                     : tr("无法设置文件权限");
}

/// A second name for each file that is to be replaced. Whoever reads the journal after a power
/// failure takes a file that is not kept for one that was not replaced yet, so the names are on the
/// disk before there is a journal.
void UpdateInstaller::keepFormer() const
{
    for (const QString &name : m_plan.names()) {
        QDir().mkpath(QFileInfo(former(name)).path());
    }
    for (const QString &name : m_plan.replaced) {
        std::error_code unknownToTheDisk;
        fs::create_hard_link(native(inFolder(name)), native(former(name)), unknownToTheDisk);
    }
    syncFoldersOf(former({}), m_plan.names());
    syncFolder(inFolder(kWorkFolder));
}

/// From the moment the journal is on the disk until it is gone, the old files count.
QString UpdateInstaller::swap()
{
    keepFormer();
    const QJsonObject plan{ { kReplaced, QJsonArray::fromStringList(m_plan.replaced) },
        { kAdded, QJsonArray::fromStringList(m_plan.added) },
        { kFolders, QJsonArray::fromStringList(m_plan.madeFolders) } };
    const QByteArray text = QJsonDocument(plan).toJson();
    const QString problem = WholeFile::write(journal(), [&](QFileDevice &file) {
        return file.write(text) == text.size() ? QString() : file.errorString();
    });
    if (!problem.isEmpty()) {
        return tr("无法写入程序文件夹：%1").arg(problem);
    }
    syncFolder(inFolder(kWorkFolder));
    for (const QString &name : m_plan.names()) {
        const QString place = inFolder(name);
        QDir().mkpath(QFileInfo(place).path());
        const std::error_code failure =
            isThere(place) ? replace(place, fresh(name), former(name)) : rename(fresh(name), place);
        if (failure) {
            return tr("无法安装“%1”：%2").arg(name, message(failure));
        }
    }
    syncFoldersOf(m_folder, m_plan.names());
    if (!QFile::remove(journal())) {
        return tr("无法写入程序文件夹");
    }
    syncFolder(inFolder(kWorkFolder));
    return {};
}

/// May itself have been interrupted before: each step tells from what is there whether it is still
/// to be taken.
bool UpdateInstaller::rollBack()
{
    bool whole = true;
    for (const QString &name : m_plan.replaced) {
        if (isThere(former(name)) && rename(former(name), inFolder(name))) {
            whole = false;
        }
    }
    for (const QString &name : m_plan.added) {
        if (!isThere(fresh(name)) && isThere(inFolder(name)) && !QFile::remove(inFolder(name))) {
            whole = false;
        }
    }
    for (qsizetype i = m_plan.madeFolders.size() - 1; i >= 0; --i) {
        QDir().rmdir(inFolder(m_plan.madeFolders[i]));
    }
    syncFoldersOf(m_folder, m_plan.names());
    return whole && QFile::remove(journal());
}

bool UpdateInstaller::readJournal()
{
    QFile file(journal());
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QJsonObject plan = QJsonDocument::fromJson(file.readAll()).object();
    const auto list = [&plan](const QString &key) {
        QStringList names;
        const QJsonArray listed = plan.value(key).toArray();
        for (const auto &name : listed) {
            names.append(name.toString());
        }
        return names;
    };
    m_plan = { list(kReplaced), list(kAdded), list(kFolders) };
    return !m_plan.names().isEmpty();
}

void UpdateInstaller::clear()
{
    QDir(inFolder(kWorkFolder)).removeRecursively();
}

UpdateInstaller::Recovery UpdateInstaller::recover(const QString &folder)
{
    UpdateInstaller installer(folder);
    if (!QFileInfo::exists(installer.inFolder(kWorkFolder))) {
        return Recovery::NotNeeded;
    }
    // Another running program may be at it.
    if (!installer.m_lock.tryLock(0)) {
        return Recovery::NotNeeded;
    }
    if (!QFile::exists(installer.journal())) {
        installer.clear();
        return Recovery::NotNeeded;
    }
    qWarning() << "An update did not come to its end; the former files are put back";
    if (!installer.readJournal() || !installer.rollBack()) {
        qWarning() << "Not all of the former files could be put back; install the program again";
        return Recovery::Failed;
    }
    installer.clear();
    return Recovery::Done;
}
