#include "app/openglanswer.h"

#include <QDataStream>
#include <QIODevice>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

namespace
{

QByteArray glText(QOpenGLFunctions &functions, GLenum name)
{
    return reinterpret_cast<const char *>(functions.glGetString(name));
}

} // namespace

QByteArray OpenGlAnswer::toBytes() const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << contextWorks << names.has_value();
    if (names) {
        stream << names->renderer << names->version;
    }
    return bytes;
}

OpenGlAnswer OpenGlAnswer::fromBytes(const QByteArray &bytes)
{
    QDataStream stream(bytes);
    OpenGlAnswer answer;
    bool hasNames = false;
    stream >> answer.contextWorks >> hasNames;
    if (hasNames) {
        answer.names.emplace();
        stream >> answer.names->renderer >> answer.names->version;
    }
    return answer;
}

OpenGlAnswer askOpenGl()
{
    OpenGlAnswer answer;
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext context;
    if (!context.create() || !context.makeCurrent(&surface)) {
        return answer;
    }
    answer.contextWorks = true;
    if (QOpenGLFunctions *functions = context.functions()) {
        answer.names = { glText(*functions, GL_RENDERER), glText(*functions, GL_VERSION) };
    }
    context.doneCurrent();
    return answer;
}
