#include "settings/screencapture.h"

#include "platform/wholefile.h"
#include "settings/logtexts.h"
#include "settings/settingskeys.h"
#include "settings/settingsstore.h"

#include <QClipboard>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFileDevice>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPixmap>
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

bool liesOnScreen(const QPoint &topLeft, const QSize &size, const QScreen &screen)
{
    const QSize whole = screen.geometry().size();
    const auto fits = [](int start, int length, int available) {
        return start >= 0 && qint64{ start } + length <= available;
    };
    return fits(topLeft.x(), size.width(), whole.width())
        && fits(topLeft.y(), size.height(), whole.height());
}

QByteArray formatOf(const QString &path)
{
    const QByteArray suffix = QFileInfo(path).suffix().toLower().toLatin1();
    return suffix.isEmpty() ? QByteArray("jpg") : suffix;
}

ScreenCapture::Outcome saveAs(const QPixmap &picture, const QString &path)
{
    const QByteArray format = formatOf(path);
    const QString problem = WholeFile::write(path, [&](QFileDevice &file) {
        if (picture.save(&file, format.constData())) {
            return QString();
        }
        return file.error() == QFileDevice::NoError
            ? ScreenCapture::tr("不支持“%1”格式，请用 .png 或 .jpg")
                  .arg(QString::fromLatin1(format))
            : file.errorString();
    });
    if (problem.isEmpty()) {
        qDebug() << LogTexts::kCaptureSaved << path;
        return { path, {} };
    }
    qWarning() << LogTexts::kCaptureNotSaved << path;
    return { {}, problem };
}

ScreenCapture::Outcome saveIn(const QPixmap &picture, const QString &directory)
{
    ScreenCapture::Outcome outcome = saveAs(picture,
        directory + QLatin1String("/draw_")
            + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_hhmmss"))
            + QLatin1String(".jpg"));
    if (!outcome.failure.isEmpty()) {
        outcome.failure =
            ScreenCapture::tr("截图无法保存到 %1，请检查文件夹权限和磁盘空间").arg(directory);
    }
    return outcome;
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

ScreenCapture::Outcome ScreenCapture::captureRegion(const QPoint &topLeft, const QSize &size)
{
    Outcome outcome;
    if (size.isEmpty()) {
        qWarning() << LogTexts::kInvalidSize << size.width() << size.height();
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
    qDebug() << LogTexts::kCapturingRegion << topLeft.x() << topLeft.y() << size.width()
             << size.height();
    if (!liesOnScreen(topLeft, size, *screen)) {
        qWarning() << LogTexts::kRegionOutsideScreen << topLeft.x() << topLeft.y() << size.width()
                   << size.height();
        outcome.failure = tr("选择的区域超出主屏幕，请重新选择");
        return outcome;
    }
    const QPixmap picture =
        screen->grabWindow(0, topLeft.x(), topLeft.y(), size.width(), size.height());
    if (picture.isNull()) {
        qWarning() << LogTexts::kEmptyCapture;
        outcome.failure = tr("系统不允许读取屏幕，无法截图");
        return outcome;
    }
    outcome = saveIn(picture, directory);
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
    return saveIn(screen->grabWindow(0), directory);
}

ScreenCapture::Outcome ScreenCapture::captureWholeScreenTo(const QString &path)
{
    Outcome outcome;
    QScreen *screen = primaryScreen(outcome.failure);
    if (!screen) {
        return outcome;
    }
    const QPixmap picture = screen->grabWindow(0);
    if (picture.isNull()) {
        qWarning() << LogTexts::kEmptyCapture;
        outcome.failure = tr("系统不允许读取屏幕，无法截图");
        return outcome;
    }
    outcome = saveAs(picture, path);
    if (!outcome.failure.isEmpty()) {
        outcome.failure = tr("截图无法保存到 %1：%2").arg(path, outcome.failure);
    }
    return outcome;
}
