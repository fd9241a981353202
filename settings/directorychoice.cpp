#include "settings/directorychoice.h"

#include "settings/logtexts.h"

#include <QApplication>
#include <QDebug>
#include <QDir>
#include <QFileDialog>

std::optional<QString> chooseDirectory(const QString &startPath)
{
    if (!qobject_cast<QApplication *>(QCoreApplication::instance())) {
        qWarning() << LogTexts::kNoWidgetApplication;
        return std::nullopt;
    }
    return QFileDialog::getExistingDirectory(QApplication::activeWindow(),
        QCoreApplication::translate("SettingsClazz", "选择保存目录"),
        startPath.isEmpty() ? QDir::homePath() : startPath,
        QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
}
