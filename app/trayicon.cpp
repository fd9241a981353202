#include "app/trayicon.h"

#include <QAction>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QIcon>
#include <QQuickWindow>

TrayIcon::TrayIcon() : m_toggleAction(new QAction(&m_menu)), m_exitAction(new QAction(&m_menu))
{
    retranslate();
    connect(m_exitAction, &QAction::triggered, this, &QCoreApplication::quit);
    m_menu.addAction(m_toggleAction);
    m_menu.addAction(m_exitAction);
    m_icon.setContextMenu(&m_menu);
    m_icon.setIcon(QGuiApplication::windowIcon());
}

void TrayIcon::show()
{
    m_icon.show();
}

void TrayIcon::adopt(QObject *object)
{
    auto *window = qobject_cast<QQuickWindow *>(object);
    if (!window) {
        return;
    }
    m_window = window;
    // It shows the program's icon without being told; telling it again would have the window
    // manager take in another 140 KB just before the first picture.
    window->setColor(Qt::transparent);
    connect(m_toggleAction, &QAction::triggered, window, [this] { toggleWindow(); });
    // The window also hides and shows itself; the text tells what the action would do now.
    connect(window, &QQuickWindow::visibleChanged, this, &TrayIcon::noteVisibility);
    noteVisibility(window->isVisible());
}

void TrayIcon::showWindow()
{
    if (m_window) {
        m_window->show();
        m_window->raise();
        // It may be one that leaves the keyboard to what the user types in.
        if (!m_window->flags().testFlag(Qt::WindowDoesNotAcceptFocus))
            m_window->requestActivate();
    }
}

void TrayIcon::retranslate()
{
    m_toggleAction->setText(m_windowIsHidden ? QCoreApplication::translate("main", "显示")
                                             : QCoreApplication::translate("main", "隐藏"));
    m_exitAction->setText(QCoreApplication::translate("main", "退出"));
}

void TrayIcon::noteVisibility(bool visible)
{
    m_windowIsHidden = !visible;
    retranslate();
}

void TrayIcon::toggleWindow()
{
    if (m_window->isVisible()) {
        m_window->hide();
    } else {
        showWindow();
    }
}
