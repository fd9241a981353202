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

namespace
{

constexpr int kPanelStartTimeoutMs = 3000;
constexpr int kPollIntervalMs = 50;

} // namespace

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
    showDesktopNotice(QLatin1String(Identity::kDisplayName),
        QCoreApplication::translate(
            "main", "桌面没有系统托盘，程序无法运行。请启用面板的通知区域后重试。"));
}
