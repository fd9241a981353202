#include "settings/processservices.h"

#include "settings/logtexts.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>

namespace
{

constexpr int kAttachedStartTimeoutMs = 1000;
/// Of the process that is started to take over, and of no other.
constexpr char kPredecessorVariable[] = "DRAVELIN_PREDECESSOR";

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

QString &instanceName()
{
    static QString name;
    return name;
}

QStringList successorArguments(QStringList arguments)
{
    const QLatin1String restart(ProcessServices::kRestartSwitch);
    arguments.removeAll(restart);
    arguments.prepend(restart);
    return arguments;
}

/// Commands have been carried out by now. The command line takes one dash for two.
QStringList switchesToKeep()
{
    const char *const withoutTray = ProcessServices::kWithoutTraySwitch;
    const QStringList given = QCoreApplication::arguments();
    return given.contains(QLatin1String(withoutTray))
            || given.contains(QLatin1String(withoutTray + 1))
        ? QStringList{ QLatin1String(withoutTray) }
        : QStringList();
}

bool startSuccessor(const QStringList &arguments)
{
    QProcess process;
    process.setProgram(QCoreApplication::applicationFilePath());
    process.setArguments(arguments);
    if (!instanceName().isEmpty()) {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QLatin1String(kPredecessorVariable), instanceName());
        process.setProcessEnvironment(environment);
    }
    return process.startDetached();
}

} // namespace

void ProcessServices::setInstanceName(const QString &name)
{
    instanceName() = name;
}

QString ProcessServices::takePredecessorName()
{
    const QString name = qEnvironmentVariable(kPredecessorVariable);
    qunsetenv(kPredecessorVariable);
    return name;
}

bool ProcessServices::startAnew(const QStringList &arguments)
{
    return startSuccessor(successorArguments(arguments));
}

void ProcessServices::restartApplication()
{
    qDebug() << LogTexts::kRestarting;
    const QString program = QCoreApplication::applicationFilePath();
    const QStringList arguments = successorArguments(switchesToKeep());
    qDebug() << LogTexts::kStartingInstance << program;
    if (startSuccessor(arguments)) {
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
