#include "app/renderingprobe.h"

#include "app/logtexts.h"

#include <QDebug>
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

RenderingProbe::RenderingProbe(int &argc, char **argv) : m_application(argc, argv)
{
}

Rendering RenderingProbe::decide() const
{
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
    QApplication::quit();
    return rendering;
}
