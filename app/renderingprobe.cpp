#include "app/renderingprobe.h"

#include "app/logtexts.h"

#include <QDebug>
#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

namespace
{

const char *glText(QOpenGLFunctions &functions, GLenum name)
{
    return reinterpret_cast<const char *>(functions.glGetString(name));
}

/// `context` is current.
Rendering judge(const QOpenGLContext &context)
{
    QOpenGLFunctions *functions = context.functions();
    if (!functions) {
        return Rendering::Hardware;
    }
    const char *renderer = glText(*functions, GL_RENDERER);
    qDebug() << StartupLogTexts::kOpenGlRenderer << renderer;
    qDebug() << StartupLogTexts::kOpenGlVersion << glText(*functions, GL_VERSION);
    if (isSoftwareRenderer(renderer)) {
        qDebug() << StartupLogTexts::kSoftwareRendererFound;
        return Rendering::Software;
    }
    qDebug() << StartupLogTexts::kHardwareRendererFound;
    return Rendering::Hardware;
}

} // namespace

Rendering probeRendering(int &argc, char **argv)
{
    // The main application object takes over this one's connection to the window system and its
    // event dispatcher, and ends both. Ending this one afterwards would use them once more, so it
    // is never destroyed. It has no widgets either: the tables that Qt keeps of those would be
    // set up twice and the first ones lost.
    [[maybe_unused]] static const auto *const application = new QGuiApplication(argc, argv);

    // For the same reason nothing that draws may outlive this function: a context that is
    // destroyed after the connection crashes.
    Rendering rendering = Rendering::Software;
    {
        QOffscreenSurface surface;
        surface.create();
        QOpenGLContext context;
        if (context.create() && context.makeCurrent(&surface)) {
            rendering = judge(context);
            context.doneCurrent();
        }
    }
    QGuiApplication::quit();
    return rendering;
}
