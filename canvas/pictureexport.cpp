#include "canvas/pictureexport.h"

#include "canvas/elementlist.h"
#include "canvas/logtexts.h"
#include "canvas/renderer.h"
#include "elements/drawingelement.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QStandardPaths>

namespace
{

const QString kNamePrefix = QStringLiteral("/screenshot_");
const QString kTimeFormat = QStringLiteral("yyyyMMdd_hhmmss");
const QString kSuffix = QStringLiteral(".png");

/// One painter without a reset between the elements, unlike the screen: a stroke after an arrow is
/// filled with the arrow's colour.
QImage paintInOneGo(const ElementList &elements, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const ElementPtr &element : elements)
        element->paint(&painter);
    return image;
}

QImage paintAsShown(const ElementList &elements, const QSize &size, qreal ratio)
{
    Renderer renderer(elements);
    renderer.setDevicePixelRatio(ratio);
    renderer.rebuild(size);
    return renderer.picture();
}

QString baseName()
{
    return kNamePrefix + QDateTime::currentDateTime().toString(kTimeFormat);
}

QString unusedPath(const QString &folder)
{
    const QString base = folder + baseName();
    QString path = base + kSuffix;
    for (int i = 2; QFile::exists(path); ++i)
        path = QStringLiteral("%1_%2%3").arg(base).arg(i).arg(kSuffix);
    return QDir::toNativeSeparators(path);
}

/// An empty text when the file was written, else what went wrong.
QString writePicture(const QImage &image, const QString &path)
{
    QImageWriter writer(path);
    if (writer.write(image))
        return {};
    const QString problem = writer.errorString();
    QFile::remove(path); // half a picture helps nobody
    return problem;
}

} // namespace

void PictureExport::saveBesideExecutable(const QSize &size) const
{
    if (m_elements.isEmpty() || size.isEmpty())
        return;
    const QString path =
        QDir::toNativeSeparators(QCoreApplication::applicationDirPath() + baseName() + kSuffix);
    if (paintInOneGo(m_elements, size).save(path))
        qDebug() << CanvasLog::kImageSaved << path;
    else
        qDebug() << CanvasLog::kImageNotSaved;
}

QString PictureExport::save(const QSize &size, qreal ratio)
{
    m_error.clear();
    if (m_elements.isEmpty() || size.isEmpty()) {
        m_error = QCoreApplication::translate("PictureExport", "画布上没有内容，无需保存");
        return {};
    }
    const QImage image = paintAsShown(m_elements, size, ratio);
    const QString folders[] = { QCoreApplication::applicationDirPath(),
        QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) };
    QString problem;
    for (const QString &folder : folders) {
        QDir().mkpath(folder);
        const QString path = unusedPath(folder);
        problem = writePicture(image, path);
        if (problem.isEmpty()) {
            qDebug() << CanvasLog::kImageSaved << path;
            return path;
        }
    }
    qDebug() << CanvasLog::kImageNotSaved;
    m_error = QCoreApplication::translate("PictureExport", "无法写入 %1：%2")
                  .arg(QDir::toNativeSeparators(folders[1]), problem);
    return {};
}
