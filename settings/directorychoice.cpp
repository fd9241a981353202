#include "settings/directorychoice.h"

#include "settings/logtexts.h"

#include <QApplication>
#include <QDebug>
#include <QDir>
#include <QFileDialog>
#include <QWindow>

std::optional<QString> chooseDirectory(const QString &startPath)
{
    if (!qobject_cast<QApplication *>(QCoreApplication::instance())) {
        qWarning() << LogTexts::kNoWidgetApplication;
        return std::nullopt;
    }
    QFileDialog dialog(QApplication::activeWindow(),
        QCoreApplication::translate("SettingsClazz", "选择保存目录"),
        startPath.isEmpty() ? QDir::homePath() : startPath);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOptions(QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    // The window that asks may stay above all others, but not above its own dialog.
    dialog.winId();
    dialog.windowHandle()->setTransientParent(QGuiApplication::focusWindow());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
