#include "settings/places.h"

#include "platform/programfolder.h"
#include "platform/userhome.h"
#include "settings/settingskeys.h"

#include <QDir>
#include <QStandardPaths>

namespace
{

QString madeFolder(QStandardPaths::StandardLocation location)
{
    if (!UserHome::exists()) {
        return {};
    }
    const QString folder = QStandardPaths::writableLocation(location);
    QDir().mkpath(folder);
    return QDir::toNativeSeparators(folder);
}

bool isSameFolder(const QString &one, const QString &other)
{
    return !one.isEmpty() && !other.isEmpty()
        && QDir(QDir::fromNativeSeparators(one)) == QDir(QDir::fromNativeSeparators(other));
}

QString deploymentFileIn(const QString &folder)
{
    return folder + QDir::separator() + QLatin1String(SettingsKeys::kIniFileName);
}

} // namespace

QString Places::captures()
{
    return ProgramFolder::isWritable() ? QDir::toNativeSeparators(ProgramFolder::path())
                                       : madeFolder(QStandardPaths::PicturesLocation);
}

bool Places::isUnset(const QString &folder)
{
    return folder.isEmpty()
        || (!ProgramFolder::isWritable() && isSameFolder(folder, ProgramFolder::path()));
}

QString Places::recordings(const QString &chosen)
{
    if (ProgramFolder::isWritable()) {
        // Where the store cannot be written, nothing is stored however often it is filled in.
        return isUnset(chosen) ? captures() : chosen;
    }
    const bool byDefault = isUnset(chosen) || isSameFolder(chosen, captures());
    return byDefault ? madeFolder(QStandardPaths::MoviesLocation) : chosen;
}

QStringList Places::deploymentFiles()
{
    const QString deployed = deploymentFileIn(ProgramFolder::path());
    const QString written = writtenDeploymentFile();
    return written.isEmpty() || written == deployed ? QStringList{ deployed }
                                                    : QStringList{ written, deployed };
}

QString Places::writtenDeploymentFile()
{
    if (ProgramFolder::isWritable()) {
        return deploymentFileIn(ProgramFolder::path());
    }
    if (!UserHome::hasConfiguration()) {
        return {};
    }
    // Beside the store, and under a name that does not depend on the application's own, which is
    // set only after the first value was written.
    return deploymentFileIn(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QLatin1Char('/') + QLatin1String(SettingsKeys::kStoreOrganization));
}
