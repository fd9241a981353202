#include "settings/translation.h"

#include "settings/languagemanager.h"
#include "settings/logtexts.h"

#include <QApplication>
#include <QDebug>
#include <QDir>
#include <QTranslator>

QString translationsDirectory()
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/translations");
}

void loadTranslation(QCoreApplication *application, const QString &code)
{
    const auto installed = application->findChildren<QTranslator *>();
    for (QTranslator *translator : installed) {
        QCoreApplication::removeTranslator(translator);
        translator->deleteLater();
    }
    auto *translator = new QTranslator(application);
    const QString fileName = QLatin1String("app_") + code;
    const QString directory = translationsDirectory();
    qDebug() << LogTexts::kLookingForTranslation << fileName << LogTexts::kLookingIn << directory;
    if (!QDir(directory).exists()) {
        qDebug() << LogTexts::kNoTranslationsDirectory;
        QDir().mkpath(directory);
    }
    if (!translator->load(fileName, directory)) {
        qDebug() << LogTexts::kTranslationNotLoaded << fileName;
        translator->deleteLater();
        return;
    }
    QCoreApplication::installTranslator(translator);
    qDebug() << LogTexts::kTranslationLoaded << fileName;
    LanguageManager::instance()->emitLanguageChanged(code);
}

bool applyLanguage(const QString &language)
{
    auto *application = qobject_cast<QApplication *>(QCoreApplication::instance());
    if (!application) {
        return false;
    }
    loadTranslation(application, language);
    return true;
}
