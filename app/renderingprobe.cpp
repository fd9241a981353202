#include "app/renderingprobe.h"

#include "app/logtexts.h"
#include "app/openglanswer.h"
#include "platform/gpudevice.h"

#include <QDebug>
#include <QGuiApplication>

namespace
{

/// A driver that is slow to wake up is waited for; one that hangs must not keep the program from
/// starting.
constexpr int kDriverTimeoutMs = 10000;

/// Runs in the other process.
QByteArray askInNewApplication(int &argc, char **argv)
{
    // Where the answer is all but certain, ask for it in the quicker of the two ways: GLX tries and
    // rejects every driver for graphics processors first.
    constexpr char kIntegration[] = "QT_XCB_GL_INTEGRATION";
    if (!gpuDeviceMayExist() && qEnvironmentVariableIsEmpty(kIntegration)) {
        qputenv(kIntegration, "xcb_egl");
    }
    const QGuiApplication application(argc, argv);
    return askOpenGl().toBytes();
}

} // namespace

RenderingProbe::RenderingProbe(int &argc, char **argv)
    : m_elsewhere(SideProcess::start([&argc, argv] { return askInNewApplication(argc, argv); }))
{
    // The main application object takes over this one's connection to the window system and its
    // event dispatcher, and ends both. Ending this one afterwards would use them once more, so it
    // is never destroyed. It has no widgets either: the tables that Qt keeps of those would be
    // set up twice and the first ones lost.
    [[maybe_unused]] static const auto *const application = new QGuiApplication(argc, argv);
}

Rendering RenderingProbe::decide()
{
    const OpenGlAnswer openGl = answer();
    QGuiApplication::quit();
    if (!openGl.contextWorks) {
        return Rendering::Software;
    }
    if (!openGl.names) {
        return Rendering::Hardware;
    }
    qDebug() << StartupLogTexts::kOpenGlRenderer << openGl.names->renderer.constData();
    qDebug() << StartupLogTexts::kOpenGlVersion << openGl.names->version.constData();
    if (isSoftwareRenderer(openGl.names->renderer)) {
        qDebug() << StartupLogTexts::kSoftwareRendererFound;
        return Rendering::Software;
    }
    qDebug() << StartupLogTexts::kHardwareRendererFound;
    return Rendering::Hardware;
}

OpenGlAnswer RenderingProbe::answer()
{
    if (!m_elsewhere) {
        // A context that is destroyed after the connection to the window system crashes; this one
        // goes at once.
        return askOpenGl();
    }
    const auto bytes = m_elsewhere->result(kDriverTimeoutMs);
    return bytes ? OpenGlAnswer::fromBytes(*bytes) : OpenGlAnswer{};
}
