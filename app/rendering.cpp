#include "app/rendering.h"

#include "app/logtexts.h"
#include "settings/settingskeys.h"

#include <QCoreApplication>
#include <QDebug>
#include <QQuickWindow>
#include <QSGRendererInterface>

namespace
{

/// On a software OpenGL, Qt Quick's own software scene graph is several times quicker from pointer
/// motion to pixel, in half the memory. A backend that the user chose stays.
void preferSoftwareSceneGraph()
{
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND")
        && qEnvironmentVariableIsEmpty("QSG_RHI_BACKEND")) {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
    const auto preset = [](const char *name, const char *value) {
        if (qEnvironmentVariableIsEmpty(name)) {
            qputenv(name, value);
        }
    };
    preset("QSG_RENDER_LOOP", "basic");
    // Nothing waits for a screen's refresh here: a frame can follow each movement of the pen at
    // once, instead of the usual 5 ms later.
    preset("QT_QPA_UPDATE_IDLE_TIME", "0");
}

} // namespace

bool isSoftwareRenderer(const QByteArray &rendererName)
{
    const QByteArray name = rendererName.toLower();
    return name.contains("software") || name.contains("llvmpipe") || name.contains("swrast");
}

void applyRendering(Rendering rendering)
{
    if (rendering == Rendering::Hardware) {
        qputenv("QT_ANGLE_PLATFORM", "gl");
        QCoreApplication::setAttribute(Qt::AA_UseDesktopOpenGL);
        qDebug() << StartupLogTexts::kUsingHardware;
    } else {
        qputenv("QT_OPENGL", "software");
        QCoreApplication::setAttribute(Qt::AA_UseSoftwareOpenGL);
        qDebug() << StartupLogTexts::kForcingSoftware;
        preferSoftwareSceneGraph();
    }
}

QString iniValue(Rendering rendering)
{
    return QLatin1String(rendering == Rendering::Hardware ? SettingsKeys::kIniRenderingHardware
                                                          : SettingsKeys::kIniRenderingSoftware);
}
