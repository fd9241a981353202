#include "settings/processservices.h"

#include "settings/logtexts.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QProcess>

namespace
{

constexpr int kAttachedStartTimeoutMs = 1000;

/// The detached start reports no reason; an attached one does. The child that it may start ends
/// with the process object.
void reportWhyNotStarted(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.start(QIODevice::ReadWrite);
    process.waitForStarted(kAttachedStartTimeoutMs);
    qWarning() << LogTexts::kInstanceNotStarted << program << LogTexts::kErrorCode
               << process.error() << LogTexts::kErrorString << process.errorString();
}

} // namespace

bool ProcessServices::startAnew()
{
    return QProcess::startDetached(
        QCoreApplication::applicationFilePath(), { QLatin1String(kRestartSwitch) });
}

void ProcessServices::restartApplication()
{
    qDebug() << LogTexts::kRestarting;
    const QString program = QCoreApplication::applicationFilePath();
    QStringList arguments{ QLatin1String(kRestartSwitch) };
    if (QCoreApplication::arguments().contains(QLatin1String(kWithoutTraySwitch))) {
        arguments << QLatin1String(kWithoutTraySwitch);
    }
    qDebug() << LogTexts::kStartingInstance << program;
    if (QProcess::startDetached(program, arguments)) {
        qDebug() << LogTexts::kInstanceStarted;
        QCoreApplication::quit();
        return;
    }
    reportWhyNotStarted(program, arguments);
}

void ProcessServices::startAndQuit(const QString &exeName)
{
    const QString path = QDir::toNativeSeparators(QCoreApplication::applicationDirPath())
        + QDir::separator() + exeName;
    qDebug() << LogTexts::kStartingProgram << path;
    if (!QFileInfo::exists(path)) {
        qWarning() << LogTexts::kProgramMissing << path;
        return;
    }
    // The program gives way even when its successor does not start, since the successor may be
    // replacing the files that this one runs from.
    QProcess::startDetached(path, {});
    QCoreApplication::quit();
}
