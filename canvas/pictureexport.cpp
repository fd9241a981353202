#include "canvas/pictureexport.h"

#include "canvas/elementlist.h"
#include "canvas/logtexts.h"
#include "canvas/renderer.h"
#include "elements/drawingelement.h"
#include "platform/programfolder.h"
#include "platform/userhome.h"
#include "platform/wholefile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFileDevice>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QStandardPaths>

namespace
{

const QString kNamePrefix = QStringLiteral("/screenshot_");
const QString kTimeFormat = QStringLiteral("yyyyMMdd_hhmmss");
const QString kSuffix = QStringLiteral(".png");
const QList<QByteArray> kTransparentFormats{ "png", "webp", "tif", "tiff" };

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

/// Where pictures go, the best place first.
QStringList folders()
{
    QStringList folders;
    if (ProgramFolder::isWritable())
        folders.append(ProgramFolder::path());
    if (UserHome::exists())
        folders.append(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
    return folders;
}

QString notWritten(const QString &path, const QString &problem)
{
    return QCoreApplication::translate("PictureExport", "无法写入 %1：%2")
        .arg(QDir::toNativeSeparators(path), problem);
}

/// An empty text when the file was written, else what went wrong.
QString writePicture(const QImage &image, const QString &path, const QByteArray &format = "png")
{
    return WholeFile::write(path, [&](QFileDevice &file) {
        QImageWriter writer(&file, format);
        if (writer.write(image))
            return QString();
        return file.error() == QFileDevice::NoError ? writer.errorString() : file.errorString();
    });
}

QByteArray formatOf(const QString &path)
{
    const QByteArray suffix = QFileInfo(path).suffix().toLower().toLatin1();
    return suffix.isEmpty() ? QByteArray("png") : suffix;
}

QImage onWhite(const QImage &image)
{
    QImage flat(image.size(), QImage::Format_RGB32);
    flat.fill(Qt::white);
    QPainter(&flat).drawImage(0, 0, image);
    return flat;
}

} // namespace

void PictureExport::saveBesideExecutable(const QSize &size) const
{
    if (m_elements.isEmpty() || size.isEmpty())
        return;
    const QString path =
        QDir::toNativeSeparators(QCoreApplication::applicationDirPath() + baseName() + kSuffix);
    if (writePicture(paintInOneGo(m_elements, size), path).isEmpty())
        qDebug() << CanvasLog::kImageSaved << path;
    else
        qDebug() << CanvasLog::kImageNotSaved;
}

bool PictureExport::canSave(const QSize &size)
{
    m_error.clear();
    if (m_elements.isEmpty() || size.isEmpty())
        m_error = QCoreApplication::translate("PictureExport", "画布上没有内容，无需保存");
    return m_error.isEmpty();
}

QString PictureExport::save(const QSize &size, qreal ratio)
{
    if (!canSave(size))
        return {};
    const QImage image = paintAsShown(m_elements, size, ratio);
    for (const QString &folder : folders()) {
        QDir().mkpath(folder);
        const QString path = unusedPath(folder);
        const QString problem = writePicture(image, path);
        if (problem.isEmpty()) {
            m_error.clear();
            qDebug() << CanvasLog::kImageSaved << path;
            return path;
        }
        m_error = notWritten(folder, problem);
    }
    if (m_error.isEmpty())
        m_error = QCoreApplication::translate(
            "PictureExport", "程序文件夹不可写入，也找不到用户文件夹 (HOME)");
    qDebug() << CanvasLog::kImageNotSaved;
    return {};
}

bool PictureExport::saveTo(const QString &path, const QSize &size, qreal ratio)
{
    if (!canSave(size))
        return false;
    const QByteArray format = formatOf(path);
    if (!QImageWriter::supportedImageFormats().contains(format)) {
        m_error = notWritten(path,
            QCoreApplication::translate("PictureExport", "不支持“%1”格式，请用 .png 或 .jpg")
                .arg(QString::fromLatin1(format)));
        return false;
    }
    const QImage image = paintAsShown(m_elements, size, ratio);
    const QString problem =
        writePicture(kTransparentFormats.contains(format) ? image : onWhite(image), path, format);
    if (!problem.isEmpty()) {
        qDebug() << CanvasLog::kImageNotSaved;
        m_error = notWritten(path, problem);
        return false;
    }
    qDebug() << CanvasLog::kImageSaved << path;
    return true;
}
