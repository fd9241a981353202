#include "app/commandclient.h"
#include "app/commandline.h"
#include "app/identity.h"
#include "app/interfacelanguage.h"
#include "app/quitfilter.h"
#include "app/remote.h"
#include "app/rendering.h"
#include "app/renderingprobe.h"
#include "app/singleinstance.h"
#include "app/startup.h"
#include "app/systemtray.h"
#include "app/terminalanswer.h"
#include "app/trayicon.h"
#include "app/warmup.h"
#include "platform/desktopnotice.h"
#include "platform/display.h"
#include "platform/overlay/overlaysurface.h"
#include "platform/programfolder.h"
#include "platform/terminationrequest.h"
#include "platform/userhome.h"
#include "platform/windowsystem.h"
#include "settings/processservices.h"
#include "settings/settingsclazz.h"
#include "settings/settingskeys.h"
#include "settings/translation.h"
#include "settings/update/updateinstaller.h"

#include <QApplication>
#include <QDir>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QTimer>

#include <tuple>

namespace
{

constexpr int kExitNoWindow = -1;
constexpr int kExitNameRefused = 1;

void reportHalfUpdate()
{
    showDesktopNotice(QLatin1String(Identity::kDisplayName),
        QCoreApplication::translate("main", "上一次更新没有完成，也无法恢复。请重新安装本程序。"));
}

QStringList argumentList(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    return arguments;
}

/// Commands of other starts, and those that a restart was itself given: it has no instance to ask.
void obeyCommands(SingleInstance &instance, const QList<Command> &own)
{
    QObject::connect(&instance, &SingleInstance::asked, Remote::instance(), &Remote::submit);
    if (!own.isEmpty()) {
        QTimer::singleShot(0, Remote::instance(), [own] {
            Remote::instance()->submit(
                own, [](const CommandReply &reply) { std::ignore = CommandClient::report(reply); },
                Remote::instance());
        });
    }
}

/// Everything from here on belongs to the one instance that runs.
int runInterface(QApplication &application, SingleInstance &instance, const CommandLine &line,
    UpdateInstaller::Recovery recovery)
{
    Startup::setIdentity();
    if (!line.withoutTray() && !waitForSystemTray()) {
        reportNoSystemTray(application);
        return kExitNoTray;
    }
    const QuitFilter quitFilter;
    const TerminationRequest terminationRequest;
    QObject::connect(&terminationRequest, &TerminationRequest::received, &application,
        &QCoreApplication::quit, Qt::QueuedConnection);
    // The tray is the way out, also while every window is hidden.
    QApplication::setQuitOnLastWindowClosed(false);
    const QString language = Startup::chooseLanguage();

    QQmlApplicationEngine engine;
    engine.addImportPath(QLatin1String(Identity::kQmlModulesInResources));
    const InterfaceLanguage interfaceLanguage;
    loadTranslation(&application, language);
    if (recovery == UpdateInstaller::Recovery::Failed) {
        reportHalfUpdate();
    }
    Startup::publishToDocuments(*engine.rootContext());

    TrayIcon tray;
    OverlaySurface::setReachable(
        [icon = QPointer(&tray)] { return icon ? icon->area() : QRect(); });
    QObject::connect(
        &engine, &QQmlApplicationEngine::objectCreated, &application,
        [&tray](QObject *object) { tray.adopt(object); }, Qt::QueuedConnection);
    QObject::connect(
        &interfaceLanguage, &InterfaceLanguage::textsChanged, &engine, &QQmlEngine::retranslate);
    QObject::connect(
        &interfaceLanguage, &InterfaceLanguage::textsChanged, &tray, &TrayIcon::retranslate);
    QObject::connect(&instance, &SingleInstance::startedAgain, &tray, &TrayIcon::showWindow);
    tray.show();
    engine.load(QUrl(QLatin1String(Identity::kRootDocument)));
    if (engine.rootObjects().isEmpty()) {
        return kExitNoWindow;
    }
    obeyCommands(instance, line.commands());
    return QApplication::exec();
}

/// Here nothing of the interface exists yet, but for what the documents are made of and look like:
/// once the first of them is loaded, no style can be chosen.
Rendering chooseRendering(int &argc, char **argv)
{
    RenderingProbe probe(argc, argv);
    QQuickStyle::setStyle(QLatin1String(Identity::kControlsStyle));
    if (probe.asksElsewhere()) {
        warmUpInterface();
    }
    return probe.decide();
}

} // namespace

int main(int argc, char *argv[])
{
    UserHome::adopt();
    chooseWindowSystem();
    // Before any application object takes its own switches out.
    const QStringList arguments = argumentList(argc, argv);
    const QString display = ownDisplay(arguments);
    const CommandLine line(arguments, QDir::currentPath());
    if (const auto exitCode = answerOnTerminal(argc, argv, line, display)) {
        return *exitCode;
    }
    Startup::initialiseOpenSsl();
    Startup::requestTranslucentWindows();
    qputenv("QT_OPENGL", "desktop");

    const Rendering rendering = chooseRendering(argc, argv);
    SettingsClazz settings;
    applyRendering(rendering);
    settings.setIniValue(QLatin1String(SettingsKeys::kIniRenderingGroup),
        QLatin1String(SettingsKeys::kIniRenderingKey), iniValue(rendering));

    QApplication application(argc, argv);
    // Strokes keep every sample that the pointer sends. The constructor of each application object
    // turns this on again, so only here it holds.
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);

    SingleInstance instance(display);
    switch (instance.claim(QCoreApplication::arguments())) {
    case SingleInstance::Claim::HandedOver:
        return 0;
    case SingleInstance::Claim::Refused:
        return kExitNameRefused;
    case SingleInstance::Claim::Granted:
        break;
    }
    // The program that runs here may be part of a half new one.
    const UpdateInstaller::Recovery recovery = UpdateInstaller::recover(ProgramFolder::path());
    if (recovery == UpdateInstaller::Recovery::Done
        && ProcessServices::startAnew(arguments.mid(1))) {
        return 0;
    }
    return runInterface(application, instance, line, recovery);
}
