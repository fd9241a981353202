#pragma once

#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QSystemTrayIcon>

class QAction;
class QQuickWindow;

/// The icon in the notification area with its menu: hide or show the main window, exit.
class TrayIcon : public QObject
{
    Q_OBJECT

public:
    TrayIcon();

    void show();

    /// Takes an object that the engine created. A window becomes the main window: it is made
    /// see-through and gets the icon; anything else, null included, is ignored.
    void adopt(QObject *object);

    /// Brings the main window back to the user's eyes.
    void showWindow();

    /// Where the icon stands on the desktop; empty where the panel does not tell.
    [[nodiscard]] QRect area() const { return m_icon.geometry(); }

    /// Renews the texts after a change of the language.
    void retranslate();

private:
    void toggleWindow();
    void noteVisibility(bool visible);

    QMenu m_menu;
    QSystemTrayIcon m_icon;
    QAction *m_toggleAction; // owned by the menu, as the next
    QAction *m_exitAction;
    QPointer<QQuickWindow> m_window;
    bool m_windowIsHidden = false;
};
