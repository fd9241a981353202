#include "app/systemtray.h"

#include "app/identity.h"
#include "app/logtexts.h"
#include "app/startup.h"
#include "platform/desktopnotice.h"
#include "platform/trayhost.h"
#include "settings/translation.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDebug>
#include <QSystemTrayIcon>
#include <QThread>

#include <cstdio>

namespace
{

constexpr int kPanelStartTimeoutMs = 3000;
constexpr int kPollIntervalMs = 50;

} // namespace

bool meansNoSystemTray(int exitCode)
{
    constexpr int kByte = 0xff;
    return (exitCode & kByte) == (kExitNoTray & kByte);
}

QString noSystemTrayText()
{
    return QCoreApplication::translate(
        "main", "桌面没有系统托盘，程序无法运行。请启用面板的通知区域，或用 --without-tray 启动。");
}

bool waitForSystemTray()
{
    const QDeadlineTimer deadline(kPanelStartTimeoutMs);
    while (!trayHostIsPresent() && !deadline.hasExpired()) {
        QThread::msleep(kPollIntervalMs);
    }
    return QSystemTrayIcon::isSystemTrayAvailable();
}

void reportNoSystemTray(QApplication &application)
{
    qDebug() << StartupLogTexts::kNoSystemTray;
    loadTranslation(&application, Startup::chooseLanguage());
    const QString reason = noSystemTrayText();
    showDesktopNotice(QLatin1String(Identity::kDisplayName), reason);
    // The desktop may show no notices either; whoever started it from a terminal reads this.
    std::fputs((reason + u'\n').toLocal8Bit().constData(), stderr);
}
