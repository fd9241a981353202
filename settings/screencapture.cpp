#include "settings/screencapture.h"

#include "settings/logtexts.h"
#include "settings/settingskeys.h"
#include "settings/settingsstore.h"

#include <QClipboard>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QGuiApplication>
#include <QPixmap>
#include <QSaveFile>
#include <QScreen>

namespace
{

/// The directory that receives captures, created when it is missing; empty, with `failure` set,
/// when there is none.
QString captureDirectory(QString &failure)
{
    const QString directory =
        SettingsStore::read(QLatin1String(SettingsKeys::kScreenSavePath)).toString();
    if (directory.isEmpty()) {
        qWarning() << LogTexts::kInvalidSavePath;
        failure = ScreenCapture::tr("没有设置截图文件夹，请在设置中选择");
        return {};
    }
    const QDir asDirectory(directory);
    if (!asDirectory.exists() && !asDirectory.mkpath(QStringLiteral("."))) {
        qWarning() << LogTexts::kCannotCreateSavePath << directory;
        failure = ScreenCapture::tr("无法创建截图文件夹 %1，请在设置中另选一个").arg(directory);
        return {};
    }
    return directory;
}

QScreen *primaryScreen(QString &failure)
{
    QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen) {
        qWarning() << LogTexts::kNoPrimaryScreen;
        failure = ScreenCapture::tr("找不到显示器，无法截图");
    }
    return screen;
}

bool liesOnScreen(const QRect &region, const QScreen &screen)
{
    const QSize size = screen.geometry().size();
    return region.x() >= 0 && region.y() >= 0 && region.x() + region.width() <= size.width()
        && region.y() + region.height() <= size.height();
}

/// A full disk must not leave half a picture under the final name, nor damage the one before.
bool writeJpeg(const QPixmap &picture, const QString &path)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && picture.save(&file, "JPG") && file.commit();
}

ScreenCapture::Outcome save(const QPixmap &picture, const QString &directory)
{
    const QString path = directory + QLatin1String("/draw_")
        + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_hhmmss"))
        + QLatin1String(".jpg");
    if (writeJpeg(picture, path)) {
        qDebug() << LogTexts::kCaptureSaved << path;
        return { path, {} };
    }
    qWarning() << LogTexts::kCaptureNotSaved << path;
    return { {},
        ScreenCapture::tr("截图无法保存到 %1，请检查文件夹权限和磁盘空间").arg(directory) };
}

void copyToClipboard(const QPixmap &picture)
{
    if (QClipboard *clipboard = QGuiApplication::clipboard()) {
        clipboard->setImage(picture.toImage());
        qDebug() << LogTexts::kCaptureOnClipboard;
    } else {
        qWarning() << LogTexts::kNoClipboard;
    }
}

} // namespace

ScreenCapture::Outcome ScreenCapture::captureRegion(const QRect &region)
{
    Outcome outcome;
    if (region.width() < 1 || region.height() < 1) {
        qWarning() << LogTexts::kInvalidSize << region.width() << region.height();
        outcome.failure = tr("选择的区域太小，请重新选择");
        return outcome;
    }
    const QString directory = captureDirectory(outcome.failure);
    if (directory.isEmpty()) {
        return outcome;
    }
    QScreen *screen = primaryScreen(outcome.failure);
    if (!screen) {
        return outcome;
    }
    qDebug() << LogTexts::kCapturingRegion << region.x() << region.y() << region.width()
             << region.height();
    if (!liesOnScreen(region, *screen)) {
        qWarning() << LogTexts::kRegionOutsideScreen << region.x() << region.y() << region.width()
                   << region.height();
        outcome.failure = tr("选择的区域超出主屏幕，请重新选择");
        return outcome;
    }
    const QPixmap picture =
        screen->grabWindow(0, region.x(), region.y(), region.width(), region.height());
    if (picture.isNull()) {
        qWarning() << LogTexts::kEmptyCapture;
        outcome.failure = tr("系统不允许读取屏幕，无法截图");
        return outcome;
    }
    outcome = save(picture, directory);
    copyToClipboard(picture);
    return outcome;
}

ScreenCapture::Outcome ScreenCapture::captureWholeScreen()
{
    Outcome outcome;
    const QString directory = captureDirectory(outcome.failure);
    if (directory.isEmpty()) {
        return outcome;
    }
    QScreen *screen = primaryScreen(outcome.failure);
    if (!screen) {
        return outcome;
    }
    return save(screen->grabWindow(0), directory);
}
